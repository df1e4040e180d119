#pragma once

#include <QString>

struct Module1;
class QWidget;

/// Opens `Form2` with the structural formula of a solvent or an amino acid.
///
/// @p row is the one-based row of the list, which is also the name of the picture file and becomes
/// `SelectedChart`; @p text is the row's text. Where there is no file the window says so; with any other
/// failure no window opens. The status line names the missing picture in both cases.
void openStructureWindow(Module1 &module1, QWidget &form1, int row, const QString &text);
