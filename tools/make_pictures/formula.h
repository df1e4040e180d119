// Structural formulas, laid out and drawn by RDKit.
#pragma once

#include <QPointF>
#include <QSizeF>
#include <QString>

#include <memory>
#include <optional>

class QPainter;
class QSvgRenderer;

namespace RDKit {
class RWMol;
}

/// One structural formula, ready to paint: black lines, no background, methyl groups written out, D for
/// deuterium.
class Formula
{
public:
    /// The style fixes the scale, so that formulas of one kind of picture can be compared: a bond of 1.5 Å is
    /// 1.5 × pixelsPerAngstrom long.
    struct Style
    {
        double pixelsPerAngstrom;
        int fontPixels;
    };

    /// Nothing if @p smiles is not a structure. It may bring labels and coordinates as CXSMILES; atoms with a
    /// number, as in "[CH3:1]", get a coloured disc. Hydrogens that are written as atoms are drawn, phenyl
    /// groups on phosphorus are written "Ph".
    static std::optional<Formula> fromSmiles(const QString &smiles, const Style &style);

    /// Pixels, with the margin that the labels need.
    QSizeF size() const;

    void paint(QPainter &painter, QPointF topLeft) const;

private:
    Formula(RDKit::RWMol &molecule, const Style &style);

    std::shared_ptr<QSvgRenderer> m_drawing;
};
