#pragma once

struct OptionControls;
class QWidget;

/// `frmexport`: what the reports contain. Adds its controls to @p controls. A box that is on and disabled
/// stands for a section that is always in the report; nobody reads it.
QWidget *makeExportTab(OptionControls &controls, QWidget *parent);
