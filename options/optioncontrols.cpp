#include "options/optioncontrols.h"

#include "core/optionslots.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

namespace {

enum class Control { Check1, Check2, Check10, Combo2, Combo3, Option1 };

struct SlotControl
{
    Slot slot;
    Control control;
    int index = 0; ///< in its array; of a pair, the button for 1
};

// The order matters: a changed box runs its click rule, which reads other boxes.
constexpr std::array SlotControls{
    SlotControl{Slot::GridLines, Control::Check1, 6},
    SlotControl{Slot::MenuStyle, Control::Combo2},
    SlotControl{Slot::Structures, Control::Check1, 3},
    SlotControl{Slot::TipAtStart, Control::Check1, 1},
    SlotControl{Slot::ToolTips, Control::Check1, 2},
    SlotControl{Slot::ElementZoom, Control::Check1, 4},
    SlotControl{Slot::ElementPicture, Control::Check1, 5},
    SlotControl{Slot::ReportStructures, Control::Check2, 0},
    SlotControl{Slot::ReportElementPictures, Control::Check2, 3},
    SlotControl{Slot::ReportPolarityChart, Control::Check2, 2},
    SlotControl{Slot::ReportIsotopes, Control::Check2, 1},
    SlotControl{Slot::TrayBalloon, Control::Check1, 8},
    SlotControl{Slot::MinimiseToTray, Control::Check1, 7},
    SlotControl{Slot::ReportGeneticCode, Control::Check1, 0},
    SlotControl{Slot::ReportSdsPage, Control::Check1, 9},
    SlotControl{Slot::ReportFluorochromes, Control::Check2, 7},
    SlotControl{Slot::StartModuleOn, Control::Check10},
    SlotControl{Slot::StartModule, Control::Combo3},
    SlotControl{Slot::IrInFrequency, Control::Option1, 3},
    SlotControl{Slot::ReportColours, Control::Option1, 1},
};

// -1 is a number that no control can show.
double shownNumber(const Value &value)
{
    return value.isText() ? -1 : value.toNumber();
}

QCheckBox &box(const OptionControls &controls, const SlotControl &entry)
{
    switch (entry.control) {
    case Control::Check1:
        return controls.Check1[entry.index];
    case Control::Check2:
        return controls.Check2[entry.index];
    default:
        return *controls.Check10;
    }
}

void showInBox(QCheckBox &box, double value)
{
    box.setCheckState(value == 0 ? Qt::Unchecked : value == 1 ? Qt::Checked : Qt::PartiallyChecked);
}

void showInList(QComboBox &list, double value)
{
    const bool isItem = value >= 0 && value < list.count() && value == int(value);
    list.setCurrentIndex(isItem ? int(value) : -1);
}

} // namespace

void OptionControls::show(const OptionSlots &slots)
{
    for (const SlotControl &entry : SlotControls) {
        const Value &value = slots(entry.slot);
        switch (entry.control) {
        case Control::Combo2:
            showInList(*Combo2, shownNumber(value));
            break;
        case Control::Combo3:
            showInList(*Combo3, shownNumber(value));
            break;
        case Control::Option1:
            Option1[value.equals(1) ? entry.index : entry.index - 1].setChecked(true);
            break;
        default:
            showInBox(box(*this, entry), shownNumber(value));
        }
    }
}

void OptionControls::store(OptionSlots &slots) const
{
    const auto storeItem = [](Value &slot, const QComboBox &list) {
        if (list.currentIndex() >= 0)
            slot = list.currentIndex();
    };
    for (const SlotControl &entry : SlotControls) {
        Value &slot = slots(entry.slot);
        switch (entry.control) {
        case Control::Combo2:
            storeItem(slot, *Combo2);
            break;
        case Control::Combo3:
            storeItem(slot, *Combo3);
            break;
        case Control::Option1:
            slot = Option1[entry.index].isChecked() ? 1 : 0;
            break;
        default:
            if (const QCheckBox &check = box(*this, entry); check.checkState() != Qt::PartiallyChecked)
                slot = check.isChecked() ? 1 : 0;
        }
    }
}
