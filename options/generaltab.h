#pragma once

struct OptionControls;
class QWidget;

/// `frmgen`: what the program shows and how it starts. Adds its controls to @p controls.
QWidget *makeGeneralTab(OptionControls &controls, QWidget *parent);
