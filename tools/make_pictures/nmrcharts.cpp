#include "tools/make_pictures/kinds.h"

#include "charts/chartgeometry.h"
#include "tools/make_pictures/formula.h"
#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/picturefolder.h"
#include "tools/make_pictures/shiftaxis.h"
#include "tools/tables/table.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using namespace ChartGeometry;

/// What differs between the two nuclei.
struct Nucleus
{
    const char *symbol; ///< as the overview table writes it
    const char *folder;
    const char *table;
    const char *motifColumn;
    const char *notes;
    double lowest; ///< the whole scale, in ppm
    double highest;
};

constexpr Nucleus Proton{"1H", "nmr/1h", "/drawing/nmr_1h.tsv", "motif", "/notes/RMN1Hspectro.tsv", -1, 17};
constexpr Nucleus Carbon{"13C", "nmr/13c", "/drawing/nmr_13c.tsv", "motif2", "/notes/RMN13Cspectro.tsv",
                         -30,   250};

/// From the first number of observations on, the range is a bar; below the second, it runs from the lowest to
/// the highest shift. The data keep the ends and the median of a motif, not its single values.
constexpr int FewestForBar = 20;
constexpr int ExtremesOnly = 8;

/// What the labels in the structures mean, in the order of the legend.
struct Label
{
    const char *pattern;
    const char *meaning;
};

constexpr std::array Labels{
    Label{R"(R(?!'))", "R carbon group"},
    Label{"R'", "R' any group or H"},
    Label{"Ar", "Ar aromatic ring"},
    Label{"Hal", "Hal halogen"},
    Label{"X", "X any group"},
    Label{"Het", "Het heteroaromatic ring"},
};

struct Motif
{
    int row = 0;
    QString name;
    QString group;
    QString structure; ///< CXSMILES, the observed atoms numbered 1
    QString lowText;   ///< as the table gives it, with its number of decimals
    QString typicalText;
    QString highText;
    ShiftRange range;
    int observations = 0; ///< 0: general correlation values
    QString remark;       ///< what narrows or qualifies the range

    bool isOverview() const { return group == "Overview"_L1; }
};

QString minusSign(QString text)
{
    return text.replace(u'-', u"−"_s);
}

/// The parts of a note that the chart does not show anyway.
QString remarkOf(const QString &note)
{
    static const QRegularExpression known(
        u"^(percentiles|min / median|few data|overview row|[0-9]+ outlier|[0-9]+ value\\(s\\)|narrowed: )"_s);
    QStringList parts;
    for (const QString &part : note.split(u"; "_s)) {
        if (part.startsWith("narrowed: "_L1))
            parts << part.mid(10);
        else if (!part.contains(known))
            parts << part;
    }
    QString remark = parts.join(u"; "_s);
    if (!remark.isEmpty())
        remark[0] = remark[0].toUpper();
    return remark;
}

QList<Motif> readMotifs(const Nucleus &nucleus, const QString &data, const Table &table)
{
    const Table notes = Table::read(data + QString::fromLatin1(nucleus.notes));
    QList<Motif> motifs;
    for (int row = 0; row < table.rowCount(); ++row) {
        Motif motif;
        motif.row = row;
        motif.name = table.cell(row, nucleus.motifColumn);
        motif.name.replace(QLatin1Char('+'), u"⁺"_s);
        motif.group = table.cell(row, "group");
        motif.structure = table.cell(row, "structure");
        motif.lowText = minusSign(table.cell(row, "low"));
        motif.typicalText = minusSign(table.cell(row, "typical"));
        motif.highText = minusSign(table.cell(row, "high"));
        motif.range.low = table.number(row, "low");
        motif.range.high = table.number(row, "high");
        if (!motif.isOverview())
            motif.range.typical = table.number(row, "typical");
        if (!table.cell(row, "n").isEmpty())
            motif.observations = int(table.number(row, "n"));
        motif.range.bar = motif.observations >= FewestForBar;
        if (!motif.isOverview() &&
            !(motif.range.low <= motif.range.typical && motif.range.typical <= motif.range.high))
            table.fail(row, u"the typical shift is outside its range"_s);
        if (const int note = notes.find("row", QString::number(row + 1)); note >= 0)
            motif.remark = remarkOf(notes.cell(note, "note"));
        motifs << motif;
    }
    return motifs;
}

QString basis(const Motif &motif)
{
    if (motif.observations == 0)
        return u"general correlation values, not from a set of spectra"_s;
    if (motif.observations < ExtremesOnly)
        return u"lowest, median and highest of %1 observations"_s.arg(motif.observations);
    if (!motif.range.bar)
        return u"ends and median of %1 observations, too few for a bar"_s.arg(motif.observations);
    return u"2.5 to 97.5 percentile of %1 observations"_s.arg(motif.observations);
}

/// The labels that the structure has, with their meaning.
QString legend(const QString &structure)
{
    const QString labels = structure.section(QLatin1Char('$'), 1, 1);
    QStringList meanings;
    for (const Label &label : Labels) {
        if (labels.contains(QRegularExpression(QString::fromLatin1(label.pattern))))
            meanings << QString::fromLatin1(label.meaning);
    }
    return meanings.join(u", "_s);
}

/// Paints lines of formula text and returns the y below the last one.
double paintFormulaLines(QPainter &painter, const QString &text, int pixels, bool bold, QRectF place)
{
    const QStringList lines = wrapped(text, textFont(pixels, bold), int(place.width()));
    const double height = pixels * 1.3;
    double baseline = place.center().y() - (lines.size() - 1) * height / 2 + pixels * 0.35;
    for (const QString &line : lines) {
        ScriptText::formula(line, pixels, bold).paint(painter, place.left(), baseline);
        baseline += height;
    }
    return place.top() + lines.size() * height;
}

/// Paints the motif on the left and its values on the right.
void paintHead(QPainter &painter, const Motif &motif, const Formula &formula, double height)
{
    const QSizeF size = formula.size();
    formula.paint(
        painter, {std::max(4.0, (300 - size.width()) / 2), std::max(2.0, (height - 14 - size.height()) / 2)});

    setType(painter, SoftInk, 10);
    painter.drawText(QRectF(0, height - 14, 310, 14), Qt::AlignCenter, legend(motif.structure));

    const QRectF texts(316, 10, Width - 316 - 8, height - 10);
    painter.setPen(Ink);
    const double lines = wrapped(motif.name, textFont(14, true), int(texts.width())).size();
    paintFormulaLines(painter, motif.name, 14, true,
                      QRectF(texts.left(), texts.top(), texts.width(), lines * 19));
    double y = texts.top() + lines * 19 + 34;
    setType(painter, classColour(motif.group).darker(115), 28, true);
    painter.drawText(QPointF(texts.left(), y), u"δ %1"_s.arg(motif.typicalText));
    const double wide = QFontMetricsF(painter.font()).horizontalAdvance(u"δ %1 "_s.arg(motif.typicalText));
    painter.setFont(textFont(14));
    painter.drawText(QPointF(texts.left() + wide, y), u"ppm (typical)"_s);
    y += 24;
    painter.setPen(Ink);
    painter.drawText(QPointF(texts.left(), y), u"Range %1 to %2 ppm"_s.arg(motif.lowText, motif.highText));
    setType(painter, SoftInk, 11);
    QStringList small = wrapped(basis(motif), painter.font(), int(texts.width()));
    if (!motif.remark.isEmpty())
        small += wrapped(motif.remark, painter.font(), int(texts.width()));
    for (const QString &line : small)
        painter.drawText(QPointF(texts.left(), y += 16), line);
}

/// Paints the whole scale of the nucleus, with the range and the part that is enlarged below.
void paintWholeScale(QPainter &painter, const Nucleus &nucleus, const Motif &motif, const ShiftAxis &detail,
                     double y)
{
    const ShiftAxis whole(nucleus.highest, nucleus.lowest, 14, Width - 76);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tint(Grid, 0.7));
    const double left = whole.abscissa(detail.high());
    painter.drawRect(QRectF(left, y, whole.abscissa(detail.low()) - left, 16));
    motif.range.paint(painter, whole, y + 4, 8, classColour(motif.group));
    whole.paint(painter, y + 16);
}

/// The most motifs of a group that share a chart.
constexpr int RowsOfGroup = 7;

QList<Motif> neighboursInGroup(const QList<Motif> &motifs, const Motif &motif)
{
    QList<Motif> group;
    qsizetype place = 0;
    for (const Motif &other : motifs) {
        if (other.group != motif.group)
            continue;
        if (other.row == motif.row)
            place = group.size();
        group << other;
    }
    const qsizetype first =
        std::clamp<qsizetype>(place - RowsOfGroup / 2, 0, std::max<qsizetype>(0, group.size() - RowsOfGroup));
    return group.mid(first, RowsOfGroup);
}

/// The columns beside the bars: names on the left, numbers of observations on the right.
constexpr int NameLeft = 10;
constexpr int BarsLeft = 244;
constexpr int BarsRight = 582;
constexpr int CountRight = Width - 12;

void paintCount(QPainter &painter, int observations, double top, double height)
{
    setType(painter, SoftInk, 11);
    painter.drawText(QRectF(BarsRight, top, CountRight - BarsRight, height),
                     Qt::AlignRight | Qt::AlignVCenter,
                     observations > 0 ? QString::number(observations) : u"–"_s);
}

void paintColumnTitles(QPainter &painter, const QString &title, double y)
{
    painter.setPen(Ink);
    ScriptText::formula(title, 12, true).paint(painter, NameLeft, y);
    setType(painter, SoftInk, 11);
    painter.drawText(QRectF(BarsRight, y - 12, CountRight - BarsRight, 16), Qt::AlignRight | Qt::AlignVCenter,
                     u"n"_s);
}

QImage drawMotifChart(const Nucleus &nucleus, const QList<Motif> &motifs, const Motif &motif,
                      const Formula &formula)
{
    constexpr double HeadHeight = 164;
    constexpr double ScaleTop = 170;
    constexpr double RowsTop = 236;
    constexpr double RowHeight = 25;
    const QList<Motif> rows = neighboursInGroup(motifs, motif);
    const auto low = std::min_element(
        rows.begin(), rows.end(), [](const Motif &a, const Motif &b) { return a.range.low < b.range.low; });
    const auto high = std::max_element(
        rows.begin(), rows.end(), [](const Motif &a, const Motif &b) { return a.range.high < b.range.high; });
    const ShiftAxis axis = ShiftAxis::around(low->range.low, high->range.high, BarsLeft, BarsRight);

    const double rowsBottom = RowsTop + rows.size() * RowHeight;
    QImage picture = blankPicture(Width, int(rowsBottom) + 26);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    paintHead(painter, motif, formula, HeadHeight);
    paintWholeScale(painter, nucleus, motif, axis, ScaleTop);
    paintColumnTitles(painter, motif.group, RowsTop - 8);
    const QColor colour = classColour(motif.group);
    for (int i = 0; i < rows.size(); ++i) {
        const double top = RowsTop + i * RowHeight;
        const bool current = rows[i].row == motif.row;
        if (current)
            painter.fillRect(QRectF(4, top, Width - 8, RowHeight), tint(colour, 0.12));
    }
    axis.paintGrid(painter, RowsTop, rowsBottom);
    for (int i = 0; i < rows.size(); ++i) {
        const double top = RowsTop + i * RowHeight;
        const bool current = rows[i].row == motif.row;
        rows[i].range.paint(painter, axis, top + 7, RowHeight - 14, current ? colour : tint(colour, 0.5));
        painter.setPen(Ink);
        const QRectF place(NameLeft, top, BarsLeft - NameLeft - 16, RowHeight);
        const bool wide = wrapped(rows[i].name, textFont(11, current), int(place.width())).size() > 1;
        paintFormulaLines(painter, rows[i].name, wide ? 10 : 11, current, place);
        paintCount(painter, rows[i].observations, top, RowHeight);
    }
    axis.paint(painter, rowsBottom);
    return picture;
}

/// Paints one bar for each class of the overview, on the whole scale.
QImage drawOverview(const Table &classes, const QList<int> &rows, const Motif &overview)
{
    constexpr double RowsTop = 48;
    const double rowHeight = std::min(24.0, (VisibleHeight - RowsTop - 26) / double(rows.size()));
    const double rowsBottom = RowsTop + rows.size() * rowHeight;
    double low = overview.range.low;
    double high = overview.range.high;
    for (const int row : rows) {
        low = std::min(low, classes.number(row, "low"));
        high = std::max(high, classes.number(row, "high"));
    }
    const ShiftAxis axis = ShiftAxis::around(low, high, BarsLeft - 30, BarsRight);

    QImage picture = blankPicture(Width, int(std::ceil(rowsBottom)) + 26);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    setType(painter, SoftInk, 11);
    QString key = u"Bar: 2.5 to 97.5 percentile of n observations.  Mark: typical value (median)."_s;
    if (std::any_of(rows.begin(), rows.end(),
                    [&](int row) { return classes.number(row, "n") < FewestForBar; }))
        key += u"  Line: below %1 observations."_s.arg(FewestForBar);
    painter.drawText(QPointF(NameLeft, 18), key);
    paintColumnTitles(painter, {}, RowsTop - 6);
    axis.paintGrid(painter, RowsTop, rowsBottom);
    for (int i = 0; i < rows.size(); ++i) {
        const double top = RowsTop + i * rowHeight;
        const QString label = classes.cell(rows[i], "label");
        const ShiftRange range{classes.number(rows[i], "low"), classes.number(rows[i], "typical"),
                               classes.number(rows[i], "high"), classes.number(rows[i], "n") >= FewestForBar};
        const double bar = std::min(11.0, rowHeight - 5);
        range.paint(painter, axis, top + (rowHeight - bar) / 2, bar, classColour(label));
        painter.setPen(Ink);
        paintFormulaLines(painter, label, 11, false, {NameLeft, top, BarsLeft - NameLeft - 36., rowHeight});
        paintCount(painter, int(classes.number(rows[i], "n")), top, rowHeight);
    }
    axis.paint(painter, rowsBottom);
    return picture;
}

QList<int> rowsOfOverview(const Table &classes, const Nucleus &nucleus, int position)
{
    QList<int> rows;
    for (int row = 0; row < classes.rowCount(); ++row) {
        if (classes.cell(row, "nucleus") == QLatin1String(nucleus.symbol) &&
            classes.cell(row, "chart_position") == QString::number(position))
            rows << row;
    }
    return rows;
}

void drawCharts(const Nucleus &nucleus, const QString &data, const PictureFolder &pictures)
{
    const Table table = Table::read(data + QString::fromLatin1(nucleus.table));
    const Table classes = Table::read(data + u"/drawing/nmr_overview.tsv"_s);

    const QList<Motif> motifs = readMotifs(nucleus, data, table);
    int overviews = 0;
    for (const Motif &motif : motifs) {
        const QString name = QString::fromLatin1(nucleus.folder) + u"/%1.gif"_s;
        if (motif.isOverview()) {
            const QList<int> rows = rowsOfOverview(classes, nucleus, ++overviews);
            if (rows.isEmpty() || overviews != motif.row + 1)
                table.fail(motif.row, u"an overview row without classes or below a motif row"_s);
            pictures.write(name.arg(999 + overviews), drawOverview(classes, rows, motif));
            continue;
        }
        const std::optional<Formula> formula = Formula::fromSmiles(motif.structure, {20, 13});
        if (!formula || !motif.structure.contains(":1]"_L1))
            table.fail(motif.row, u"\"%1\" is not a structure with a marked atom"_s.arg(motif.structure));
        pictures.write(name.arg(motif.row + 2 - overviews), drawMotifChart(nucleus, motifs, motif, *formula));
    }
}

} // namespace

void drawNmrCharts(const QString &data, const PictureFolder &pictures)
{
    drawCharts(Proton, data, pictures);
    drawCharts(Carbon, data, pictures);
}
