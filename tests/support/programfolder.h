#pragma once

#include "tests/support/files.h"

/// A copy of the assembled program folder, for a test to spoil. The folders of pictures and of the original
/// database are linked: nobody writes there. No tip opens at start, it would disable the main window.
class ProgramFolder final
{
public:
    explicit ProgramFolder(const QString &source = QStringLiteral(ALEMBRA_FOLDER))
    {
        QDir().mkpath(path(QStringLiteral("Data")));
        copyEntries(source, root(), {QStringLiteral("Data")});
        copyEntries(source + QStringLiteral("/Data"), path(QStringLiteral("Data")), {});
        setOption(56, "0");
    }

    QString root() const { return m_folder.path(); }
    QString path(const QString &below) const { return m_folder.filePath(below); }
    QString executable() const { return path(QStringLiteral("Alembra_uk")); }

    void write(const QString &below, const QByteArray &content) const { writeFile(path(below), content); }
    QByteArray read(const QString &below) const { return readFile(path(below)); }

    /// Makes each linked folder on the way to @p below a folder of links, so that its files may be replaced.
    void makeOwn(const QString &below) const
    {
        QString to = root();
        for (const QString &part : below.split(QLatin1Char('/'))) {
            to += QLatin1Char('/') + part;
            const QString from = QFile::symLinkTarget(to);
            if (from.isEmpty())
                continue;
            QFile::remove(to);
            QDir().mkpath(to);
            for (const QString &name : QDir(from).entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
                QFile::link(from + QLatin1Char('/') + name, to + QLatin1Char('/') + name);
        }
    }

    /// Sets one line, from 0, of the options file.
    void setOption(int slot, const QByteArray &line) const
    {
        const QString name = QStringLiteral("options_uk.ini");
        QList<QByteArray> lines = read(name).split('\n');
        lines[slot] = line + '\r';
        write(name, lines.join('\n'));
    }

private:
    // Files are copied, folders linked, but for those named in @p own.
    static void copyEntries(const QString &source, const QString &target, const QStringList &own)
    {
        const QFileInfoList entries = QDir(source).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
        for (const QFileInfo &entry : entries) {
            const QString to = target + QLatin1Char('/') + entry.fileName();
            if (own.contains(entry.fileName()))
                continue;
            if (entry.isDir())
                QFile::link(entry.filePath(), to);
            else
                QFile::copy(entry.filePath(), to);
        }
    }

    QTemporaryDir m_folder;
};
