#include "widgets/tooltips.h"

#include "core/optionslots.h"

#include <QVariant>
#include <QWidget>

namespace {

constexpr char Text[] = "helpBalloon";

} // namespace

void ToolTips::setText(QWidget &control, const QString &text)
{
    control.setProperty(Text, text);
}

void ToolTips::refresh(const OptionSlots &options, QWidget &window)
{
    const Value &option = options(Slot::ToolTips);
    if (!option.equals(0) && !option.equals(1))
        return;
    for (QWidget *control : window.findChildren<QWidget *>()) {
        if (const QVariant text = control->property(Text); text.isValid())
            control->setToolTip(option.equals(1) ? text.toString() : QString());
    }
}
