#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

/// Takes any bytes, and must neither crash, hang nor break what its reader promises.
struct FuzzTarget
{
    using Run = void (*)(const QByteArray &input);
    static inline QHash<QByteArray, Run> all;

    FuzzTarget(const char *name, Run run) { all.insert(name, run); }
};

/// An input as a file in memory, for readers that want a path. A file system would cost ten times the reader.
class InputFile final
{
    Q_DISABLE_COPY_MOVE(InputFile)

public:
    explicit InputFile(const QByteArray &bytes) : m_handle(memfd_create("input", 0))
    {
        if (m_handle < 0 || write(m_handle, bytes.constData(), size_t(bytes.size())) != bytes.size())
            std::abort();
    }
    ~InputFile() { close(m_handle); }

    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_handle); }

private:
    const int m_handle;
};

/// Where a promise of a reader does not hold.
inline void require(bool promise)
{
    if (!promise)
        std::abort();
}
