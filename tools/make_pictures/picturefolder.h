// Encodes the pictures and writes those that have changed.
#pragma once

#include <QImage>
#include <QSet>
#include <QString>

#include <utility>

/// The folder "Data" of a program folder. Equal pictures give equal bytes, and an unchanged file is not
/// written, so that its date is that of the last change.
class PictureFolder
{
public:
    explicit PictureFolder(QString root) : m_root(std::move(root)) {}

    /// Writes @p picture to @p name below the folder, in the format of its suffix: jpg, png, bmp or gif.
    /// Folders are made as needed. Throws BuildError if that fails.
    void write(const QString &name, const QImage &picture) const;

    /// Removes the pictures that were not written, changed or not, from the folders that were: those of rows
    /// that are gone. Call it after everything has been drawn.
    int removeOthers() const;

    int written() const { return m_written; }
    int unchanged() const { return m_unchanged; }

private:
    const QString m_root;
    mutable QSet<QString> m_paths;
    mutable int m_written = 0;
    mutable int m_unchanged = 0;
};

/// The picture as a GIF file: at most 256 colours, the most frequent ones, without dithering.
QByteArray encodeGif(const QImage &picture);
