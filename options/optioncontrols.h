#pragma once

#include "widgets/controlarray.h"

class OptionSlots;
class QCheckBox;
class QComboBox;
class QRadioButton;

/// The controls of the options dialog that show a slot, on whichever tab they stand.
///
/// Their slots are one table, read in both directions. What a control cannot show (a box knows 0 and 1, a
/// list the numbers of its items) leaves a box half checked and a list without a selection; unless the user
/// touches it, such a slot keeps its value.
struct OptionControls final
{
    ControlArray<QCheckBox> Check1{"Check1"};
    ControlArray<QCheckBox> Check2{"Check2"};
    ControlArray<QRadioButton> Option1{"Option1"}; ///< 3 and 2, 1 and 0: a pair each, the first of them is 1
    QCheckBox *Check10 = nullptr;
    QComboBox *Combo2 = nullptr;
    QComboBox *Combo3 = nullptr;

    void show(const OptionSlots &slots);

    void store(OptionSlots &slots) const;
};
