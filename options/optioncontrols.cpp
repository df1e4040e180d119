#include "options/optioncontrols.h"

#include "core/optionslots.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

namespace {

struct Box
{
    Slot slot;
    ControlArray<QCheckBox> OptionControls::*boxes;
    int index;
};

constexpr Box Boxes[]{
    {Slot::GridLines, &OptionControls::Check1, 6},
    {Slot::Structures, &OptionControls::Check1, 3},
    {Slot::TipAtStart, &OptionControls::Check1, 1},
    {Slot::ToolTips, &OptionControls::Check1, 2},
    {Slot::ElementZoom, &OptionControls::Check1, 4},
    {Slot::ElementPicture, &OptionControls::Check1, 5},
    {Slot::ReportStructures, &OptionControls::Check2, 0},
    {Slot::ReportElementPictures, &OptionControls::Check2, 3},
    {Slot::ReportPolarityChart, &OptionControls::Check2, 2},
    {Slot::ReportIsotopes, &OptionControls::Check2, 1},
    {Slot::TrayBalloon, &OptionControls::Check1, 8},
    {Slot::MinimiseToTray, &OptionControls::Check1, 7},
    {Slot::ReportGeneticCode, &OptionControls::Check1, 0},
    {Slot::ReportSdsPage, &OptionControls::Check1, 9},
    {Slot::ReportFluorochromes, &OptionControls::Check2, 7},
};

constexpr std::pair<Slot, QComboBox * OptionControls::*> Lists[]{
    {Slot::MenuStyle, &OptionControls::Combo2},
    {Slot::StartModule, &OptionControls::Combo3},
};

// The button for 1; the button before it is for all other values.
constexpr std::pair<Slot, int> Pairs[]{{Slot::IrInFrequency, 3}, {Slot::ReportColours, 1}};

// -1 is a number that no control can show.
double shownNumber(const Value &value)
{
    return value.isText() ? -1 : value.toNumber();
}

void showIn(QCheckBox &box, const Value &value)
{
    const double number = shownNumber(value);
    box.setCheckState(number == 0 ? Qt::Unchecked : number == 1 ? Qt::Checked : Qt::PartiallyChecked);
}

void showIn(QComboBox &list, const Value &value)
{
    const double number = shownNumber(value);
    const bool isItem = number >= 0 && number < list.count() && number == int(number);
    list.setCurrentIndex(isItem ? int(number) : -1);
}

void storeFrom(const QCheckBox &box, Value &value)
{
    if (box.checkState() != Qt::PartiallyChecked)
        value = box.isChecked() ? 1 : 0;
}

} // namespace

void OptionControls::show(const OptionSlots &slots)
{
    for (const auto &[slot, boxes, index] : Boxes)
        showIn((this->*boxes)[index], slots(slot));
    showIn(*Check10, slots(Slot::StartModuleOn));
    for (const auto &[slot, list] : Lists)
        showIn(*(this->*list), slots(slot));
    for (const auto &[slot, index] : Pairs)
        Option1[slots(slot).equals(1) ? index : index - 1].setChecked(true);
}

void OptionControls::store(OptionSlots &slots) const
{
    for (const auto &[slot, boxes, index] : Boxes)
        storeFrom((this->*boxes)[index], slots(slot));
    storeFrom(*Check10, slots(Slot::StartModuleOn));
    for (const auto &[slot, list] : Lists) {
        if (const int item = (this->*list)->currentIndex(); item >= 0)
            slots(slot) = item;
    }
    for (const auto &[slot, index] : Pairs)
        slots(slot) = Option1[index].isChecked() ? 1 : 0;
}
