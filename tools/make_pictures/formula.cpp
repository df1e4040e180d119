#include "tools/make_pictures/formula.h"

#include <QPainter>
#include <QSvgRenderer>

#include <GraphMol/MolDraw2D/MolDraw2DSVG.h>
#include <GraphMol/RWMol.h>
#include <GraphMol/SmilesParse/SmilesParse.h>

namespace {

RDKit::DrawColour drawColour(const QColor &colour)
{
    return {colour.redF(), colour.greenF(), colour.blueF()};
}

} // namespace

std::optional<Formula> Formula::fromSmiles(const QString &smiles, const Style &style)
{
    std::unique_ptr<RDKit::RWMol> molecule;
    try {
        molecule.reset(RDKit::SmilesToMol(smiles.toStdString()));
    } catch (const std::exception &) { // RDKit has a type of its own for each fault
        return std::nullopt;
    }
    if (!molecule || molecule->getNumAtoms() == 0)
        return std::nullopt;
    return Formula(*molecule, style);
}

Formula::Formula(RDKit::RWMol &molecule, const Style &style)
{
    // Negative sizes: the drawing is as large as the molecule at the given scale.
    RDKit::MolDraw2DSVG drawer(-1, -1);
    RDKit::MolDrawOptions &options = drawer.drawOptions();
    options.scalingFactor = style.pixelsPerAngstrom;
    options.fixedFontSize = style.fontPixels;
    options.padding = 0.01;
    options.bondLineWidth = 1.5;
    options.explicitMethyl = true;
    options.dummiesAreAttachments = true;
    options.atomLabelDeuteriumTritium = true;
    options.clearBackground = false;
    options.includeMetadata = false;
    options.highlightColour = drawColour(style.mark);
    options.highlightRadius = 0.45;
    options.atomHighlightsAreCircles = true;
    RDKit::assignBWPalette(options.atomColourPalette);

    std::vector<int> marked;
    for (const RDKit::Atom *atom : molecule.atoms()) {
        if (atom->hasProp("marked"))
            marked.push_back(int(atom->getIdx()));
    }
    drawer.drawMolecule(molecule, &marked);
    drawer.finishDrawing();
    m_drawing = std::make_shared<QSvgRenderer>(QByteArray::fromStdString(drawer.getDrawingText()));
}

QSizeF Formula::size() const
{
    return m_drawing->viewBoxF().size();
}

void Formula::paint(QPainter &painter, QPointF topLeft) const
{
    m_drawing->render(&painter, QRectF(topLeft, size()));
}
