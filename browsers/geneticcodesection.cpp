#include "browsers/geneticcodesection.h"

#include "browsers/geneticcode.h"
#include "browsers/geneticcodepainter.h"
#include "core/desktop.h"
#include "store/datastore.h"
#include "store/tablecatalog.h"
#include "widgets/rowlistmodel.h"

#include <QApplication>
#include <QGridLayout>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int Columns = 3; // of the fields beside the chart
constexpr int ColumnWidth = 62;
constexpr std::array LabelOfLetter{0, 2, 1}; // index of `Label18`

/// `Image8`: the standard genetic code as a table. Neighbours with the same amino acid share one field.
class GeneticCodeChart final : public QWidget
{
public:
    explicit GeneticCodeChart(QWidget *parent) : QWidget(parent)
    {
        setAccessibleName(u"Table of the standard genetic code"_s);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        constexpr double Margin = 18; // logical pixels
        const QPalette colours = palette();
        QColor boxLine = colours.color(QPalette::WindowText);
        boxLine.setAlphaF(0.6F);
        const auto background = [&](const QString &name) {
            return colours.color(name == u"Stop"_s ? QPalette::AlternateBase : QPalette::Base);
        };
        QPainter painter(this);
        painter.translate(0.5, 0.5);
        const GeneticCodePainter code(QRectF(0, 0, width() - 1, height() - 1),
                                      {font(), Margin, colours.color(QPalette::WindowText),
                                       colours.color(QPalette::Text), colours.color(QPalette::Mid), boxLine,
                                       background, false});
        code.paint(painter);
    }
};

} // namespace

GeneticCodeSection::GeneticCodeSection(DataStore &store, Desktop &desktop, QWidget *parent)
    : QWidget(parent), m_store(store), m_desktop(desktop)
{
    buildControls();
    placeControls();
    Option3.connectEach(&QRadioButton::clicked, this, [this](int) { chooseDirection(); });
    Combo2.connectEach(&DropDown::chosen, this, [this](int) { showAminoAcid(); });
    connect(Comb2, &DropDown::chosen, this, &GeneticCodeSection::showCodons);
    // Tab stops at both options: the fields of the first are between them. Qt takes the other option out of
    // the Tab order whenever one gets the focus.
    connect(qApp, &QApplication::focusChanged, this, [this] {
        for (const auto &[index, option] : Option3)
            option->setFocusPolicy(Qt::StrongFocus);
    });
    Option3[0].setChecked(true);
    chooseDirection();
}

void GeneticCodeSection::buildControls()
{
    Option3.add(0, new QRadioButton(u"Research by codon letters :"_s, this));
    for (int letter = 0; letter < GeneticCode::LetterCount; ++letter) {
        auto &combo = Combo2.add(letter, new DropDown({}, this));
        combo.addItems({"A", "C", "G", "U"});
        combo.setCurrentIndex(-1);
        Label18.add(LabelOfLetter[size_t(letter)], new QLabel(u"Letter %1 :"_s.arg(letter + 1), this))
            .setBuddy(&combo);
    }
    tbm.add(0, new QLineEdit(this)).setAccessibleName(u"Amino acid of the codon"_s);

    m_note = new QLabel(this);
    m_note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    Option3.add(1, new QRadioButton(u"Research by amino acid :"_s, this));
    Comb2 = new DropDown(u"Comb2"_s, this);
    Comb2->setAccessibleName(u"Amino acid"_s);
    Comb2->showRows(new RowListModel(m_store.lists.Comb2, {{u"Amino acid"_s, 120}}, Comb2));
    for (int codon = 1; codon <= GeneticCode::CodonCount; ++codon)
        tbm.add(codon, new QLineEdit(this)).setAccessibleName(u"Codon %1"_s.arg(codon));
    for (const auto &[index, box] : tbm)
        box->setReadOnly(true);
}

void GeneticCodeSection::placeControls()
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(4);
    QLabel *heading = Controls::heading(u"Label17(1)"_s, u"Genetic code"_s, this);
    grid->addWidget(heading, 0, 0, 1, Columns);
    grid->setRowMinimumHeight(0, 22);
    grid->addWidget(&Option3[0], 1, 0, 1, Columns);
    for (int letter = 0; letter < GeneticCode::LetterCount; ++letter) {
        grid->addWidget(&Label18[LabelOfLetter[size_t(letter)]], 2, letter);
        grid->addWidget(&Combo2[letter], 3, letter);
    }
    grid->addWidget(&tbm[0], 4, 0, 1, Columns);
    grid->addWidget(m_note, 5, 0, 1, Columns);
    grid->setRowMinimumHeight(5, fontMetrics().height());
    grid->addWidget(&Option3[1], 6, 0, 1, Columns);
    grid->addWidget(Comb2, 7, 0, 1, Columns);
    for (int codon = 1; codon <= GeneticCode::CodonCount; ++codon)
        grid->addWidget(&tbm[codon], 8 + (codon - 1) / Columns, (codon - 1) % Columns);
    grid->setRowStretch(10, 1);
    for (int column = 0; column < Columns; ++column)
        grid->setColumnMinimumWidth(column, ColumnWidth);
    for (const auto &[index, box] : tbm) {
        QSizePolicy policy = box->sizePolicy();
        policy.setRetainSizeWhenHidden(true); // nothing jumps when the direction changes
        policy.setHorizontalPolicy(QSizePolicy::Ignored);
        box->setSizePolicy(policy);
    }
    auto *Image8 = Controls::named(new GeneticCodeChart(this), u"Image8"_s);
    grid->addWidget(Image8, 0, Columns, 11, 1);
    grid->setColumnStretch(Columns, 1);
}

// The fields of the other direction are disabled or hidden, and empty.
void GeneticCodeSection::chooseDirection()
{
    const bool byLetters = Option3[0].isChecked();
    for (const auto &[letter, combo] : Combo2) {
        combo->setEnabled(byLetters);
        if (!byLetters)
            combo->setCurrentIndex(-1);
    }
    for (const auto &[index, label] : Label18)
        label->setEnabled(byLetters);
    Comb2->setEnabled(!byLetters);
    if (byLetters)
        Comb2->setCurrentIndex(-1);
    else
        showNote({});
    for (const auto &[index, box] : tbm) {
        box->setVisible(byLetters == (index == 0));
        if (box->isHidden())
            box->clear();
    }
}

// An unknown codon leaves the last name in place, greyed and with a note: it is not its name.
void GeneticCodeSection::showAminoAcid()
{
    const QString codon = Combo2[0].currentText() + Combo2[1].currentText() + Combo2[2].currentText();
    if (codon.size() < GeneticCode::LetterCount)
        return;
    const auto name = GeneticCode::aminoAcid(m_store.tables.GeneticCodeData, codon);
    if (name)
        tbm[0].setText(*name);
    showNote(name ? QString() : u"%1: not found by its letters"_s.arg(codon));
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
