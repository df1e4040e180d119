#include "core/versionrecord.h"

#include "core/buildsettings.h"

#include <QUrl>

QString VersionRecord::applicationTitle()
{
    return QStringLiteral("Alembra");
}

QString VersionRecord::comments()
{
    return QStringLiteral("Alembra, the swiss army knife of the lab worker, is the essential software of the "
                          "scientist, containing numerous data very useful in a laboratory.");
}

QString VersionRecord::fileDescription()
{
    return QStringLiteral("Reference tables, charts and calculators for the chemistry and biochemistry "
                          "laboratory.");
}

QString VersionRecord::legalNotice()
{
    return QStringLiteral("© %1 the Alembra developers. Code: MIT licence. Data: see LICENSES.md.")
        .arg(noticeYears());
}

QString VersionRecord::noticeYears()
{
    return QStringLiteral("2026");
}

QString VersionRecord::contactAddress()
{
    QString host = QUrl(QString::fromLatin1(BuildSettings::WebSite)).host();
    if (host.startsWith(QLatin1StringView("www.")))
        host.remove(0, 4);
    return QStringLiteral("contact@") + host;
}
