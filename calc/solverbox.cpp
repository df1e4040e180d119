#include "calc/solverbox.h"

#include "calc/changewatcher.h"
#include "calc/solver.h"
#include "core/desktop.h"
#include "core/module1.h"
#include "core/symboltext.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>

using namespace Qt::StringLiterals;

using namespace CalcFields;

namespace {

constexpr int Decimals = 10; // until slot 0 is read
constexpr int MaxLength = 23;
constexpr int FieldWidth = 160;
constexpr int RowsPerField = 2; // label and field

QStringList captions()
{
    QStringList captions;
    for (const CalcTab &tab : CalcTabs::tabs())
        captions << tab.caption;
    return captions;
}

// Fields of different tabs share their place: each group has its own rows, and hidden rows take no room.
int firstGridRow(Field field)
{
    constexpr int RowsPerGroup = 2 * RowsPerField;
    const auto tabs = CalcTabs::tabs();
    const auto shows = [field](const CalcTab &tab) { return tab.fields.contains(field); };
    return int(std::find_if(tabs.begin(), tabs.end(), shows) - tabs.begin()) * RowsPerGroup;
}

} // namespace

SolverBox::SolverBox(const Module1 &module, Desktop &desktop, QWidget *parent)
    : QWidget(parent), m_module(module), m_desktop(desktop),
      TabStrip4(new TabStrip(u"TabStrip4"_s, captions(), TabStrip::Across, this))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(4);
    column->addWidget(TabStrip4);
    column->addWidget(&lbln.add(3, Controls::label({}, {}, this)));
    lbln.add(0, Controls::label({}, SymbolText::toUnicode(u"D"_s), &lbln[3]));
    lbln[3].setContentsMargins(4, 3, 0, 3);

    auto *line = new QHBoxLayout;
    line->setContentsMargins(4, 0, 0, 0);
    line->setSpacing(16);
    column->addLayout(line, 1);
    // Before the fields, also in Tab order: choosing a liquid empties them.
    buildLiquids(*line);
    buildFields(*line);
    line->addStretch(1);
    buildButtons(*line);
    column->addLayout(makeFoot());

    connect(TabStrip4, &TabStrip::tabClicked, this, &SolverBox::clickTab);
    showTab(1);
}

QBoxLayout *SolverBox::makeFoot()
{
    auto *line = new QHBoxLayout;
    lblPlain = Controls::label(u"lblPlain"_s, {}, this);
    lblPlain->setContentsMargins(4, 0, 0, 0);
    lblPlain->setTextInteractionFlags(Qt::TextSelectableByMouse);
    line->addWidget(lblPlain, 1);
    const auto add = [&](const QString &caption, const QString &name, void (SolverBox::*wanted)()) {
        auto *button = Controls::named(new QPushButton(caption, this), name);
        connect(button, &QPushButton::clicked, this, wanted);
        line->addWidget(button);
    };
    add(u"Molar mass..."_s, u"cmdMolarMass"_s, &SolverBox::molarMassWanted);
    add(u"Stock solutions..."_s, u"cmdStock"_s, &SolverBox::stockWanted);
    return line;
}

void SolverBox::buildFields(QBoxLayout &line)
{
    auto *column = new QVBoxLayout;
    line.addLayout(column);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(2);
    column->addLayout(grid);
    column->addStretch(1);
    for (const CalcLabel &each : CalcTabs::labels()) {
        const bool isSigned = each.field == Tc || each.field == TcStar;
        auto *field = new TextBoxM(isSigned ? TextBoxM::SignedNumber : TextBoxM::UnsignedNumber, Decimals,
                                   MaxLength, this);
        m_fields[each.field] = field;
        if (each.field < TextBoxM7Count) {
            TextBoxM7.add(each.field, field);
            connect(field, &QLineEdit::textChanged, this,
                    [this, changed = each.field] { endOnError(m_desktop, [&] { watch(changed); }); });
        } else {
            Controls::named(field, CalcTabs::name(each.field));
        }
        QLabel &label = lbl2.add(each.lbl2, Controls::label({}, each.caption, this));
        label.setBuddy(field);
        field->setFixedWidth(FieldWidth);
        const int row = firstGridRow(each.field) + each.row * RowsPerField;
        grid->addWidget(&label, row, each.column);
        grid->addWidget(field, row + 1, each.column);
        connect(field, &QLineEdit::returnPressed, this, &SolverBox::calculate);
        connect(field, &QLineEdit::textChanged, this, &SolverBox::showPlainAnswer);
    }
}

void SolverBox::buildLiquids(QBoxLayout &line)
{
    auto *group = new QButtonGroup(this);
    auto *column = new QVBoxLayout;
    column->setSpacing(2);
    m_liquidHeading = Controls::label({}, u"Liquid"_s, this);
    column->addWidget(m_liquidHeading);
    for (const Liquid &liquid : CalcTabs::liquids()) {
        auto &option = Option10.add(liquid.option, new QRadioButton(liquid.caption, this));
        option.setChecked(group->buttons().isEmpty());
        group->addButton(&option);
        column->addWidget(&option);
    }
    column->addStretch(1);
    line.addLayout(column);
    Option10.connectEach(&QRadioButton::clicked, this, [this](int) { empty({Tc, P, TcStar, PStar}); });
}

void SolverBox::buildButtons(QBoxLayout &line)
{
    auto *column = new QVBoxLayout;
    column->setSpacing(6);
    for (const char *caption : {"Calculate", "Clear"})
        column->addWidget(&Command8.add(column->count(), new QPushButton(caption, this)));
    column->addStretch(1);
    line.addLayout(column);
    connect(&Command8[0], &QPushButton::clicked, this, &SolverBox::calculate);
    connect(&Command8[1], &QPushButton::clicked, this, [this] {
        for (TextBoxM *field : m_fields)
            field->setText({});
    });
}

void SolverBox::clickTab(int tab)
{
    TabStrip4->setFocus();
    showTab(tab);
    empty(CalcTabs::tabs()[size_t(tab - 1)].emptied);
}

void SolverBox::showTab(int number)
{
    const CalcTab &tab = CalcTabs::tabs()[size_t(number - 1)];
    for (const CalcLabel &each : CalcTabs::labels()) {
        m_fields[each.field]->setVisible(tab.fields.contains(each.field));
        lbl2[each.lbl2].setVisible(tab.fields.contains(each.field));
    }
    m_liquidHeading->setVisible(tab.asksForLiquid);
    for (const auto &[index, option] : Option10)
        option->setVisible(tab.asksForLiquid);
    lbln[0].setVisible(tab.asksForLiquid);
    lbln[3].setText(tab.formula);
    placeDelta();
    for (int index = 0; index < int(tab.labels.size()); ++index) {
        if (const char *caption = tab.labels[size_t(index)])
            lbl2[index].setText(caption);
    }
    showPlainAnswer();
}

const CalcTab &SolverBox::tab() const
{
    return CalcTabs::tabs()[size_t(TabStrip4->selectedTab() - 1)];
}

void SolverBox::showPlainAnswer()
{
    lblPlain->setText(tab().plain ? tab().plain(texts()) : QString());
}

std::optional<Field> SolverBox::fieldForMass() const
{
    std::optional<Field> chosen;
    for (const CalcLabel &label : CalcTabs::labels()) {
        const bool takesOne = tab().molarMasses.contains(label.field);
        if (takesOne &&
            (!chosen || (!m_fields[*chosen]->text().isEmpty() && m_fields[label.field]->text().isEmpty())))
            chosen = label.field;
    }
    return chosen;
}

QString SolverBox::massField() const
{
    const std::optional<Field> field = fieldForMass();
    if (!field)
        return {};
    return *field == TextBoxM5 ? u"M"_s : *field == M1 ? u"M1"_s : u"M2"_s;
}

void SolverBox::putMass(const QString &mass)
{
    if (const std::optional<Field> field = fieldForMass()) {
        m_fields[*field]->setText(mass);
        m_fields[*field]->setFocus();
    }
}

void SolverBox::calculate()
{
    endOnError(m_desktop, [this] {
        const Outcome outcome = Solver::solve(TabStrip4->selectedTab(), texts(), vaporisationEntropy());
        for (const Change &change : outcome.changes)
            write(change);
        if (!outcome.message.isEmpty())
            m_desktop.messageBox(outcome.message, Desktop::Warning);
    });
}

void SolverBox::watch(Field changed)
{
    const int decimals = CalcTabs::decimals(m_module.OptionSlots);
    for (const auto &[index, field] : TextBoxM7)
        field->setDecimales(decimals);
    const ChangeWatcher::Reaction reaction = ChangeWatcher::react(changed, texts());
    if (!reaction.message.isEmpty())
        m_desktop.messageBox(reaction.message, Desktop::Warning);
    for (const Change &change : reaction.changes)
        write(change);
}

// Writing an unchanged text would move the user's cursor.
void SolverBox::write(const Change &change)
{
    TextBoxM &field = *m_fields[change.field];
    if (field.text() != change.text)
        field.setText(change.text);
}

void SolverBox::empty(FieldSet fields)
{
    for (int field = 0; field < FieldCount; ++field) {
        if (fields.contains(Field(field)))
            write({Field(field), {}});
    }
}

FieldTexts SolverBox::texts() const
{
    FieldTexts texts;
    for (size_t field = 0; field < texts.size(); ++field)
        texts[field] = m_fields[field]->text();
    return texts;
}

std::optional<double> SolverBox::vaporisationEntropy() const
{
    for (const Liquid &liquid : CalcTabs::liquids()) {
        if (Option10[liquid.option].isChecked())
            return liquid.entropy;
    }
    return std::nullopt;
}

void SolverBox::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        placeDelta();
}

// Centres the delta in the gap of the formula.
void SolverBox::placeDelta()
{
    QLabel &delta = lbln[0];
    const QFontMetrics metrics(lbln[3].font());
    const int before = metrics.horizontalAdvance(CalcTabs::BeforeDelta);
    const int gap = metrics.horizontalAdvance(CalcTabs::DeltaGap);
    delta.adjustSize();
    const QMargins margins = lbln[3].contentsMargins();
    delta.move(margins.left() + before + (gap - delta.width()) / 2, margins.top());
}
