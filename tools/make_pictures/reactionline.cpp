#include "tools/make_pictures/reactionline.h"

#include "tools/make_pictures/painting.h"

#include <QFontMetricsF>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double SignMargin = 5; // left and right of a sign
constexpr double ArrowMargin = 9;
constexpr double LineGap = 6;
constexpr int ConditionsWidth = 150; // longer conditions are broken
constexpr double ShortestArrow = 34;

} // namespace

std::optional<ReactionLine> ReactionLine::layOut(const QString &smiles, const QString &conditions,
                                                 double width, const Formula::Style &style)
{
    const QStringList sides = smiles.split(u">>"_s);
    if (sides.size() != 2)
        return std::nullopt;
    ReactionLine reaction(style);
    QList<QList<Piece>> groups;
    if (!reaction.addSide(sides[0], groups))
        return std::nullopt;
    const qsizetype products = groups.size();
    if (!reaction.addSide(sides[1], groups))
        return std::nullopt;
    groups[products].prepend(reaction.arrow(conditions));
    reaction.breakLines(groups, width);
    return reaction;
}

ReactionLine::Piece ReactionLine::sign(const QString &text) const
{
    const QFontMetricsF metrics(textFont(m_style.fontPixels + 2));
    return {Kind::Sign, text, {}, metrics.horizontalAdvance(text) + 2 * SignMargin, metrics.height()};
}

ReactionLine::Piece ReactionLine::arrow(const QString &conditions) const
{
    const QFont font = textFont(m_style.fontPixels - 1);
    const QFontMetricsF metrics(font);
    double width = ShortestArrow;
    const QStringList lines =
        conditions.isEmpty() ? QStringList() : wrapped(conditions, font, ConditionsWidth);
    for (const QString &line : lines)
        width = std::max(width, metrics.horizontalAdvance(line) + 16);
    return {Kind::Arrow,
            lines.join(u'\n'),
            {},
            width + 2 * ArrowMargin,
            2 * (lines.size() * metrics.height() + 4)};
}

/// Adds a group for each different molecule: "+" unless it is the first, the number, the formula. Lines break
/// between groups only.
bool ReactionLine::addSide(const QString &side, QList<QList<Piece>> &groups) const
{
    const QStringList molecules = side.split(u'.');
    for (qsizetype i = 0; i < molecules.size(); ++i) {
        if (molecules.indexOf(molecules[i]) != i)
            continue;
        const std::optional<Formula> formula = Formula::fromSmiles(molecules[i], m_style);
        if (!formula)
            return false;
        QList<Piece> group;
        if (i > 0)
            group << sign(u"+"_s);
        if (const qsizetype count = molecules.count(molecules[i]); count > 1)
            group << sign(QString::number(count));
        group << Piece{Kind::Molecule, {}, formula, formula->size().width(), formula->size().height()};
        groups << group;
    }
    return true;
}

void ReactionLine::breakLines(const QList<QList<Piece>> &groups, double width)
{
    m_lines << Line();
    for (const QList<Piece> &group : groups) {
        double wide = 0;
        for (const Piece &piece : group)
            wide += piece.width;
        if (!m_lines.last().pieces.isEmpty() && m_lines.last().width + wide > width)
            m_lines << Line();
        Line &line = m_lines.last();
        line.pieces += group;
        line.width += wide;
        for (const Piece &piece : group)
            line.height = std::max(line.height, piece.height);
    }
}

double ReactionLine::width() const
{
    double width = 0;
    for (const Line &line : m_lines)
        width = std::max(width, line.width);
    return width;
}

double ReactionLine::height() const
{
    double height = LineGap * double(m_lines.size() - 1);
    for (const Line &line : m_lines)
        height += line.height;
    return height;
}

void ReactionLine::paint(QPainter &painter, double left, double top, bool centred) const
{
    for (const Line &line : m_lines) {
        double x = left + (centred ? (width() - line.width) / 2 : 0);
        for (const Piece &piece : line.pieces) {
            paintPiece(painter, piece, x, top + line.height / 2);
            x += piece.width;
        }
        top += line.height + LineGap;
    }
}

void ReactionLine::paintPiece(QPainter &painter, const Piece &piece, double x, double middle) const
{
    painter.setPen(QPen(Ink, 1.4));
    if (piece.kind == Kind::Molecule) {
        piece.formula->paint(painter, {x, middle - piece.height / 2});
        return;
    }
    if (piece.kind == Kind::Sign) {
        painter.setFont(textFont(m_style.fontPixels + 2));
        painter.drawText(QRectF(x, middle - piece.height / 2, piece.width, piece.height), Qt::AlignCenter,
                         piece.text);
        return;
    }
    const QPointF tip(x + piece.width - ArrowMargin, middle);
    painter.drawLine(QPointF(x + ArrowMargin, middle), tip);
    painter.setBrush(Ink);
    painter.drawPolygon(QPolygonF{tip, tip + QPointF(-8, -3.5), tip + QPointF(-8, 3.5)});
    if (piece.text.isEmpty())
        return;
    const double lineHeight = QFontMetricsF(textFont(m_style.fontPixels - 1)).height();
    const QStringList lines = piece.text.split(u'\n');
    double baseline = middle - 7 - lineHeight * double(lines.size() - 1);
    for (const QString &line : lines) {
        const ScriptText text = ScriptText::formula(line, m_style.fontPixels - 1);
        text.paint(painter, x + (piece.width - text.width()) / 2, baseline);
        baseline += lineHeight;
    }
}
