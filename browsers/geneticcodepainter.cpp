#include "browsers/geneticcodepainter.h"

#include <QHash>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int Letters = 4;
constexpr QStringView Order = u"UCAG"; // the customary order of the bases

// One letter for each amino acid, "*" for stop. The third letter of the codon changes fastest, the first
// slowest.
constexpr const char *StandardCode = "FFLLSSSSYY**CC*WLLLLPPPPHHQQRRRRIIIMTTTTNNKKSSRRVVVVAAAADDEEGGGG";

QString codonAt(int first, int second, int third)
{
    return QString(Order[first]) + Order[second] + Order[third];
}

} // namespace

QString GeneticCodePainter::nameOf(const QString &codon)
{
    static const QHash<char, QString> names{
        {'A', "Ala"}, {'R', "Arg"}, {'N', "Asn"}, {'D', "Asp"}, {'C', "Cys"}, {'Q', "Gln"}, {'E', "Glu"},
        {'G', "Gly"}, {'H', "His"}, {'I', "Ile"}, {'L', "Leu"}, {'K', "Lys"}, {'M', "Met"}, {'F', "Phe"},
        {'P', "Pro"}, {'S', "Ser"}, {'T', "Thr"}, {'W', "Trp"}, {'Y', "Tyr"}, {'V', "Val"}, {'*', "Stop"}};
    qsizetype place = 0;
    for (const QChar base : codon) {
        if (!Order.contains(base))
            return {};
        place = place * Letters + Order.indexOf(base);
    }
    return codon.size() == 3 ? names.value(StandardCode[place]) : QString();
}

void GeneticCodePainter::paint(QPainter &painter) const
{
    paintLetters(painter);
    for (int first = 0; first < Letters; ++first) {
        for (int second = 0; second < Letters; ++second)
            paintBox(painter, first, second);
    }
}

// At @p line of sixteen and @p column of four, @p height lines high.
QRectF GeneticCodePainter::cell(double line, int column, double height) const
{
    const double columnWidth = (m_area.width() - 2 * m_look.margin) / Letters;
    const double lineHeight = (m_area.height() - m_look.margin) / (Letters * Letters);
    return {m_area.left() + m_look.margin + column * columnWidth,
            m_area.top() + m_look.margin + line * lineHeight, columnWidth, height * lineHeight};
}

void GeneticCodePainter::paintLetters(QPainter &painter) const
{
    QFont bold = m_look.font;
    bold.setBold(true);
    painter.setPen(m_look.letters);
    for (int letter = 0; letter < Letters; ++letter) {
        const QString text{Order[letter]};
        painter.setFont(bold);
        QRectF above = cell(0, letter, 1);
        above.moveBottom(m_area.top() + m_look.margin);
        painter.drawText(above, Qt::AlignCenter, text);
        QRectF left = cell(Letters * letter, 0, Letters);
        left.setLeft(m_area.left());
        left.setWidth(m_look.margin);
        painter.drawText(left, Qt::AlignCenter, text);
        painter.setFont(m_look.font);
        for (int first = 0; first < Letters; ++first) {
            QRectF right = cell(Letters * first + letter, Letters, 1);
            right.setWidth(m_look.margin);
            painter.drawText(right, Qt::AlignCenter, text);
        }
    }
}

// The four codons that share their first two letters.
void GeneticCodePainter::paintBox(QPainter &painter, int first, int second) const
{
    for (int third = 0, next = 0; third < Letters; third = next) {
        const QString codon = codonAt(first, second, third);
        next = third + 1;
        while (!m_look.showsCodons && next < Letters && nameOf(codonAt(first, second, next)) == nameOf(codon))
            ++next;
        paintField(painter, cell(Letters * first + third, second, next - third), codon);
    }
    painter.setPen(m_look.boxLine);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cell(Letters * first, second, Letters));
}

void GeneticCodePainter::paintField(QPainter &painter, const QRectF &field, const QString &codon) const
{
    const QString name = nameOf(codon);
    painter.fillRect(field, m_look.background(name));
    QFont font = m_look.font;
    font.setBold(m_look.showsCodons && codon == u"AUG"_s);
    painter.setFont(font);
    painter.setPen(m_look.names);
    if (m_look.showsCodons) {
        const double margin = QFontMetricsF(font).averageCharWidth();
        const QRectF text = field.adjusted(margin, 0, -margin, 0);
        painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter, codon);
        painter.drawText(text, Qt::AlignRight | Qt::AlignVCenter, name);
    } else {
        painter.drawText(field, Qt::AlignCenter, name);
    }
    painter.setPen(m_look.fieldLine);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(field);
}
