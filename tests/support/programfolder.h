#pragma once

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

/// A copy of the assembled program folder, for a test to spoil. Files are linked where that is harmless:
/// pictures are many and nobody writes them.
class ProgramFolder final
{
public:
    explicit ProgramFolder(const QString &source = QStringLiteral(ALEMBRA_FOLDER))
    {
        const QDir from(source);
        QDirIterator files(source, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            const QString target = path(from.relativeFilePath(file));
            QDir().mkpath(QFileInfo(target).path());
            const QString suffix = QFileInfo(file).suffix();
            const bool picture = suffix == QStringLiteral("jpg") || suffix == QStringLiteral("bmp") ||
                                 suffix == QStringLiteral("gif") || suffix == QStringLiteral("png");
            if (picture)
                QFile::link(file, target);
            else
                QFile::copy(file, target);
        }
    }

    QString root() const { return m_folder.path(); }
    QString path(const QString &below) const { return m_folder.filePath(below); }
    QString executable() const { return path(QStringLiteral("Alembra_uk")); }

    void write(const QString &below, const QByteArray &content) const
    {
        QFile file(path(below));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qUtf8Printable(file.fileName()));
    }

    QByteArray read(const QString &below) const
    {
        QFile file(path(below));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
    QTemporaryDir m_folder;
};
