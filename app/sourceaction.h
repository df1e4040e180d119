#pragma once

class Desktop;
class ListActions;
class OwnActions;
class PaneSwitch;
class QWidget;
struct Module1;

/// Connects "Where is this from?" of the menu bar and of the lists' context menus: for the row that is
/// selected in the list with the focus or the only list on screen, or else for what the pane shows. All
/// references outlive @p form, the main window.
void connectSourceAction(const OwnActions &actions, const ListActions &lists, const PaneSwitch &panes,
                         const Module1 &module, Desktop &desktop, QWidget &form);
