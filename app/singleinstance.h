#pragma once

#include <QLocalServer>

/// Allows one instance of the program for each user and folder.
///
/// The running instance listens on a local socket. A new one connects, gets one byte as the answer and ends.
/// Two that start at the same moment may both run.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    enum class Previous {
        None,
        Answered, ///< it comes to the front
        Silent,   ///< it exists, but gave no answer in time
    };

    explicit SingleInstance(const QString &appFolder);

    /// Calls the previous instance and waits for its answer, three seconds at most.
    Previous activatePrevious() const;

    /// Answers later instances whenever an event loop runs. Replaces the socket of a killed instance, so call
    /// it only after activatePrevious() returned None. Without a socket the program still runs.
    void listen();

    /// Stops answering, as the destructor does.
    void close() { m_server.close(); }

Q_SIGNALS:
    /// A later instance has been answered.
    void activated();

private:
    void answer();

    const QString m_socket; ///< full path
    QLocalServer m_server;
};
