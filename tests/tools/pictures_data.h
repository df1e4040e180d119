// What the tests of the pictures share: the delivered data, the drawn pictures, and data with a fault in it.
#pragma once

#include "tools/make_pictures/picturefolder.h"
#include "tools/tables/table.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

inline const QString Pictures = QStringLiteral(ALEMBRA_FOLDER "/Data/");
inline const QString Data = QStringLiteral(ALEMBRA_SOURCE "/data");

inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

using Draw = void (*)(const QString &, const PictureFolder &);
Q_DECLARE_METATYPE(Draw)

/// One cell of a table of the delivered data replaced, and what then draws from it.
struct WrongData
{
    QString table; ///< below the data folder
    QByteArray before;
    QByteArray after;
    Draw draw;

    /// The message of the refusal; empty if the data was accepted, or if @p before does not occur.
    QString refusal() const
    {
        QTemporaryDir folder;
        for (const char *name : {"tables", "drawing", "notes"}) {
            const QString part = QString::fromLatin1(name);
            QDir().mkpath(folder.filePath(part));
            for (const QFileInfo &file : QDir(Data + QLatin1Char('/') + part).entryInfoList(QDir::Files))
                QFile::link(file.filePath(), folder.filePath(part + QLatin1Char('/') + file.fileName()));
        }
        QByteArray bytes = bytesOf(folder.filePath(table));
        QFile::remove(folder.filePath(table));
        QFile file(folder.filePath(table));
        if (!bytes.contains(before) || !file.open(QIODevice::WriteOnly))
            return {};
        file.write(bytes.replace(before, after));
        file.close();
        try {
            draw(folder.path(), PictureFolder(folder.filePath(QStringLiteral("Data"))));
        } catch (const BuildError &error) {
            return QString::fromUtf8(error.what());
        }
        return {};
    }
};
