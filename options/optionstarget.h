#pragma once

#include <QtGlobal>

/// What the options dialog asks of the main window. It knows nothing else of it.
class OptionsTarget
{
    Q_DISABLE_COPY_MOVE(OptionsTarget)

public:
    OptionsTarget() = default;
    virtual ~OptionsTarget() = default;

    /// The menu entry `trayminimax` can be used.
    virtual void enableTrayEntry(bool enabled) = 0;

    /// The theme of menus and tool bars, by the option.
    virtual void applyMenuStyle() = 0;

    /// Help balloons of all controls that have one, by the option.
    virtual void refreshToolTips() = 0;

    /// Places of the quantity and the unit beside the scale of an infrared chart, by the option.
    virtual void placeIrLabels() = 0;

    /// The same with their texts; where the list of infrared charts is on, the scale too.
    virtual void applyIrGraduation() = 0;

    /// The pointer over the picture of the element, by the option.
    virtual void refreshZoomPointer() = 0;

    /// Picture or portrait of the element, by the option.
    virtual void applyPictureOption() = 0;

    /// Empties the entry fields of the calculators.
    virtual void emptyEntryFields() = 0;

    /// Another file has taken the place of the database.
    virtual void databaseReplaced() = 0;
};
