#include "browsers/geneticcodechart.h"

#include <QHash>
#include <QPainter>

namespace {

constexpr int Letters = 4;
constexpr const char *Order = "UCAG"; // the customary order of the bases
constexpr double Side = 18;           // of the strips of letters, logical pixels

// One letter an amino acid, "*" for stop; the third letter of the codon changes fastest, the first slowest.
constexpr const char *StandardCode = "FFLLSSSSYY**CC*WLLLLPPPPHHQQRRRRIIIMTTTTNNKKSSRRVVVVAAAADDEEGGGG";

QString shortName(char letter)
{
    static const QHash<char, QString> names{
        {'A', "Ala"}, {'R', "Arg"}, {'N', "Asn"}, {'D', "Asp"}, {'C', "Cys"}, {'Q', "Gln"}, {'E', "Glu"},
        {'G', "Gly"}, {'H', "His"}, {'I', "Ile"}, {'L', "Leu"}, {'K', "Lys"}, {'M', "Met"}, {'F', "Phe"},
        {'P', "Pro"}, {'S', "Ser"}, {'T', "Thr"}, {'W', "Trp"}, {'Y', "Tyr"}, {'V', "Val"}, {'*', "Stop"}};
    return names.value(letter);
}

char aminoAcid(int first, int second, int third)
{
    return StandardCode[(first * Letters + second) * Letters + third];
}

} // namespace

GeneticCodeChart::GeneticCodeChart(QWidget *parent) : QWidget(parent)
{
    setAccessibleName(tr("Table of the standard genetic code"));
}

// A field that begins at line @p firstAndThird of sixteen, in column @p second, @p height lines high.
QRectF GeneticCodeChart::cell(double firstAndThird, int second, double height) const
{
    const double columnWidth = (width() - 1 - 2 * Side) / Letters;
    const double lineHeight = (this->height() - 1 - Side) / (Letters * Letters);
    return {Side + second * columnWidth, Side + firstAndThird * lineHeight, columnWidth, height * lineHeight};
}

void GeneticCodeChart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.translate(0.5, 0.5);
    paintLetters(painter);
    for (int first = 0; first < Letters; ++first) {
        for (int second = 0; second < Letters; ++second)
            paintBox(painter, first, second);
    }
}

void GeneticCodeChart::paintLetters(QPainter &painter) const
{
    QFont bold = font();
    bold.setBold(true);
    painter.setPen(palette().color(QPalette::WindowText));
    for (int letter = 0; letter < Letters; ++letter) {
        const QString text{QLatin1Char(Order[letter])};
        painter.setFont(bold);
        QRectF above = cell(0, letter, 1);
        above.moveBottom(Side);
        painter.drawText(above, Qt::AlignCenter, text);
        QRectF left = cell(Letters * letter, 0, Letters);
        left.setLeft(0);
        left.setWidth(Side);
        painter.drawText(left, Qt::AlignCenter, text);
        painter.setFont(font());
        for (int first = 0; first < Letters; ++first) {
            QRectF right = cell(Letters * first + letter, Letters, 1);
            right.setWidth(Side);
            painter.drawText(right, Qt::AlignCenter, text);
        }
    }
}

// The four codons that share their first two letters; neighbours of one name lie in one field.
void GeneticCodeChart::paintBox(QPainter &painter, int first, int second) const
{
    painter.setFont(font());
    for (int third = 0, next = 0; third < Letters; third = next) {
        const char letter = aminoAcid(first, second, third);
        for (next = third; next < Letters && aminoAcid(first, second, next) == letter;)
            ++next;
        const QRectF field = cell(Letters * first + third, second, next - third);
        painter.fillRect(field, palette().color(letter == '*' ? QPalette::AlternateBase : QPalette::Base));
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(field, Qt::AlignCenter, shortName(letter));
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawRect(field);
    }
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.6F);
    painter.setPen(line);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cell(Letters * first, second, Letters));
}
