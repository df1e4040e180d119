#pragma once

#include "core/optionslots.h"

#include <QWidget>

namespace ToolTips {

/// The help balloon of a control that the option switches: none at 0, its text at 1. Any other value leaves
/// the control as it is.
inline void refresh(const OptionSlots &slots, QWidget &control, const QString &text)
{
    const Value &option = slots(Slot::ToolTips);
    if (option.equals(0))
        control.setToolTip({});
    else if (option.equals(1))
        control.setToolTip(text);
}

} // namespace ToolTips
