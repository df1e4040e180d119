#pragma once

#include <QFrame>

class Desktop;
class LaterTables;

/// A notice on a pane whose tables are not read at the start, with the button that reads them. It is shown
/// while they are not read.
class TablesNotice final : public QFrame
{
    Q_OBJECT

public:
    /// @p index makes the button's name, `cmdReadTables(index)`.
    TablesNotice(int index, LaterTables &tables, Desktop &desktop, QWidget *parent);
};
