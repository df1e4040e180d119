#pragma once

class CalculationsPane;
class OwnActions;
class QWidget;
struct DataStore;
struct Module1;

/// Connects "Molar mass" and "Stock solutions" of the menu bar with their windows. Buttons of @p pane open
/// them too, and its fields take a molar mass. All references outlive @p form1, the main window.
void connectAnswerActions(const OwnActions &actions, CalculationsPane &pane, const Module1 &module,
                          const DataStore &store, QWidget &form1);
