#include "tools/make_pictures/geneticcode.h"

#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/picturefolder.h"
#include "tools/tables/table.h"

#include <QFontMetricsF>
#include <QRegularExpression>

#include <array>

namespace {

constexpr char Bases[] = "UCAG"; // the usual order of the table

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

QColor colourOf(const QString &acid)
{
    for (const Property &property : Properties) {
        if (QString::fromLatin1(property.acids).split(QLatin1Char(' ')).contains(acid))
            return QColor(property.colour);
    }
    return Qt::white;
}

/// "Ala (A)" gives "Ala".
QString threeLetters(const Table &code, int row, const Table &acids)
{
    const QString name = code.cell(row, "aa");
    if (name == QLatin1String("Stop"))
        return name;
    const int acid = acids.find("aa", name);
    if (acid < 0)
        code.fail(row, QStringLiteral("no amino acid \"%1\"").arg(name));
    return acids.cell(acid, "cod").left(3);
}

/// Lengths of the table for a given size of type.
struct Layout
{
    explicit Layout(int type)
        : pixels(type), line(type * 7 / 5), box(QSizeF(type * 6.1, 4 * line + 6)), margin(type * 2),
          top(type * 3), size(int(margin * 2 + 4 * box.width()), int(top + 4 * box.height() + type * 2.4))
    {}

    int pixels;
    int line;
    QSizeF box; ///< of the four codons that differ in the third base only
    double margin;
    double top;
    QSize size;
};

/// The four codons of a box, each on the colour of its amino acid; the start codon is bold.
void paintBox(QPainter &painter, const Layout &layout, QPointF corner, const QString &start,
              const QHash<QString, QString> &codons)
{
    const double line = layout.box.height() / 4;
    for (int third = 0; third < 4; ++third) {
        const QString codon = start + QLatin1Char(Bases[third]);
        const QRectF place(corner + QPointF(0, third * line), QSizeF(layout.box.width(), line));
        painter.fillRect(place, colourOf(codons[codon]));
        painter.setPen(Ink);
        painter.setFont(textFont(layout.pixels, codon == QLatin1String("AUG")));
        painter.drawText(place.adjusted(layout.pixels * 0.4, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         codon);
        painter.drawText(place.adjusted(0, 0, -layout.pixels * 0.4, 0), Qt::AlignRight | Qt::AlignVCenter,
                         codons[codon]);
    }
    painter.setPen(QPen(Qt::white, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(corner, layout.box));
}

/// The bases around the table: first at the left, second above, third at the right.
void paintBases(QPainter &painter, const Layout &layout)
{
    painter.setPen(Ink);
    const double right = layout.margin + 4 * layout.box.width();
    for (int i = 0; i < 4; ++i) {
        const QString base{QLatin1Char(Bases[i])};
        painter.setFont(textFont(layout.pixels * 5 / 4, true));
        const double y = layout.top + i * layout.box.height();
        painter.drawText(QRectF(0, y, layout.margin, layout.box.height()), Qt::AlignCenter, base);
        painter.drawText(QRectF(layout.margin + i * layout.box.width(), layout.top - layout.pixels * 1.6,
                                layout.box.width(), layout.pixels * 1.5),
                         Qt::AlignCenter, base);
        painter.setFont(textFont(layout.pixels));
        for (int third = 0; third < 4; ++third)
            painter.drawText(
                QRectF(right, y + third * layout.box.height() / 4, layout.margin, layout.box.height() / 4),
                Qt::AlignCenter, QString(QLatin1Char(Bases[third])));
    }
    painter.setPen(SoftInk);
    painter.setFont(textFont(layout.pixels * 9 / 10));
    const QRectF above(2, 2, layout.size.width() - 4, layout.pixels * 1.4);
    painter.drawText(above, Qt::AlignLeft, QStringLiteral("1st base"));
    painter.drawText(above, Qt::AlignHCenter, QStringLiteral("2nd base"));
    painter.drawText(above, Qt::AlignRight, QStringLiteral("3rd base"));
}

void paintLegend(QPainter &painter, const Layout &layout)
{
    painter.setFont(textFont(layout.pixels * 9 / 10));
    const double y = layout.top + 4 * layout.box.height() + layout.pixels * 0.6;
    const double side = layout.pixels;
    double x = 6;
    for (const Property &property : Properties) {
        const QString name = QString::fromLatin1(property.name);
        painter.fillRect(QRectF(x, y, side, side), QColor(property.colour));
        painter.setPen(Ink);
        painter.drawText(QPointF(x + side + 4, y + side * 0.85), name);
        x += side + 4 + QFontMetricsF(painter.font()).horizontalAdvance(name) + side * 0.7;
    }
    painter.setFont(textFont(painter.font().pixelSize(), true));
    painter.drawText(QPointF(x, y + side * 0.85), QStringLiteral("AUG start"));
}

QImage drawTable(const QHash<QString, QString> &codons, int type)
{
    const Layout layout(type);
    QImage picture = blankPicture(layout.size.width(), layout.size.height());
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int first = 0; first < 4; ++first) {
        for (int second = 0; second < 4; ++second) {
            const QPointF corner(layout.margin + second * layout.box.width(),
                                 layout.top + first * layout.box.height());
            paintBox(painter, layout, corner, QString(QLatin1Char(Bases[first])) + QLatin1Char(Bases[second]),
                     codons);
        }
    }
    paintBases(painter, layout);
    paintLegend(painter, layout);
    return picture;
}

constexpr int ReportType = 15; // pixels

} // namespace

QHash<QString, QString> codonTable(const Table &code, const Table &acids)
{
    static const QRegularExpression form(QStringLiteral("^[UCAG]{3}$"));
    QHash<QString, QString> codons;
    for (int row = 0; row < code.rowCount(); ++row) {
        const QString acid = threeLetters(code, row, acids);
        for (int i = 1; i <= 6; ++i) {
            const QString codon = code.cell(row, QByteArray("c") + QByteArray::number(i));
            if (codon.isEmpty())
                continue;
            if (!form.match(codon).hasMatch())
                code.fail(row, QStringLiteral("\"%1\" is not a codon").arg(codon));
            if (codons.value(codon, acid) != acid)
                code.fail(row, QStringLiteral("%1 stands for %2 already").arg(codon, codons.value(codon)));
            codons.insert(codon, acid);
        }
    }
    if (codons.size() != 64)
        code.fail(code.rowCount() - 1, QStringLiteral("%1 of 64 codons in the table").arg(codons.size()));
    return codons;
}

void drawGeneticCode(const QString &data, const PictureFolder &pictures)
{
    const Table code = Table::read(data + QStringLiteral("/tables/Codegenetique.tsv"));
    const Table acids = Table::read(data + QStringLiteral("/tables/Acidesamines.tsv"));
    const QHash<QString, QString> codons = codonTable(code, acids);
    const QImage report = drawTable(codons, ReportType);
    pictures.write(QStringLiteral("img/gene_c.jpg"), report);
    pictures.write(QStringLiteral("img/gene_ng.jpg"), inGreys(report));
}
