#pragma once

#include <QFile>
#include <QString>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// What can go wrong with files, for the time that an object stands: a lock, a full disk, missing rights.

/// Another process that holds a lock on a file for as long as this stands.
class LockElsewhere final
{
public:
    enum Kind { Record, SharedRecord, WholeFile };

    explicit LockElsewhere(const QString &path, Kind kind = Record)
    {
        int ready[2];
        if (pipe(ready) != 0 || (m_child = fork()) < 0)
            qFatal("no second process");
        if (m_child == 0) {
            const int file = open(qUtf8Printable(path), O_RDWR);
            struct flock lock = {short(kind == SharedRecord ? F_RDLCK : F_WRLCK), SEEK_SET, 0, 0, 0};
            if ((kind == WholeFile ? flock(file, LOCK_EX | LOCK_NB) : fcntl(file, F_SETLK, &lock)) != 0 ||
                write(ready[1], "1", 1) != 1)
                _exit(1);
            for (;;)
                pause();
        }
        close(ready[1]);
        char byte;
        m_locked = read(ready[0], &byte, 1) == 1;
        close(ready[0]);
    }
    ~LockElsewhere()
    {
        kill(m_child, SIGKILL);
        waitpid(m_child, nullptr, 0);
    }
    bool isLocked() const { return m_locked; }

private:
    pid_t m_child = -1;
    bool m_locked = false;
};

/// A disk that takes @p bytes a file and no more.
class FullDisk final
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};

/// Runs as somebody who is bound by permissions, also where the tests run as root.
class OrdinaryUser final
{
public:
    OrdinaryUser() : m_before(geteuid())
    {
        if (m_before == 0 && setresuid(65534, 65534, 0) != 0)
            qFatal("cannot become an ordinary user");
    }
    ~OrdinaryUser()
    {
        if (geteuid() != m_before && setresuid(m_before, m_before, m_before) != 0)
            qFatal("cannot become root again");
    }

private:
    uid_t m_before;
};
