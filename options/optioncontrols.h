#pragma once

#include "core/controlarray.h"

class OptionSlots;
class QCheckBox;
class QComboBox;
class QRadioButton;

/// The controls of the options dialog that show a slot, on whichever tab they stand.
///
/// Their slots are one table, read in both directions. A number that a control cannot show (a box knows 0 and
/// 1, a list its items) leaves a box half checked and a list without a selection; unless the user touches it,
/// such a slot keeps its value.
struct OptionControls final
{
    ControlArray<QCheckBox> Check1{"Check1"};
    ControlArray<QCheckBox> Check2{"Check2"};
    ControlArray<QRadioButton> Option1{"Option1"}; ///< 3 and 2, 1 and 0: a pair each, the first of them is 1
    QCheckBox *Check10 = nullptr;
    QComboBox *Combo2 = nullptr;
    QComboBox *Combo3 = nullptr;

    /// In the order of the table. A text that is no number in a slot is RuntimeError 13.
    void show(const OptionSlots &slots);

    void store(OptionSlots &slots) const;
};
