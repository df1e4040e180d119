#pragma once

#include <QByteArray>
#include <QObject>
#include <memory>

class QSocketNotifier;

/// Lets one instance of the program run for a user and a program folder.
///
/// The running one listens on a local socket; a new one calls it there and it comes to the front. Two that
/// start at the same moment may both find nobody.
///
/// The socket is the platform's own: the one of Qt comes with all of its network, and a start must not pay
/// for what one click in a month needs.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    explicit SingleInstance(const QString &appFolder);
    /// Takes the socket away, if there is one.
    ~SingleInstance() override;

    /// True if another instance answered; it has then been asked to come to the front.
    bool activatePrevious();

    /// Answers to later instances from now on. A socket that a killed instance left behind is removed; call
    /// it only after activatePrevious() found nobody.
    void listen();

Q_SIGNALS:
    /// Another instance was started and has ended again in favour of this one.
    void activated();

private:
    class Socket;

    void accept();

    const QByteArray m_path;
    std::unique_ptr<Socket> m_socket; ///< none while nobody is listened to
    std::unique_ptr<QSocketNotifier> m_callers;
};
