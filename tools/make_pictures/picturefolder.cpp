#include "tools/make_pictures/picturefolder.h"

#include "tools/tables/table.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImageWriter>
#include <QSaveFile>

#include <algorithm>
#include <gif_lib.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int GifColours = 256;
constexpr int JpegQuality = 92;

int appendToBytes(GifFileType *file, const GifByteType *bytes, int count)
{
    static_cast<QByteArray *>(file->UserData)->append(reinterpret_cast<const char *>(bytes), count);
    return count;
}

/// The colours of the picture, the most frequent first, ties by value: the order must not depend on hashing.
QList<QRgb> coloursByFrequency(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        // Most neighbours are alike: one look-up for a run of them.
        for (int x = 0, end = 0; x < picture.width(); x = end) {
            while (end < picture.width() && line[end] == line[x])
                ++end;
            counts[line[x] | 0xff000000] += end - x;
        }
    }
    QList<QRgb> colours = counts.keys();
    std::sort(colours.begin(), colours.end(),
              [&](QRgb a, QRgb b) { return counts[a] != counts[b] ? counts[a] > counts[b] : a < b; });
    return colours;
}

/// The picture with a palette; a colour that the palette lacks takes the nearest one of it.
QImage indexedPicture(const QImage &picture, const QList<QRgb> &palette)
{
    QHash<QRgb, uchar> indices;
    for (int i = 0; i < palette.size(); ++i)
        indices.insert(palette[i], uchar(i));
    const auto distance = [](QRgb a, QRgb b) {
        const int red = qRed(a) - qRed(b);
        const int green = qGreen(a) - qGreen(b);
        const int blue = qBlue(a) - qBlue(b);
        return red * red + green * green + blue * blue;
    };
    const auto indexOf = [&](QRgb colour) {
        const auto known = indices.constFind(colour);
        if (known != indices.constEnd())
            return *known;
        const auto nearest = std::min_element(palette.begin(), palette.end(), [&](QRgb a, QRgb b) {
            return distance(a, colour) < distance(b, colour);
        });
        return *indices.insert(colour, uchar(nearest - palette.begin()));
    };
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    indexed.setColorTable(palette);
    for (int y = 0; y < picture.height(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        uchar *to = indexed.scanLine(y);
        for (int x = 0; x < picture.width(); ++x)
            to[x] = x > 0 && from[x] == from[x - 1] ? to[x - 1] : indexOf(from[x] | 0xff000000);
    }
    return indexed;
}

QByteArray encodeByQt(const QImage &picture, const QByteArray &format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, format);
    writer.setQuality(JpegQuality);
    if (!writer.write(picture))
        throw BuildError(writer.errorString());
    return bytes;
}

} // namespace

QByteArray encodeGif(const QImage &picture)
{
    const QImage image = picture.convertToFormat(QImage::Format_RGB32);
    QList<QRgb> colours = coloursByFrequency(image);
    colours.resize(std::min<qsizetype>(colours.size(), GifColours));
    const QImage indexed = indexedPicture(image, colours);

    // giflib takes palettes of a power of two only.
    int size = 2;
    while (size < colours.size())
        size *= 2;
    const std::unique_ptr<ColorMapObject, decltype(&GifFreeMapObject)> palette(
        GifMakeMapObject(size, nullptr), GifFreeMapObject);
    for (int i = 0; i < colours.size(); ++i)
        palette->Colors[i] = {GifByteType(qRed(colours[i])), GifByteType(qGreen(colours[i])),
                              GifByteType(qBlue(colours[i]))};

    QByteArray bytes;
    int error = 0;
    GifFileType *file = EGifOpen(&bytes, appendToBytes, &error);
    if (!file)
        throw BuildError(QString::fromLatin1(GifErrorString(error)));
    const int width = indexed.width();
    bool ok = EGifPutScreenDesc(file, width, indexed.height(), 8, 0, palette.get()) == GIF_OK &&
              EGifPutImageDesc(file, 0, 0, width, indexed.height(), false, nullptr) == GIF_OK;
    for (int y = 0; ok && y < indexed.height(); ++y)
        ok = EGifPutLine(file, const_cast<GifPixelType *>(indexed.constScanLine(y)), width) == GIF_OK;
    const bool closed = EGifCloseFile(file, &error) == GIF_OK;
    if (!ok || !closed)
        throw BuildError(u"the picture cannot be written as GIF"_s);
    return bytes;
}

void PictureFolder::write(const QString &name, const QImage &picture) const
{
    const QString path = QDir::cleanPath(m_root + u'/' + name);
    m_paths << path;
    const QByteArray format = QFileInfo(name).suffix().toLatin1();
    const QByteArray bytes = format == "gif" ? encodeGif(picture) : encodeByQt(picture, format);

    QFile present(path);
    if (present.size() == bytes.size() && present.open(QIODevice::ReadOnly) && present.readAll() == bytes) {
        ++m_unchanged;
        return;
    }
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw BuildError(u"%1: %2"_s.arg(path, file.errorString()));
    ++m_written;
}

int PictureFolder::removeOthers() const
{
    QSet<QString> folders;
    for (const QString &path : std::as_const(m_paths))
        folders << QFileInfo(path).path();
    int removed = 0;
    for (const QString &folder : std::as_const(folders)) {
        for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files)) {
            if (!m_paths.contains(file.filePath()) && QFile::remove(file.filePath()))
                ++removed;
        }
    }
    return removed;
}
