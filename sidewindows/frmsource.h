#pragma once

#include "widgets/sidewindow.h"

class Desktop;
struct TableRow;

/// "Where is this from?": the source of @p row in words, read from the database in @p appFolder when the
/// window opens. Its links open through @p desktop.
///
/// @p owner is the window that the row is in.
class frmSource final : public SideWindow
{
    Q_OBJECT

public:
    frmSource(const TableRow &row, const QString &appFolder, Desktop &desktop, QWidget &owner);
};
