#include "core/versionrecord.h"

#include "core/buildsettings.h"

#include <QUrl>

using namespace Qt::StringLiterals;

QString VersionRecord::contactAddress()
{
    QString host = QUrl(QString(BuildSettings::WebSite)).host();
    if (host.startsWith(u"www."))
        host.remove(0, 4);
    return u"contact@"_s + host;
}
