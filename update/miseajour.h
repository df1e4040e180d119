#pragma once

#include <QObject>

class Desktop;
class UpdateNetwork;

/// The check for a new version, on demand only.
///
/// The version file at `Adresse` has a section `Logiciel` with the newest "Version" and the "URL" of its
/// page.
class MiseAjour final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString Adresse READ Adresse WRITE setAdresse NOTIFY propertyChanged)
    Q_PROPERTY(QString Logiciel READ Logiciel WRITE setLogiciel NOTIFY propertyChanged)
    Q_PROPERTY(QString Version READ Version WRITE setVersion NOTIFY propertyChanged)

public:
    /// @p appFolder is for a temporary copy of the version file.
    MiseAjour(Desktop &desktop, UpdateNetwork &network, const QString &appFolder, QObject *parent = nullptr);

    const QString &Adresse() const { return m_adresse; }
    const QString &Logiciel() const { return m_logiciel; }
    const QString &Version() const { return m_version; }
    void setAdresse(const QString &address) { set(m_adresse, address, "Adresse"); }
    void setLogiciel(const QString &section) { set(m_logiciel, section, "Logiciel"); }
    void setVersion(const QString &version) { set(m_version, version, "Version"); }

    /// Checks and shows the outcome. Returns when the last message is answered. Does nothing while a check is
    /// running.
    void Verifier();

Q_SIGNALS:
    /// From every setter, with the name of its property.
    void propertyChanged(const QString &name);

private:
    void set(QString &property, const QString &text, const char *name);
    void check();
    void offer(const QString &remoteVersion, const QString &url);

    Desktop &m_desktop;
    UpdateNetwork &m_network;
    const QString m_localCopy;
    QString m_adresse;
    QString m_logiciel;
    QString m_version;
    bool m_checking = false;
};
