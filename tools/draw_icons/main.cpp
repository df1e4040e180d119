// draw_icons <folder> <sizes> <svg>...: draws each icon in each of the sizes, in pixels with commas between,
// as <folder>/<name>-<size>.png. Status 1 and a message if it cannot.

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

bool draw(QSvgRenderer &icon, int size, const QString &path)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.render(&painter);
    painter.end();
    if (!image.save(path)) {
        std::fprintf(stderr, "draw_icons: cannot write %s\n", qPrintable(path));
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments(argv + 1, argv + argc);
    if (arguments.size() < 3) {
        std::fputs("draw_icons: wants a folder, sizes and SVG files\n", stderr);
        return 1;
    }
    const QDir folder(arguments.takeFirst());
    const QStringList sizes = arguments.takeFirst().split(u',');
    for (const QString &path : arguments) {
        QSvgRenderer icon(path);
        if (!icon.isValid()) {
            std::fprintf(stderr, "draw_icons: %s is no SVG drawing\n", qPrintable(path));
            return 1;
        }
        for (const QString &size : sizes) {
            const QString name = u"%1-%2.png"_s.arg(QFileInfo(path).completeBaseName(), size);
            if (!draw(icon, size.toInt(), folder.filePath(name)))
                return 1;
        }
    }
    return 0;
}
