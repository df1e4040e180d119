#pragma once

#include "elements/elementbutton.h"
#include "widgets/controlarray.h"

#include <QLabel>

struct MemoryTables;

/// The printed periodic table: the 118 buttons `Command7` with the numbers of groups and periods around them.
///
/// It is as large as the pane, so its positions are those of the pane. Tab stops at one button only, the
/// marked one.
class PeriodicTable final : public QWidget
{
    Q_OBJECT

public:
    /// A screen reader hears "Helium, 2", by the names in @p tables.
    PeriodicTable(const MemoryTables &tables, QWidget *parent);

    ControlArray<ElementButton> Command7{"Command7"};

    /// Marks the element shown; -1 marks none.
    void mark(int element);

    void focusElement(int element);

private:
    void buildButtons(const MemoryTables &tables);
    void buildGroupNumbers();
    void buildPeriodNumbers();
    void letKeyboardIn(int element);

    int m_marked = -1;
    int m_entry = 0; ///< the button that Tab leads to
};
