#include "tools/make_pictures/kinds.h"

#include "charts/chartgeometry.h"
#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/picturefolder.h"
#include "tools/make_pictures/reactionline.h"
#include "tools/tables/table.h"

#include <QFontMetricsF>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using namespace ChartGeometry;

constexpr int Margin = 12;
constexpr int WordsLeft = 34; // of the words beside a step, after its number
constexpr int WordsWidth = 122;
constexpr int StepLeft = WordsLeft + WordsWidth + 14;
constexpr int StepGap = 8;

/// From the scale that is easiest to read to the smallest that is readable. Phenyl groups on phosphorus are
/// "Ph".
constexpr std::array Scales{Formula::Style{20, 14}, Formula::Style{17, 13}, Formula::Style{15, 12},
                            Formula::Style{13, 11}, Formula::Style{11, 10}, Formula::Style{9, 9}};

struct Step
{
    int row;
    QString smiles;
    QString words;
};

struct Reaction
{
    Step equation;
    QList<Step> steps;
};

/// The reactions in the order of their numbers, each with an equation and the steps 1, 2, 3 ... of its
/// mechanism.
QList<Reaction> readReactions(const Table &table)
{
    QList<Reaction> reactions;
    for (int row = 0; row < table.rowCount(); ++row) {
        const Step step{row, table.cell(row, "rxn_smiles"), table.cell(row, "words")};
        if (table.cell(row, "kind") == "equation"_L1) {
            reactions << Reaction{step, {}};
        } else {
            if (reactions.isEmpty() || int(table.number(row, "step")) != reactions.last().steps.size() + 1)
                table.fail(row, u"the step is out of order"_s);
            reactions.last().steps << step;
        }
        if (table.cell(row, "n") != QString::number(reactions.size()))
            table.fail(row, u"reaction number %1 is out of order"_s.arg(table.cell(row, "n")));
    }
    return reactions;
}

ReactionLine layOut(const Table &table, const Step &step, const QString &conditions, double width,
                    const Formula::Style &style)
{
    const std::optional<ReactionLine> line = ReactionLine::layOut(step.smiles, conditions, width, style);
    if (!line)
        table.fail(step.row, u"\"%1\" is not a reaction"_s.arg(step.smiles));
    return *line;
}

/// Takes the largest scale at which @p fits, and prefers easily readable ones that need no line break.
template<class Fits>
const Formula::Style *bestScale(Fits fits)
{
    constexpr double ReadsWell = 15; // pixels for an ångström
    for (const bool unbroken : {true, false}) {
        for (const Formula::Style &style : Scales) {
            if ((!unbroken || style.pixelsPerAngstrom >= ReadsWell) && fits(style, unbroken))
                return &style;
        }
    }
    return nullptr;
}

QImage drawEquation(const Table &table, const Step &equation)
{
    const auto lineAt = [&](const Formula::Style &style) {
        return layOut(table, equation, equation.words, Width - 2 * Margin, style);
    };
    const Formula::Style *style = bestScale([&](const Formula::Style &candidate, bool unbroken) {
        const ReactionLine line = lineAt(candidate);
        return line.width() <= Width - 2 * Margin && line.height() <= VisibleHeight - 2 * Margin &&
               !(unbroken && line.isBroken());
    });
    if (!style)
        table.fail(equation.row, u"the equation does not fit into its picture"_s);
    const ReactionLine line = lineAt(*style);
    QImage picture = blankPicture(Width, int(std::ceil(line.height())) + 2 * Margin);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    line.paint(painter, (Width - line.width()) / 2, Margin, true);
    return picture;
}

/// Paints a step, its number and words on the left.
struct StepBlock
{
    ReactionLine line;
    QStringList words;
    double height;
};

QFont wordsFont()
{
    return textFont(12);
}

QList<StepBlock> layOutSteps(const Table &table, const QList<Step> &steps, const Formula::Style &style)
{
    QList<StepBlock> blocks;
    const double lineHeight = QFontMetricsF(wordsFont()).height();
    for (const Step &step : steps) {
        const ReactionLine line = layOut(table, step, {}, Width - StepLeft - Margin, style);
        const QStringList words = wrapped(step.words, wordsFont(), WordsWidth);
        blocks << StepBlock{line, words, std::max(line.height(), words.size() * lineHeight)};
    }
    return blocks;
}

void paintBlock(QPainter &painter, const StepBlock &block, int number, double top)
{
    const double middle = top + block.height / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x3f, 0x74, 0xb5));
    painter.drawEllipse(QPointF(19, middle), 10, 10);
    setType(painter, Qt::white, 12, true);
    painter.drawText(QRectF(9, middle - 10, 20, 20), Qt::AlignCenter, QString::number(number));
    painter.setPen(Ink);
    const double lineHeight = QFontMetricsF(wordsFont()).height();
    double baseline = middle + lineHeight * (0.8 - double(block.words.size()) / 2);
    for (const QString &line : block.words) {
        ScriptText::formula(line, wordsFont().pixelSize()).paint(painter, WordsLeft, baseline);
        baseline += lineHeight;
    }
    block.line.paint(painter, StepLeft, middle - block.line.height() / 2, false);
}

double heightOf(const QList<StepBlock> &blocks)
{
    double height = 2 * Margin + StepGap * double(blocks.size() - 1);
    for (const StepBlock &block : blocks)
        height += block.height;
    return height;
}

QImage drawMechanism(const Table &table, const Reaction &reaction)
{
    const Formula::Style *style = bestScale([&](const Formula::Style &candidate, bool unbroken) {
        const QList<StepBlock> blocks = layOutSteps(table, reaction.steps, candidate);
        return heightOf(blocks) <= VisibleHeight &&
               std::none_of(blocks.begin(), blocks.end(), [&](const StepBlock &block) {
                   return block.line.width() > Width - StepLeft - Margin ||
                          (unbroken && block.line.isBroken());
               });
    });
    if (!style)
        table.fail(reaction.equation.row, u"the mechanism does not fit into its picture"_s);
    const QList<StepBlock> blocks = layOutSteps(table, reaction.steps, *style);
    QImage picture = blankPicture(Width, int(heightOf(blocks)));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    double top = Margin;
    for (int i = 0; i < blocks.size(); ++i) {
        if (i > 0) {
            painter.setPen(QPen(Grid, 1));
            painter.drawLine(QPointF(8, top - StepGap / 2.0), QPointF(Width - 8, top - StepGap / 2.0));
        }
        paintBlock(painter, blocks[i], i + 1, top);
        top += blocks[i].height + StepGap;
    }
    return picture;
}

} // namespace

void drawReactions(const QString &data, const PictureFolder &pictures)
{
    const Table table = Table::read(data + u"/drawing/structures_reactions.tsv"_s);
    const QList<Reaction> reactions = readReactions(table);
    for (int i = 0; i < reactions.size(); ++i) {
        if (reactions[i].steps.isEmpty())
            table.fail(reactions[i].equation.row, u"the reaction has no mechanism"_s);
        pictures.write(u"orga/%1.gif"_s.arg(i + 1), drawEquation(table, reactions[i].equation));
        pictures.write(u"orga/%1m.gif"_s.arg(i + 1), drawMechanism(table, reactions[i]));
    }
}
