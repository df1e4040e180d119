#pragma once

#include <QLocalServer>

/// Lets one instance of the program run for a user and a program folder.
///
/// The running one listens on a local socket; a new one calls it there and it comes to the front. Two that
/// start at the same moment may both find nobody.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    explicit SingleInstance(const QString &appFolder);

    /// True if another instance answered; it has then been asked to come to the front.
    bool activatePrevious();

    /// Answers to later instances from now on. A socket that a killed instance left behind is removed; call
    /// it only after activatePrevious() found nobody.
    void listen();

Q_SIGNALS:
    /// Another instance was started and has ended again in favour of this one.
    void activated();

private:
    const QString m_name;
    QLocalServer m_server;
};
