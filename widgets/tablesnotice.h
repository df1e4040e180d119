#pragma once

#include <QFrame>

class Desktop;
class LaterTables;

/// A notice that the tables of a pane are not read yet, with a button that reads them. Hidden once they are.
class TablesNotice final : public QFrame
{
    Q_OBJECT

public:
    /// The button is `cmdReadTables(index)`.
    TablesNotice(int index, LaterTables &tables, Desktop &desktop, QWidget *parent);
};
