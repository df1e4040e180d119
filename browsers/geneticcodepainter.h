#pragma once

#include <QFont>
#include <QPen>
#include <QRectF>
#include <QString>
#include <functional>

class QPainter;

/// Paints the standard genetic code as a table, for the pane and for the reports: the first letter of the
/// codon at the left, the second above, the third at the right.
class GeneticCodePainter final
{
public:
    struct Look
    {
        QFont font;
        double margin; ///< for the letters around the table, in the painter's units
        QColor letters;
        QColor names;
        QPen fieldLine;
        QPen boxLine; ///< around the codons that share their first two letters
        std::function<QColor(const QString &name)> background;
        bool showsCodons; ///< each beside its name, AUG in bold; else equal neighbours share a field
    };

    GeneticCodePainter(const QRectF &area, Look look) : m_area(area), m_look(std::move(look)) {}

    void paint(QPainter &painter) const;

    /// The amino acid of @p codon by its code of three letters, or "Stop"; empty if it is not a codon.
    static QString nameOf(const QString &codon);

private:
    void paintLetters(QPainter &painter) const;
    void paintBox(QPainter &painter, int first, int second) const;
    void paintField(QPainter &painter, const QRectF &field, const QString &codon) const;

    QRectF cell(double line, int column, double height) const;

    QRectF m_area;
    Look m_look;
};
