#include "tools/make_pictures/formula.h"

#include <QPainter>
#include <QSvgRenderer>

#include <GraphMol/MolDraw2D/MolDraw2DSVG.h>
#include <GraphMol/RWMol.h>
#include <GraphMol/SmilesParse/SmilesParse.h>

#include <algorithm>

namespace {

/// Draws the atom as @p label, or as @p leftwards where its bond is on its right.
void setLabel(RDKit::Atom &atom, const std::string &label, const std::string &leftwards)
{
    atom.setProp(RDKit::common_properties::_displayLabel, label);
    atom.setProp(RDKit::common_properties::_displayLabelW, leftwards);
}

bool isPhenylOnPhosphorus(const RDKit::RWMol &molecule, const RDKit::Atom *atom)
{
    const bool ring = atom->getIsAromatic() && molecule.getRingInfo()->numAtomRings(atom->getIdx()) == 1;
    bool onPhosphorus = false;
    for (const RDKit::Atom *neighbour : molecule.atomNeighbors(atom))
        onPhosphorus = onPhosphorus || neighbour->getAtomicNum() == 15;
    return ring && onPhosphorus;
}

/// Writes phenyl groups on phosphorus as "Ph": they never react and would fill the picture.
void shortenPhenyls(RDKit::RWMol &molecule)
{
    std::vector<unsigned> removed;
    for (RDKit::Atom *ipso : molecule.atoms()) {
        if (!isPhenylOnPhosphorus(molecule, ipso))
            continue;
        for (const auto &ring : molecule.getRingInfo()->atomRings()) {
            if (std::find(ring.begin(), ring.end(), int(ipso->getIdx())) == ring.end())
                continue;
            for (const int i : ring) {
                if (i != int(ipso->getIdx()))
                    removed.push_back(unsigned(i));
            }
        }
        ipso->setIsAromatic(false);
        setLabel(*ipso, "Ph", "Ph");
    }
    molecule.beginBatchEdit();
    for (const unsigned i : removed)
        molecule.removeAtom(i);
    molecule.commitBatchEdit();
}

/// RDKit counts the electrons that a bare metal atom or ion lacks for a closed shell as radicals. Nobody
/// writes them.
void dropMetalRadicals(RDKit::RWMol &molecule)
{
    for (RDKit::Atom *atom : molecule.atoms()) {
        const int z = atom->getAtomicNum();
        const bool metal = (z >= 11 && z <= 13) || (z >= 19 && z <= 31) || (z >= 37 && z <= 50) || z >= 55;
        if (metal)
            atom->setNumRadicalElectrons(0);
    }
}

/// RDKit would write the sign between the atom and a bond on its right, where it looks like part of the bond.
/// Here it comes first.
void clearNegativeEnds(RDKit::RWMol &molecule)
{
    for (RDKit::Atom *atom : molecule.atoms()) {
        if (atom->getFormalCharge() != -1 || atom->getDegree() != 1)
            continue;
        const unsigned count = atom->getTotalNumHs();
        const std::string number = count > 1 ? "<sub>" + std::to_string(count) + "</sub>" : "";
        const std::string hydrogens = count > 0 ? "H" + number : "";
        setLabel(*atom, atom->getSymbol() + hydrogens + "<sup>-</sup>",
                 "<sup>-</sup>" + hydrogens + atom->getSymbol());
    }
}

} // namespace

std::optional<Formula> Formula::fromSmiles(const QString &smiles, const Style &style)
{
    std::unique_ptr<RDKit::RWMol> molecule;
    try {
        RDKit::SmilesParserParams parameters;
        parameters.removeHs = false;
        molecule.reset(RDKit::SmilesToMol(smiles.toStdString(), parameters));
    } catch (const std::exception &) { // RDKit throws a different type for each fault
        return std::nullopt;
    }
    if (!molecule || molecule->getNumAtoms() == 0)
        return std::nullopt;
    shortenPhenyls(*molecule);
    dropMetalRadicals(*molecule);
    clearNegativeEnds(*molecule);
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
    options.additionalAtomLabelPadding = 0.12;
    options.bondLineWidth = 1.5;
    options.explicitMethyl = true;
    options.atomLabelDeuteriumTritium = true;
    options.clearBackground = false;
    options.includeMetadata = false;
    options.highlightColour = {1, 0.824, 0.4}; // of the discs under marked atoms
    options.highlightRadius = 0.45;
    options.atomHighlightsAreCircles = true;
    RDKit::assignBWPalette(options.atomColourPalette);

    std::vector<int> marked;
    for (RDKit::Atom *atom : molecule.atoms()) {
        if (atom->getAtomMapNum() == 0)
            continue;
        marked.push_back(int(atom->getIdx()));
        atom->setAtomMapNum(0);
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
