#include "tools/make_pictures/atomlabel.h"

#include <GraphMol/Atom.h>

void setLabel(RDKit::Atom &atom, const QByteArray &label, const QByteArray &leftwards)
{
    atom.setProp(RDKit::common_properties::_displayLabel, label.toStdString());
    atom.setProp(RDKit::common_properties::_displayLabelW, leftwards.toStdString());
}

void labelWithHydrogens(RDKit::Atom &atom)
{
    const QByteArray symbol = QByteArray::fromStdString(atom.getSymbol());
    QByteArray hydrogens = atom.getTotalNumHs() > 0 ? "H" : "";
    if (atom.getTotalNumHs() > 1)
        hydrogens += "<sub>" + QByteArray::number(atom.getTotalNumHs()) + "</sub>";
    QByteArray charge;
    if (atom.getFormalCharge() != 0)
        charge = atom.getFormalCharge() > 0 ? "<sup>+</sup>" : "<sup>-</sup>";
    setLabel(atom, symbol + hydrogens + charge,
             atom.getDegree() == 1 ? charge + hydrogens + symbol : hydrogens + symbol + charge);
}
