#pragma once

#include <QString>

class OptionSlots;
class QWidget;

/// The help balloons that an option switches.
namespace ToolTips {

/// Sets the balloon of @p control; it shows from the next refresh() on.
void setText(QWidget &control, const QString &text);

/// Refreshes the balloons of all controls in @p window, by the option: none at 0, their texts at 1. Any other
/// value leaves them as they are.
void refresh(const OptionSlots &options, QWidget &window);

} // namespace ToolTips
