#pragma once

#include <QLocalServer>

/// Lets one instance of the program run for a user and a program folder.
///
/// The running instance listens on a local socket. A new one calls it there, gets one byte as the answer, and
/// ends. Two instances that start at the same moment may both find nobody.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    /// What became of the call to a previous instance.
    enum class Previous {
        None,     ///< nobody listens
        Answered, ///< it comes to the front
        Silent,   ///< it exists, but gave no answer in time
    };

    explicit SingleInstance(const QString &appFolder);

    /// Calls the previous instance and waits for its answer, three seconds at most.
    Previous activatePrevious() const;

    /// Answers later instances from now on, whenever an event loop runs. Replaces the socket of a killed
    /// instance, so call it only after activatePrevious() found nobody. Without a socket the program still
    /// runs, only not alone.
    void listen();

    /// Stops answering: the next instance finds nobody and starts. The destructor does the same.
    void close() { m_server.close(); }

Q_SIGNALS:
    /// A later instance called and has been answered.
    void activated();

private:
    void answer();

    const QString m_socket; ///< full path
    QLocalServer m_server;
};
