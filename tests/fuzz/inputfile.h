#pragma once

#include <QString>
#include <cstdint>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

/// The input of a fuzz target as a file in memory, for readers that want a path. A file system would cost ten
/// times the reader.
class InputFile final
{
    Q_DISABLE_COPY_MOVE(InputFile)

public:
    InputFile(const uint8_t *data, size_t size) : m_handle(memfd_create("input", 0))
    {
        if (m_handle < 0 || write(m_handle, data, size) != ssize_t(size))
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
