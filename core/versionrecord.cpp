#include "core/versionrecord.h"

#include "core/buildsettings.h"

#include <QUrl>

using namespace Qt::StringLiterals;

QString VersionRecord::applicationTitle()
{
    return u"Alembra"_s;
}

QString VersionRecord::comments()
{
    return u"Alembra, the swiss army knife of the lab worker, is the essential software of the "
           "scientist, containing numerous data very useful in a laboratory."_s;
}

QString VersionRecord::fileDescription()
{
    return u"Reference tables, charts and calculators for the chemistry and biochemistry "
           "laboratory."_s;
}

QString VersionRecord::legalNotice()
{
    return u"© %1 the Alembra developers. Code: MIT licence. Data: see LICENSES.md."_s.arg(noticeYears());
}

QString VersionRecord::noticeYears()
{
    return u"2026"_s;
}

QString VersionRecord::contactAddress()
{
    QString host = QUrl(QString::fromLatin1(BuildSettings::WebSite)).host();
    if (host.startsWith(QLatin1StringView("www.")))
        host.remove(0, 4);
    return u"contact@"_s + host;
}
