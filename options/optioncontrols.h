#pragma once

#include "widgets/controlarray.h"

class OptionSlots;
class QCheckBox;
class QComboBox;
class QRadioButton;

/// The controls of the options dialog that show a slot, on all tabs.
///
/// A value that a control cannot show (a box shows 0 and 1, a list the numbers of its items) leaves a box
/// partially checked or a list without a selection; the slot keeps it unless the user changes the control.
struct OptionControls final
{
    ControlArray<QCheckBox> Check1{"Check1"};
    ControlArray<QCheckBox> Check2{"Check2"};
    ControlArray<QRadioButton> Option1{"Option1"}; ///< pairs 3 and 2, 1 and 0; the first means 1
    QCheckBox *Check10 = nullptr;
    QComboBox *Combo2 = nullptr;
    QComboBox *Combo3 = nullptr;

    void show(const OptionSlots &slots);
    void store(OptionSlots &slots) const;
};
