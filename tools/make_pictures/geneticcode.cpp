#include "tools/make_pictures/kinds.h"

#include "browsers/geneticcodepainter.h"
#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/picturefolder.h"

#include <QFontMetricsF>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Property
{
    const char *name;
    const char *acids;
    QRgb colour;
};

// By the side chain at pH 7. The greys of these colours differ too.
constexpr std::array Properties{
    Property{"non polar", "Ala Gly Ile Leu Met Phe Pro Trp Val", 0xfdf0c4},
    Property{"polar", "Asn Cys Gln Ser Thr Tyr", 0xc5e6c0},
    Property{"acidic", "Asp Glu", 0xf0a79c},
    Property{"basic", "Arg His Lys", 0x86ade0},
    Property{"stop", "Stop", 0x8c9298},
};

constexpr int Width = 426;
constexpr int Height = 441;
constexpr int Type = 15;
constexpr int LegendTop = 414;
const QRectF TableArea(0, 15, Width, 390);

QColor colourOf(const QString &acid)
{
    for (const Property &property : Properties) {
        if (QLatin1StringView(property.acids).contains(acid))
            return QColor(property.colour);
    }
    return Qt::white;
}

void paintCaptions(QPainter &painter)
{
    setType(painter, SoftInk, Type * 9 / 10);
    const QRectF above(2, 2, Width - 4, Type * 1.4);
    painter.drawText(above, Qt::AlignLeft, u"1st base"_s);
    painter.drawText(above, Qt::AlignHCenter, u"2nd base"_s);
    painter.drawText(above, Qt::AlignRight, u"3rd base"_s);
}

void paintLegend(QPainter &painter)
{
    setType(painter, Ink, Type * 9 / 10);
    double x = 6;
    for (const Property &property : Properties) {
        const QString name = QString::fromLatin1(property.name);
        painter.fillRect(QRectF(x, LegendTop, Type, Type), QColor(property.colour));
        painter.drawText(QPointF(x + Type + 4, LegendTop + Type * 0.85), name);
        x += Type + 4 + QFontMetricsF(painter.font()).horizontalAdvance(name) + Type * 0.7;
    }
    painter.setFont(textFont(painter.font().pixelSize(), true));
    painter.drawText(QPointF(x, LegendTop + Type * 0.85), u"AUG start"_s);
}

QImage drawTable()
{
    QImage picture = blankPicture(Width, Height);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const GeneticCodePainter code(
        TableArea, {textFont(Type), 2 * Type, Ink, Ink, Qt::NoPen, QPen(Qt::white, 2), colourOf, true});
    code.paint(painter);
    paintCaptions(painter);
    paintLegend(painter);
    return picture;
}

} // namespace

void drawGeneticCode(const QString &, const PictureFolder &pictures)
{
    const QImage table = drawTable();
    pictures.write(u"img/gene_c.jpg"_s, table);
    pictures.write(u"img/gene_ng.jpg"_s, inGreys(table));
}
