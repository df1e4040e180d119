#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <unistd.h>

/// A small installation for all users of a machine, made up, and the home of one of them. Its program is a
/// script that tells where it was started.
class Installation final
{
public:
    Installation()
    {
        writeInstalled(QStringLiteral("bin/alembra"),
                       read(QStringLiteral(ALEMBRA_SOURCE "/packaging/alembra.sh")), true);
        // Waiting for the disk is no part of any test.
        writeInstalled(QStringLiteral("quick/sync"), "#!/bin/sh\n", true);
        install("one");
        QDir().mkpath(home());
    }

    /// Everything of the release @p name: each file's content tells the release.
    void install(const QByteArray &name)
    {
        writeInstalled(QStringLiteral("lib/alembra/Alembra_uk"), program(name), true);
        for (const char *file :
             {"Backup/Database_uk_origin.rbk", "options_uk.ini", "menuc_uk.xcb", "Data/ir/1.gif",
              "Data/nmr/1h/1.gif", "Data/cristal/Face-centered cubic.bmp"})
            writeInstalled(QStringLiteral("share/alembra/") + QLatin1StringView(file), content(name));
        writeInstalled(QStringLiteral("share/alembra/release"), "1.0 " + name + '\n');
    }

    void writeInstalled(const QString &below, const QByteArray &bytes, bool executable = false) const
    {
        write(m_folder.filePath(QStringLiteral("usr/") + below), bytes);
        if (executable)
            QFile::setPermissions(m_folder.filePath(QStringLiteral("usr/") + below),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    static QByteArray program(const QByteArray &release)
    {
        return "#!/bin/sh\necho \"" + release + " in ${0%/*}: $*\"\nexit 7\n" + filler();
    }

    /// What a file of the release @p name holds.
    static QByteArray content(const QByteArray &name) { return name + filler(); }

    /// A finished run of the launcher.
    struct Run
    {
        int status = -1;
        QString output;
        QString error;
    };

    using Environment = QList<std::pair<const char *, QString>>;

    Run start(const Environment &variables = {}, const QStringList &arguments = {}) const
    {
        const std::unique_ptr<QProcess> process = begin(variables, arguments);
        return finish(*process);
    }

    /// In a process group of its own, so that all of it can be killed.
    std::unique_ptr<QProcess> begin(const Environment &variables, const QStringList &arguments = {}) const
    {
        QProcessEnvironment environment;
        environment.insert(QStringLiteral("PATH"), searchPath());
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        environment.insert(QStringLiteral("HOME"), home());
        for (const auto &[name, value] : variables)
            environment.insert(QLatin1StringView(name), value);
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment);
        process->setChildProcessModifier([] { ::setsid(); });
        process->start(launcher(), arguments);
        return process;
    }

    static Run finish(QProcess &process)
    {
        if (!process.waitForFinished(30000))
            process.kill();
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QString launcher() const { return m_folder.filePath(QStringLiteral("usr/bin/alembra")); }
    QString installed(const QString &below) const
    {
        return m_folder.filePath(QStringLiteral("usr/share/alembra/") + below);
    }
    QString home() const { return m_folder.filePath(QStringLiteral("home")); }
    QString path(const QString &below) const { return m_folder.filePath(below); }
    QString userFolder() const { return home() + QStringLiteral("/.local/share/alembra"); }
    QString user(const char *below) const
    {
        return userFolder() + QLatin1Char('/') + QLatin1StringView(below);
    }

    /// The launcher's PATH, with a folder of the installation's in front if one is named.
    QString searchPath(const QString &first = {}) const
    {
        const QString quick = path(QStringLiteral("usr/quick:")) + qEnvironmentVariable("PATH");
        return first.isEmpty() ? quick : path(QStringLiteral("usr/") + first) + QLatin1Char(':') + quick;
    }

    static QByteArray read(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
    }

    static void write(const QString &name, const QByteArray &bytes)
    {
        QDir().mkpath(QFileInfo(name).path());
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qUtf8Printable(name));
    }

private:
    // Longer than the 512 bytes to which a test limits what may be written.
    static QByteArray filler() { return QByteArray(1000, '#'); }

    const QTemporaryDir m_folder;
};
