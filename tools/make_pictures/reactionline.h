// One reaction in formulas, laid out like text: pieces on a line, with line breaks where it gets too long.
#pragma once

#include "tools/make_pictures/formula.h"

#include <QList>

class QPainter;

/// A reaction, "educts>>products" in SMILES, laid out for a given width in pixels. Equal molecules are drawn
/// once, after their number. The conditions are above the arrow.
class ReactionLine
{
public:
    /// Nothing if @p smiles is not a reaction of sound structures.
    static std::optional<ReactionLine> layOut(const QString &smiles, const QString &conditions, double width,
                                              const Formula::Style &style);

    double width() const;
    double height() const;
    bool isBroken() const { return m_lines.size() > 1; }

    /// Paints the lines with their left end at @p left, or centred on @p left + width() / 2 if @p centred.
    void paint(QPainter &painter, double left, double top, bool centred) const;

private:
    enum class Kind { Sign, Molecule, Arrow };

    struct Piece
    {
        Kind kind;
        QString text; ///< a sign, or the conditions
        std::optional<Formula> formula;
        double width = 0;
        double height = 0;
    };

    struct Line
    {
        QList<Piece> pieces;
        double width = 0;
        double height = 0;
    };

    explicit ReactionLine(const Formula::Style &style) : m_style(style) {}

    Piece sign(const QString &text) const;
    Piece arrow(const QString &conditions) const;
    bool addSide(const QString &side, QList<QList<Piece>> &groups) const;
    void breakLines(const QList<QList<Piece>> &groups, double width);
    void paintPiece(QPainter &painter, const Piece &piece, double x, double middle) const;

    Formula::Style m_style;
    QList<Line> m_lines;
};
