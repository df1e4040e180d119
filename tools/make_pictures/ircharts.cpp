#include "tools/make_pictures/kinds.h"

#include "charts/chartgeometry.h"
#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/picturefolder.h"
#include "tools/tables/table.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using namespace ChartGeometry;

constexpr int FirstRow = 16;
constexpr int RowHeight = 15;
constexpr int HeadingHeight = 19;
constexpr int AxisHeight = 44;
constexpr int LegendLine = 18;

struct Band
{
    QString text; ///< what absorbs, with the numbers and the intensity
    QString bond; ///< the class of bonds that gives the colour
    QColor colour;
    double low = 0; ///< cm-1
    double high = 0;
    int row = 0;
};

struct Section
{
    QString motif;
    QList<Band> bands;
};

/// "Alkenes, trans" under "Alkenes" becomes "trans"; the motif's own name is left out, any other name stays.
QString within(const QString &group, const QString &motif)
{
    if (group == motif)
        return {};
    return group.startsWith(motif + u", "_s) ? group.mid(motif.size() + 2) : group;
}

Band readBand(const Table &table, int row)
{
    const auto cell = [&](const char *column) { return table.cell(row, column); };
    Band band;
    band.low = table.number(row, "low");
    band.high = table.number(row, "high");
    band.bond = cell("bond_colour");
    band.colour = QColor(u'#' + cell("colour_rgb"));
    band.row = row;
    if (!band.colour.isValid() || band.low > band.high || band.low < 0 || band.high > 4000)
        table.fail(row, u"the band has no colour or is off the scale"_s);
    const QString group = within(cell("group"), cell("item"));
    band.text = (group.isEmpty() ? group : group + u": "_s) + cell("molec") + u", "_s + cell("wave") +
                u" "_s + cell("intensity");
    return band;
}

/// The motifs of the group in the order of the list, each with its bands.
QList<Section> readSections(const Table &motifs, const Table &bands, const QString &group)
{
    QList<Section> sections;
    for (int row = 0; row < motifs.rowCount(); ++row) {
        if (motifs.cell(row, "groupe") != group)
            continue;
        Section section{motifs.cell(row, "motif3"), {}};
        for (int band = 0; band < bands.rowCount(); ++band) {
            if (bands.cell(band, "groupe") == group && bands.cell(band, "item") == section.motif)
                section.bands << readBand(bands, band);
        }
        if (section.bands.isEmpty())
            motifs.fail(row, u"no bands for \"%1\""_s.arg(section.motif));
        sections << section;
    }
    return sections;
}

void paintGrid(QPainter &painter, double top, double bottom)
{
    for (int number = 4000; number >= 0; number -= 100) {
        const double x = std::round(irAbscissa(number)) + 0.5;
        const bool printed = number % 500 == 0;
        painter.setPen(QPen(Ink, 1));
        painter.drawLine(QPointF(x, top - (printed ? 8 : 4)), QPointF(x, top));
        if (!printed)
            continue;
        painter.setPen(QPen(Grid, 1));
        painter.drawLine(QPointF(x, top), QPointF(x, bottom));
    }
    painter.setPen(QPen(Ink, 1));
    painter.drawLine(QPointF(IrLeft, top + 0.5), QPointF(IrRight, top + 0.5));
}

/// Paints both scales with their numbers, so that the chart can be read without the window around it.
void paintAxis(QPainter &painter, double y)
{
    painter.setPen(QPen(Ink, 1));
    painter.setFont(textFont(11));
    painter.drawLine(QPointF(IrLeft, y + 0.5), QPointF(IrRight, y + 0.5));
    for (int number = 4000; number >= 0; number -= 500) {
        const double x = std::round(irAbscissa(number)) + 0.5;
        painter.drawLine(QPointF(x, y), QPointF(x, y + 5));
        painter.drawText(QRectF(x - 30, y + 6, 60, 14), Qt::AlignCenter, QString::number(number));
        if (number > 0)
            painter.drawText(QRectF(x - 30, y + 22, 60, 14), Qt::AlignCenter,
                             QString::number(1e4 / number, 'f', 2));
    }
    painter.drawText(QRectF(IrRight + 8, y + 6, Width - IrRight - 8, 14), Qt::AlignLeft, u"cm⁻¹"_s);
    painter.drawText(QRectF(IrRight - 40, y + 22, Width - IrRight + 38, 14), Qt::AlignRight, u"λ / µm"_s);
}

/// Paints the bar and its name, on the side with more room.
void paintBand(QPainter &painter, const Table &bands, const Band &band, double top)
{
    const double left = irAbscissa(band.high);
    const double right = std::max(left + 3, irAbscissa(band.low));
    painter.setPen(Qt::NoPen);
    painter.setBrush(band.colour);
    painter.drawRect(QRectF(left, top + 3, right - left, RowHeight - 6));

    constexpr int Gap = 6;
    const ScriptText text = ScriptText::formula(band.text, 11);
    const bool before = left - 4 > Width - 4 - right;
    const double x = before ? left - Gap - text.width() : right + Gap;
    if (x < 2 || x + text.width() > Width - 2)
        bands.fail(band.row, u"the chart has no room for \"%1\""_s.arg(band.text));
    painter.setPen(Ink);
    text.paint(painter, x, top + RowHeight - 4);
}

/// Explains the letters of the intensities and the colours of the bonds that occur.
double paintLegend(QPainter &painter, const QList<Section> &sections, double y)
{
    setType(painter, SoftInk, 11);
    painter.drawText(QPointF(IrLeft, y), u"s strong, m medium, w weak, v variable.  Colours: bond "
                                         "between carbon or hydrogen and"_s);
    y += LegendLine;
    double x = IrLeft;
    QStringList shown;
    for (const Section &section : sections) {
        for (const Band &band : section.bands) {
            if (shown.contains(band.bond))
                continue;
            shown << band.bond;
            const QString name = band.bond.simplified();
            const double width = QFontMetricsF(painter.font()).horizontalAdvance(name);
            if (x + 18 + width > Width - 6) {
                x = IrLeft;
                y += LegendLine;
            }
            painter.fillRect(QRectF(x, y - 9, 12, 9), band.colour);
            painter.setPen(Ink);
            painter.drawText(QPointF(x + 17, y), name);
            x += 17 + width + 18;
        }
    }
    return y;
}

/// The pane's scroll bar does not reach the end of a tall picture: of H pixels it shows 0.89 H + 84.
int scrollableHeight(double content)
{
    return int(std::ceil(std::max(content, (content - 80) / 0.89)));
}

QImage drawChart(const Table &bands, const QList<Section> &sections)
{
    double bottom = FirstRow + 2;
    for (const Section &section : sections)
        bottom += HeadingHeight + section.bands.size() * RowHeight;
    QImage picture = blankPicture(Width, int(bottom) + AxisHeight + 4 * LegendLine);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGrid(painter, FirstRow - 4, bottom);
    double y = FirstRow + 2;
    for (const Section &section : sections) {
        painter.fillRect(QRectF(0, y, Width, HeadingHeight - 3), QColor(0xee, 0xf1, 0xf4));
        setType(painter, Ink, 11, true);
        painter.drawText(QPointF(6, y + 12), section.motif);
        y += HeadingHeight;
        for (const Band &band : section.bands) {
            paintBand(painter, bands, band, y - 2);
            y += RowHeight;
        }
    }
    paintAxis(painter, bottom);
    const double end = paintLegend(painter, sections, bottom + AxisHeight + 12) + 6;
    painter.end();
    return picture.copy(0, 0, Width, scrollableHeight(end));
}

} // namespace

void drawIrCharts(const QString &data, const PictureFolder &pictures)
{
    const Table motifs = Table::read(data + u"/drawing/ir_charts.tsv"_s);
    const Table bands = Table::read(data + u"/drawing/ir_bands.tsv"_s);
    for (int group = 1; group <= 6; ++group) {
        const QString number = QString::number(group);
        pictures.write(u"ir/%1.gif"_s.arg(number), drawChart(bands, readSections(motifs, bands, number)));
    }
}
