#pragma once

struct OptionControls;
class QWidget;

/// `frmexport`: the contents of the reports. Adds its controls to @p controls. A checked and disabled box is
/// a section that is always in the report.
QWidget *makeExportTab(OptionControls &controls, QWidget *parent);
