#pragma once

struct OptionControls;
class QWidget;

/// `frmgen`: settings of display and start. Adds its controls to @p controls.
QWidget *makeGeneralTab(OptionControls &controls, QWidget *parent);
