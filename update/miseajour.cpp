#include "update/miseajour.h"

#include "core/buildsettings.h"
#include "core/desktop.h"
#include "core/fileerrors.h"
#include "update/profilefile.h"
#include "update/updatenetwork.h"
#include "update/versionnumber.h"

#include <QScopedValueRollback>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// The version file is not trusted: it may open a web page, but no file of this computer.
bool isWebAddress(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    return QStringList{u"http"_s, u"https"_s, u"ftp"_s}.contains(url.scheme()) && !url.host().isEmpty();
}

void remove(const QString &path)
{
    QFile file(path);
    if (!file.exists())
        throw RuntimeError(ErrorNumber::FileNotFound, path);
    if (!file.remove())
        throw FileErrors::of(file);
}

} // namespace

MiseAjour::MiseAjour(Desktop &desktop, UpdateNetwork &network, const QString &appFolder, QObject *parent)
    : QObject(parent), m_desktop(desktop), m_network(network), m_localCopy(appFolder + u"/Tempo.net"_s)
{}

void MiseAjour::set(QString &property, const QString &text, const char *name)
{
    property = text;
    Q_EMIT propertyChanged(name);
}

void MiseAjour::Verifier()
{
    if (m_checking)
        return;
    const QScopedValueRollback checking(m_checking, true);
    try {
        check();
    } catch (const RuntimeError &) {
        m_desktop.messageBox(u"Error during checking for updates. Please verify you are using "
                             "the most recent version of Alembra at "_s +
                                 BuildSettings::WebSite,
                             Desktop::Warning);
    }
}

void MiseAjour::check()
{
    if (!m_network.isConnected()) {
        m_desktop.messageBox(u"Impossible to check for updates, please verify your internet "
                             "connexion."_s,
                             Desktop::Warning);
        return;
    }
    m_network.download(m_adresse, m_localCopy);
    const QString remoteVersion = ProfileFile::value(m_localCopy, m_logiciel, u"Version"_s);
    const QString url = ProfileFile::value(m_localCopy, m_logiciel, u"URL"_s);
    remove(m_localCopy); // fails if the download failed
    if (VersionNumber::isNewer(remoteVersion, m_version)) {
        offer(remoteVersion, url);
    } else {
        m_desktop.messageBox(u"There is no updates for Alembra. Your version is up-to-date."_s,
                             Desktop::Information);
    }
}

void MiseAjour::offer(const QString &remoteVersion, const QString &url)
{
    const QString question = u"The version of Alembra you are using is %1\n\n"
                             "A more recent version is available, which is version %2\n\n"
                             "Would you like to download this new version?"_s.arg(m_version, remoteVersion);
    if (m_desktop.messageBox(question, Desktop::Question + Desktop::YesNo) == Desktop::Yes &&
        isWebAddress(url))
        m_desktop.openTarget(url);
}
