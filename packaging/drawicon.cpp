// draw_icon <svg> <size> <png>: draws the program's icon in one size, in pixels. Status 1 and a message if it
// cannot.

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char *argv[])
{
    const int size = argc == 4 ? atoi(argv[2]) : 0;
    QSvgRenderer icon(argc == 4 ? QString::fromLocal8Bit(argv[1]) : QString());
    if (!icon.isValid() || size < 1) {
        std::fputs("draw_icon: wants an SVG file, a size and a PNG file\n", stderr);
        return 1;
    }
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.render(&painter);
    painter.end();
    if (!image.save(QString::fromLocal8Bit(argv[3]))) {
        std::fprintf(stderr, "draw_icon: cannot write %s\n", argv[3]);
        return 1;
    }
    return 0;
}
