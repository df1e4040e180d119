// draw_icons <folder> <format> <sizes> <svg>...: draws each icon in each of the sizes, in pixels with commas
// between, as <folder>/<name>-<size>.<format>. The format is one of Qt's, like png, or "argb": the bare
// pixels, premultiplied, row by row, four bytes each, which a program shows without reading them first.
// Status 1 and a message if it cannot.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

bool save(const QImage &image, const QString &path)
{
    if (!path.endsWith(QLatin1StringView(".argb")))
        return image.save(path);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) &&
           file.write(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes()) ==
               image.sizeInBytes() &&
           file.flush();
}

bool draw(QSvgRenderer &icon, int size, const QString &path)
{
    if (size < 1) {
        std::fputs("draw_icons: a size is a number of pixels\n", stderr);
        return false;
    }
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.render(&painter);
    painter.end();
    if (!save(image, path)) {
        std::fprintf(stderr, "draw_icons: cannot write %s\n", qPrintable(path));
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments(argv + 1, argv + argc);
    if (arguments.size() < 4) {
        std::fputs("draw_icons: wants a folder, a format, sizes and SVG files\n", stderr);
        return 1;
    }
    const QDir folder(arguments.takeFirst());
    const QString format = arguments.takeFirst();
    const QStringList sizes = arguments.takeFirst().split(u',');
    for (const QString &path : arguments) {
        QSvgRenderer icon(path);
        if (!icon.isValid()) {
            std::fprintf(stderr, "draw_icons: %s is no SVG drawing\n", qPrintable(path));
            return 1;
        }
        for (const QString &size : sizes) {
            const QString name = u"%1-%2.%3"_s.arg(QFileInfo(path).completeBaseName(), size, format);
            if (!draw(icon, size.toInt(), folder.filePath(name)))
                return 1;
        }
    }
    return 0;
}
