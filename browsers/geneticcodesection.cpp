#include "browsers/geneticcodesection.h"

#include "browsers/geneticcode.h"
#include "browsers/geneticcodechart.h"
#include "core/desktop.h"
#include "store/datastore.h"
#include "store/tablecatalog.h"
#include "widgets/rowlistmodel.h"

#include <QApplication>
#include <QGridLayout>

namespace {

constexpr int Columns = 3; // of the fields beside the chart
constexpr int ColumnWidth = 62;

} // namespace

GeneticCodeSection::GeneticCodeSection(DataStore &store, Desktop &desktop, QWidget *parent)
    : QWidget(parent), m_store(store), m_desktop(desktop)
{
    buildControls();
    placeControls();
    connect(&Option3[0], &QRadioButton::clicked, this, &GeneticCodeSection::searchByLetters);
    connect(&Option3[1], &QRadioButton::clicked, this, &GeneticCodeSection::searchByAminoAcid);
    // A choice by hand counts even if it is the same entry again.
    Combo2.connectEach(&QComboBox::activated, this, [this](int) { showAminoAcid(); });
    Combo2.connectEach(&QComboBox::currentIndexChanged, this, [this](int) { showAminoAcid(); });
    connect(Comb2, &QComboBox::activated, this, &GeneticCodeSection::showCodons);
    connect(Comb2, &QComboBox::currentIndexChanged, this, &GeneticCodeSection::showCodons);
    // Tab stops at both, for the fields of the one come between them. Focus on either takes the other out of
    // the Tab order.
    connect(qApp, &QApplication::focusChanged, this, [this] {
        for (const auto &[index, option] : Option3)
            option->setFocusPolicy(Qt::StrongFocus);
    });
    Option3[0].setChecked(true);
    searchByLetters();
}

void GeneticCodeSection::buildControls()
{
    Option3.add(0, new QRadioButton(QStringLiteral("Research by codon letters :"), this));
    Label18.add(0, new QLabel(QStringLiteral("Letter 1 :"), this));
    Label18.add(2, new QLabel(QStringLiteral("Letter 2 :"), this));
    Label18.add(1, new QLabel(QStringLiteral("Letter 3 :"), this));
    for (const int letter : {0, 1, 2}) {
        Combo2.add(letter, new QComboBox(this)).addItems({"A", "C", "G", "U"});
        Combo2[letter].setCurrentIndex(-1);
    }
    Label18[0].setBuddy(&Combo2[0]);
    Label18[2].setBuddy(&Combo2[1]);
    Label18[1].setBuddy(&Combo2[2]);
    tbm.add(0, new QLineEdit(this)).setAccessibleName(tr("Amino acid of the codon"));

    m_note = new QLabel(this);
    m_note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    Option3.add(1, new QRadioButton(QStringLiteral("Research by amino acid :"), this));
    Comb2 = Controls::named(new QComboBox(this), QStringLiteral("Comb2"));
    Comb2->setAccessibleName(tr("Amino acid"));
    Comb2->setModel(new RowListModel(m_store.lists.Comb2, {{tr("Amino acid"), 120}}, Comb2));
    Comb2->setCurrentIndex(-1);
    for (int codon = 1; codon <= GeneticCode::CodonCount; ++codon)
        tbm.add(codon, new QLineEdit(this)).setAccessibleName(tr("Codon %1").arg(codon));
    for (const auto &[index, box] : tbm)
        box->setReadOnly(true);
}

void GeneticCodeSection::placeControls()
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(4);
    QLabel *heading = Controls::heading(QStringLiteral("Label17(1)"), QStringLiteral("Genetic code"), this);
    grid->addWidget(heading, 0, 0, 1, Columns);
    grid->setRowMinimumHeight(0, 22);
    grid->addWidget(&Option3[0], 1, 0, 1, Columns);
    int column = 0;
    for (const int label : {0, 2, 1})
        grid->addWidget(&Label18[label], 2, column++);
    for (const auto &[letter, combo] : Combo2)
        grid->addWidget(combo, 3, letter);
    grid->addWidget(&tbm[0], 4, 0, 1, Columns);
    grid->addWidget(m_note, 5, 0, 1, Columns);
    grid->setRowMinimumHeight(5, fontMetrics().height());
    grid->addWidget(&Option3[1], 6, 0, 1, Columns);
    grid->addWidget(Comb2, 7, 0, 1, Columns);
    for (int codon = 1; codon <= GeneticCode::CodonCount; ++codon)
        grid->addWidget(&tbm[codon], 8 + (codon - 1) / Columns, (codon - 1) % Columns);
    grid->setRowStretch(10, 1);
    for (column = 0; column < Columns; ++column)
        grid->setColumnMinimumWidth(column, ColumnWidth);
    for (const auto &[index, box] : tbm) {
        QSizePolicy policy = box->sizePolicy();
        policy.setRetainSizeWhenHidden(true); // nothing jumps when the direction changes
        policy.setHorizontalPolicy(QSizePolicy::Ignored);
        box->setSizePolicy(policy);
    }
    auto *Image8 = Controls::named(new GeneticCodeChart(this), QStringLiteral("Image8"));
    grid->addWidget(Image8, 0, Columns, 11, 1);
    grid->setColumnStretch(Columns, 1);
}

void GeneticCodeSection::searchByLetters()
{
    for (const auto &[letter, combo] : Combo2)
        combo->setEnabled(true);
    Comb2->setCurrentIndex(-1);
    Comb2->setEnabled(false);
    tbm[0].show();
    for (int codon = 1; codon <= GeneticCode::CodonCount; ++codon) {
        tbm[codon].hide();
        tbm[codon].clear();
    }
    showLetterLabels(true);
}

void GeneticCodeSection::searchByAminoAcid()
{
    for (const auto &[letter, combo] : Combo2) {
        combo->setCurrentIndex(-1);
        combo->setEnabled(false);
    }
    tbm[0].hide();
    tbm[0].clear();
    showNote({});
    for (int codon = 1; codon <= GeneticCode::CodonCount; ++codon)
        tbm[codon].show();
    Comb2->setEnabled(true);
    showLetterLabels(false);
}

// In the colour of a caption, or in the grey of a disabled one.
void GeneticCodeSection::showLetterLabels(bool active)
{
    for (const auto &[index, label] : Label18)
        label->setEnabled(active);
}

// A codon that is not found leaves the last name where it is, but greyed and with a note: it is not its name.
void GeneticCodeSection::showAminoAcid()
{
    const QString codon = Combo2[0].currentText() + Combo2[1].currentText() + Combo2[2].currentText();
    if (codon.size() < GeneticCode::LetterCount)
        return;
    const auto name = GeneticCode::aminoAcid(m_store.tables.GeneticCodeData, codon);
    if (name)
        tbm[0].setText(*name);
    showNote(name ? QString() : QStringLiteral("%1: not found by its letters").arg(codon));
}

void GeneticCodeSection::showNote(const QString &note)
{
    m_note->setText(note);
    tbm[0].setEnabled(note.isEmpty());
}

void GeneticCodeSection::showCodons()
{
    if (Comb2->currentIndex() < 0)
        return;
    endOnError(m_desktop, [&] {
        const QStringList codons = GeneticCode::codons(m_store.tables.GeneticCodeData, Comb2->currentIndex());
        for (int codon = 1; codon <= GeneticCode::CodonCount; ++codon)
            tbm[codon].setText(codons[codon - 1]);
    });
}

TableRow GeneticCodeSection::currentRow() const
{
    constexpr int Step = 18;
    const QString found = tbm[0].isEnabled() ? tbm[0].text() : QString(); // greyed: of an earlier codon
    const QString name = Comb2->currentIndex() >= 0 ? Comb2->currentText() : found;
    const auto &names = m_store.lists.Comb2;
    for (int row = 0; row < names.rowCount(); ++row) {
        if (names.text(row) == name)
            return TableCatalog::rowOf(Step, row, {name});
    }
    return {};
}
