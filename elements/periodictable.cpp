#include "elements/periodictable.h"

#include "store/memorytables.h"
#include "widgets/controls.h"
#include "widgets/modulepanel.h"
#include "widgets/windowunits.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr double Pitch = 480; ///< twips from button to button
constexpr double Side = 495;  ///< neighbours share the line between them
constexpr double FirstLeft = 600;
constexpr double FirstTop = 2520;
constexpr std::array DetachedTops{6360.0, 6840.0};

constexpr double leftOf(int group)
{
    return FirstLeft + Pitch * (group - 1);
}

constexpr double topOf(int period)
{
    return FirstTop + Pitch * (period - 1);
}

/// Elements side by side, from the first to the last index.
struct Run
{
    int first;
    int last;
    int group; ///< column of the first
    double top;
};

constexpr std::array<Run, 14> Runs{{
    {0, 0, 1, topOf(1)},
    {1, 1, 18, topOf(1)},
    {2, 3, 1, topOf(2)},
    {4, 9, 13, topOf(2)},
    {10, 11, 1, topOf(3)},
    {12, 17, 13, topOf(3)},
    {18, 35, 1, topOf(4)},
    {36, 53, 1, topOf(5)},
    {54, 56, 1, topOf(6)},
    {57, 70, 4, DetachedTops[0]},
    {71, 85, 4, topOf(6)},
    {86, 88, 1, topOf(7)},
    {89, 102, 4, DetachedTops[1]},
    {103, 117, 4, topOf(7)},
}};

// The last nine have their systematic symbols, whatever the data call them.
constexpr std::array<const char *, 118> Symbols{
    "H",  "He", "Li", "Be", "B",   "C",   "N",   "O",   "F",   "Ne",  "Na",  "Mg",  "Al",  "Si", "P",
    "S",  "Cl", "Ar", "K",  "Ca",  "Sc",  "Ti",  "V",   "Cr",  "Mn",  "Fe",  "Co",  "Ni",  "Cu", "Zn",
    "Ga", "Ge", "As", "Se", "Br",  "Kr",  "Rb",  "Sr",  "Y",   "Zr",  "Nb",  "Mo",  "Tc",  "Ru", "Rh",
    "Pd", "Ag", "Cd", "In", "Sn",  "Sb",  "Te",  "I",   "Xe",  "Cs",  "Ba",  "La",  "Ce",  "Pr", "Nd",
    "Pm", "Sm", "Eu", "Gd", "Tb",  "Dy",  "Ho",  "Er",  "Tm",  "Yb",  "Lu",  "Hf",  "Ta",  "W",  "Re",
    "Os", "Ir", "Pt", "Au", "Hg",  "Tl",  "Pb",  "Bi",  "Po",  "At",  "Rn",  "Fr",  "Ra",  "Ac", "Th",
    "Pa", "U",  "Np", "Pu", "Am",  "Cm",  "Bk",  "Cf",  "Es",  "Fm",  "Md",  "No",  "Lr",  "Rf", "Db",
    "Sg", "Bh", "Hs", "Mt", "Uun", "Uuu", "Uub", "Uut", "Uuq", "Uup", "Uuh", "Uus", "Uuo",
};

/// The topmost period of a group; the group's number is right above.
constexpr int firstPeriodOf(int group)
{
    if (group == 1 || group == 18)
        return 1;
    return group == 2 || group >= 13 ? 2 : 4;
}

struct PeriodNumber
{
    const char *name;
    const char *text;
    double left; ///< of its row
    double top;
};

constexpr std::array<PeriodNumber, 9> PeriodNumbers{{
    {"Label46", "I", leftOf(1), topOf(1)},
    {"Label47", "II", leftOf(1), topOf(2)},
    {"Label48", "III", leftOf(1), topOf(3)},
    {"Label49", "IV", leftOf(1), topOf(4)},
    {"Label50", "V", leftOf(1), topOf(5)},
    {"Label51(0)", "VI", leftOf(1), topOf(6)},
    {"Label51(1)", "VI", leftOf(4), DetachedTops[0]},
    {"Label52(0)", "VII", leftOf(1), topOf(7)},
    {"Label52(1)", "VII", leftOf(4), DetachedTops[1]},
}};

} // namespace

PeriodicTable::PeriodicTable(const MemoryTables &tables, QWidget *parent) : QWidget(parent)
{
    resize(ModulePanel::Size);
    buildGroupNumbers();
    buildPeriodNumbers();
    buildButtons(tables);
    letKeyboardIn(0);
}

void PeriodicTable::buildButtons(const MemoryTables &tables)
{
    auto *buttons = new QWidget(this);
    buttons->resize(size());
    buttons->setFont(Controls::largeType(QFont(u"Tahoma"_s)));
    for (const Run &run : Runs) {
        for (int index = run.first; index <= run.last; ++index) {
            auto *button = new ElementButton(Symbols[size_t(index)], buttons);
            button->setGeometry(
                WindowUnits::rect(leftOf(run.group) + Pitch * (index - run.first), run.top, Side, Side));
            button->setAccessibleName(
                u"%1, %2"_s.arg(tables.ElementData(index, ElementColumn::Name)).arg(index + 1));
            Command7.add(index, button);
        }
    }
}

void PeriodicTable::buildGroupNumbers()
{
    for (int group = 1; group <= 18; ++group) {
        QLabel *number = Controls::label(u"Label%1"_s.arg(27 + group), QString::number(group), this);
        number->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
        number->setGeometry(WindowUnits::rect(leftOf(group), topOf(firstPeriodOf(group)) - 300, Side, 285));
    }
}

void PeriodicTable::buildPeriodNumbers()
{
    for (const PeriodNumber &period : PeriodNumbers) {
        QLabel *number = Controls::label(period.name, period.text, this);
        number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        number->setMargin(1); // a V is wider than its place
        number->setGeometry(WindowUnits::rect(period.left - 540, period.top, 450, Side));
    }
}

void PeriodicTable::mark(int element)
{
    if (Command7.contains(m_marked))
        Command7[m_marked].setMarked(false);
    m_marked = element;
    if (!Command7.contains(element))
        return;
    Command7[element].setMarked(true);
    letKeyboardIn(element);
}

void PeriodicTable::focusElement(int element)
{
    Command7[element].setFocus();
}

void PeriodicTable::letKeyboardIn(int element)
{
    Command7[m_entry].setFocusPolicy(Qt::ClickFocus);
    m_entry = element;
    Command7[m_entry].setFocusPolicy(Qt::StrongFocus);
}
