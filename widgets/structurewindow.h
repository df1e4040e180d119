#pragma once

#include <QString>

struct Module1;
class QWidget;

/// Opens `Form2` with the structural formula of a solvent or an amino acid.
///
/// @p row, one-based, names the picture file and becomes `SelectedChart`; @p text is the row's text. A
/// missing file is named in the window; with any other failure no window opens. The status line names the
/// missing picture in both cases.
void openStructureWindow(Module1 &module1, QWidget &form1, int row, const QString &text);
