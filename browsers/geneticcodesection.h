#pragma once

#include "widgets/controlarray.h"
#include "widgets/dropdown.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

class Desktop;
struct DataStore;
struct TableRow;

/// The section "Genetic code": from three letters to the amino acid, and from the amino acid to its codons.
///
/// One direction at a time, by the option.
class GeneticCodeSection final : public QWidget
{
    Q_OBJECT

public:
    GeneticCodeSection(DataStore &store, Desktop &desktop, QWidget *parent);

    /// The amino acid shown, chosen or found.
    TableRow currentRow() const;

private:
    void buildControls();
    void placeControls();
    void chooseDirection();
    void showAminoAcid();
    void showNote(const QString &note);
    void showCodons();

    DataStore &m_store;
    Desktop &m_desktop;
    ControlArray<QRadioButton> Option3{"Option3"};
    ControlArray<DropDown> Combo2{"Combo2"}; ///< letters 1 to 3 of the codon
    ControlArray<QLabel> Label18{"Label18"};
    DropDown *Comb2;
    QLabel *m_note;
    ControlArray<QLineEdit> tbm{"tbm"}; ///< 0 the amino acid, 1 to 6 its codons
};
