#include "app/singleinstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QSocketNotifier>
#include <algorithm>
#include <cerrno>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace {

// Where the answer of a running instance would take longer, it hangs, and a second one must not hang with it.
constexpr timeval AnswerTime{.tv_sec = 1, .tv_usec = 0};
constexpr int CallersWaiting = 50;

QByteArray socketPath(const QString &appFolder)
{
    const QString canonical = QFileInfo(appFolder).canonicalFilePath();
    const QByteArray folder =
        QCryptographicHash::hash(canonical.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    const QString name = QStringLiteral("alembra-%1-%2").arg(getuid()).arg(QLatin1StringView(folder));
    // The user's own folder where the session has one: nobody else can put a socket there.
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QString below = QFileInfo(runtime).isDir() ? runtime + QLatin1Char('/') + name : name;
    return QFile::encodeName(QDir::cleanPath(QDir::temp().filePath(below)));
}

} // namespace

/// A local socket by its descriptor, for bytes that nobody sends: a connection is all there is to say. Where
/// the system gives none, every call fails.
class SingleInstance::Socket final
{
    Q_DISABLE_COPY_MOVE(Socket)

public:
    explicit Socket(int kind) : m_descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | kind, 0)) {}
    Socket(const Socket &listener, int kind)
        : m_descriptor(::accept4(listener.m_descriptor, nullptr, nullptr, SOCK_CLOEXEC | kind))
    {}
    ~Socket()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    int descriptor() const { return m_descriptor; }

    /// False too where the path is longer than the system takes.
    bool connectTo(const QByteArray &path) const
    {
        // A full queue of callers makes a connect wait for as long as a send may.
        ::setsockopt(m_descriptor, SOL_SOCKET, SO_SNDTIMEO, &AnswerTime, sizeof AnswerTime);
        int status = 0;
        do
            status = at(path, ::connect);
        while (status != 0 && errno == EINTR);
        return status == 0;
    }

    bool listenAt(const QByteArray &path) const
    {
        // Set before, the permissions are those that the file is made with: nobody else gets in between.
        return ::fchmod(m_descriptor, S_IRUSR | S_IWUSR) == 0 && at(path, ::bind) == 0 &&
               ::listen(m_descriptor, CallersWaiting) == 0;
    }

    /// Whether a process of the same user is at the other end.
    bool isOfThisUser() const
    {
        ucred peer{};
        socklen_t size = sizeof peer;
        return ::getsockopt(m_descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == getuid();
    }

private:
    int at(const QByteArray &path, int (*call)(int, const sockaddr *, socklen_t)) const
    {
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        if (path.size() >= qsizetype(sizeof address.sun_path)) {
            errno = ENAMETOOLONG;
            return -1;
        }
        std::copy(path.begin(), path.end(), address.sun_path);
        return call(m_descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address);
    }

    const int m_descriptor;
};

SingleInstance::SingleInstance(const QString &appFolder) : m_path(socketPath(appFolder))
{}

SingleInstance::~SingleInstance()
{
    if (m_socket)
        ::unlink(m_path.constData());
}

// The call itself is the message: there is nothing else to say.
bool SingleInstance::activatePrevious()
{
    const Socket socket(0);
    return socket.connectTo(m_path) && socket.isOfThisUser();
}

void SingleInstance::listen()
{
    ::unlink(m_path.constData());
    auto socket = std::make_unique<Socket>(SOCK_NONBLOCK);
    if (!socket->listenAt(m_path))
        return; // without a socket the program runs all the same, only not alone
    m_socket = std::move(socket);
    m_callers = std::make_unique<QSocketNotifier>(m_socket->descriptor(), QSocketNotifier::Read);
    connect(m_callers.get(), &QSocketNotifier::activated, this, &SingleInstance::accept);
}

void SingleInstance::accept()
{
    const Socket caller(*m_socket, SOCK_NONBLOCK);
    if (caller.descriptor() < 0)
        // A call that cannot be taken would be announced again and again.
        m_callers->setEnabled(errno == EAGAIN || errno == EINTR || errno == ECONNABORTED);
    else if (caller.isOfThisUser())
        Q_EMIT activated();
}
