#include "calc/frmstock.h"

#include "calc/glassware.h"
#include "core/numbers.h"
#include "widgets/controls.h"
#include "widgets/textboxm.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <span>

using namespace Qt::StringLiterals;

namespace {

constexpr int MaxLength = 12;
constexpr int Decimals = 6;
constexpr int FieldWidth = 110;
constexpr int TextWidth = 360;

/// A unit to choose, and what one of it is in mol/L or mL.
struct Unit
{
    const char *name;
    double factor;
};

constexpr Unit Concentrations[]{{"mol/L", 1}, {"mmol/L", 1e-3}, {"µmol/L", 1e-6}};
constexpr Unit Volumes[]{{"mL", 1}, {"L", 1e3}, {"µL", 1e-3}};

QComboBox *makeUnits(const QString &name, const QString &accessibleName, std::span<const Unit> units)
{
    auto *box = Controls::named(new QComboBox, name);
    box->setAccessibleName(accessibleName);
    for (const Unit &unit : units)
        box->addItem(QString::fromUtf8(unit.name), unit.factor);
    return box;
}

double numberIn(const TextBoxM &field)
{
    return Numbers::parseLocal(field.text()).value_or(0);
}

QLayout *line(std::initializer_list<QWidget *> widgets)
{
    auto *row = new QHBoxLayout;
    for (QWidget *widget : widgets)
        row->addWidget(widget);
    row->addStretch();
    return row;
}

void addRow(QFormLayout &form, const QString &caption, QWidget &field, QLayout *row)
{
    auto *label = new QLabel(caption);
    label->setBuddy(&field);
    form.addRow(label, row);
}

// An answer of one line that can be selected and copied.
QLabel *answerLabel(const QString &name, QWidget *parent)
{
    QLabel *label = Controls::label(name, {}, parent);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

frmStock::frmStock(QList<StockReagent> reagents, QWidget &form1)
    : SideWindow("frmStock", form1), m_reagents(std::move(reagents))
{
    setWindowTitle(u"Stock solutions"_s);
    auto *form = new QFormLayout(this);
    form->setSizeConstraint(QLayout::SetFixedSize);
    buildBottle(*form);
    buildWish(*form);
    buildOffer(*form);
    auto *close = Controls::named(new QPushButton(u"C&lose"_s, this), u"cmdClose"_s);
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(close);
    form->addRow(row);

    connect(cmbReagent, &QComboBox::currentIndexChanged, this, &frmStock::chooseReagent);
    connect(cmbConcentration, &QComboBox::currentIndexChanged, this, &frmStock::answer);
    connect(cmbVolume, &QComboBox::currentIndexChanged, this, &frmStock::answer);
    for (TextBoxM *field : {txtPercent, txtDensity, txtMolarMass, txtConcentration, txtVolume, txtTaken})
        connect(field, &QLineEdit::textChanged, this, &frmStock::answer);
    chooseReagent(0);
}

TextBoxM *frmStock::makeNumber(const QString &name)
{
    auto *field = Controls::named(new TextBoxM(TextBoxM::UnsignedNumber, Decimals, MaxLength, this), name);
    field->setFixedWidth(FieldWidth);
    return field;
}

void frmStock::buildBottle(QFormLayout &form)
{
    cmbReagent = Controls::named(new QComboBox(this), u"cmbReagent"_s);
    for (const StockReagent &reagent : m_reagents)
        cmbReagent->addItem(reagent.name);
    cmbReagent->addItem(m_reagents.isEmpty() ? u"The list of reagents cannot be read: type the figures"_s
                                             : u"Another one: type its figures"_s);
    txtPercent = makeNumber(u"txtPercent"_s);
    txtDensity = makeNumber(u"txtDensity"_s);
    txtMolarMass = makeNumber(u"txtMolarMass"_s);
    lblMolarity = answerLabel(u"lblMolarity"_s, this);
    lblSafety = Controls::label(u"lblSafety"_s, {}, this);
    lblSafety->setWordWrap(true);
    lblSafety->setFixedSize(TextWidth, 2 * lblSafety->fontMetrics().lineSpacing());
    lblSafety->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    form.addRow(Controls::heading({}, u"The bottle"_s, this));
    addRow(form, u"&Reagent:"_s, *cmbReagent, line({cmbReagent}));
    addRow(form, u"&Per cent by mass:"_s, *txtPercent, line({txtPercent, new QLabel(u"%"_s)}));
    addRow(form, u"&Density:"_s, *txtDensity, line({txtDensity, new QLabel(u"g/mL"_s)}));
    addRow(form, u"&Molar mass:"_s, *txtMolarMass, line({txtMolarMass, new QLabel(u"g/mol"_s)}));
    form.addRow(u"It holds:"_s, lblMolarity);
    form.addRow(u"Safety:"_s, lblSafety);
}

void frmStock::buildWish(QFormLayout &form)
{
    txtConcentration = makeNumber(u"txtConcentration"_s);
    cmbConcentration = makeUnits(u"cmbConcentration"_s, u"Unit of the concentration"_s, Concentrations);
    txtVolume = makeNumber(u"txtVolume"_s);
    cmbVolume = makeUnits(u"cmbVolume"_s, u"Unit of the volume"_s, Volumes);
    lblStockVolume = answerLabel(u"lblStockVolume"_s, this);
    lblStockMass = answerLabel(u"lblStockMass"_s, this);
    lblWarning = answerLabel(u"lblWarning"_s, this);

    form.addRow(Controls::heading({}, u"How much of it do I take?"_s, this));
    addRow(form, u"&Concentration:"_s, *txtConcentration, line({txtConcentration, cmbConcentration}));
    addRow(form, u"&Volume:"_s, *txtVolume, line({txtVolume, cmbVolume}));
    form.addRow(u"Take:"_s, lblStockVolume);
    form.addRow(u"or weigh:"_s, lblStockMass);
    form.addRow(QString(), lblWarning);
}

void frmStock::buildOffer(QFormLayout &form)
{
    txtTaken = makeNumber(u"txtTaken"_s);
    lblMade = answerLabel(u"lblMade"_s, this);
    form.addRow(Controls::heading({}, u"What do I get?"_s, this));
    addRow(form, u"&Taken from the bottle:"_s, *txtTaken, line({txtTaken, new QLabel(u"mL"_s)}));
    form.addRow(u"It makes:"_s, lblMade);
}

void frmStock::chooseReagent(int row)
{
    const bool listed = row < m_reagents.size();
    const Stock stock = listed ? m_reagents[row].stock : Stock{};
    const auto show = [](TextBoxM &field, double number) {
        field.setText(number > 0 ? Numbers::formatLocal(number) : QString());
    };
    show(*txtPercent, stock.percent);
    show(*txtDensity, stock.density);
    show(*txtMolarMass, stock.molarMass);
    lblSafety->setText(listed ? m_reagents[row].safety : u"see the label of the bottle"_s);
    answer();
}

void frmStock::answer()
{
    for (QLabel *label : {lblMolarity, lblStockVolume, lblStockMass, lblWarning, lblMade})
        label->clear();
    const Stock stock{numberIn(*txtPercent), numberIn(*txtDensity), numberIn(*txtMolarMass)};
    if (!stock.isPossible())
        return;
    lblMolarity->setText(Numbers::formatLocal(stock.molarity(), 4) + u" mol/L"_s);
    if (volume() <= 0)
        return;
    answerWish(stock);
    answerOffer(stock);
}

void frmStock::answerWish(const Stock &stock)
{
    const double concentration = numberIn(*txtConcentration) * cmbConcentration->currentData().toDouble();
    if (concentration <= 0)
        return;
    if (concentration > stock.molarity()) {
        lblWarning->setText(u"That is stronger than the bottle."_s);
        return;
    }
    const double taken = stock.volumeFor(concentration, volume());
    const double grams = taken * stock.density;
    lblStockVolume->setText(u"%1 (exactly %2), made up to %3"_s.arg(
        Glassware::volume(taken), Glassware::exactVolume(taken), Glassware::exactVolume(volume())));
    lblStockMass->setText(u"%1 (exactly %2)"_s.arg(Glassware::mass(grams), Glassware::exactMass(grams)));
}

void frmStock::answerOffer(const Stock &stock)
{
    const double taken = numberIn(*txtTaken);
    if (taken <= 0)
        return;
    if (taken > volume()) {
        lblMade->setText(u"more is taken than the volume holds"_s);
        return;
    }
    lblMade->setText(u"%1 mol/L in %2"_s.arg(Numbers::formatLocal(stock.concentrationOf(taken, volume()), 4),
                                             Glassware::exactVolume(volume())));
}

double frmStock::volume() const
{
    return numberIn(*txtVolume) * cmbVolume->currentData().toDouble();
}
