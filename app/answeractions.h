#pragma once

#include <QObject>

class CalculationsPane;
class OwnActions;
class QAction;
class QWidget;
struct DataStore;
struct Module1;

/// "Molar mass" and "Stock solutions" of the menu bar, with their windows.
class AnswerActions final : public QObject
{
    Q_OBJECT

public:
    /// All references outlive this; @p form1 is the main window.
    AnswerActions(const OwnActions &actions, const Module1 &module, const DataStore &store, QWidget &form1);

    /// The pane whose fields take a molar mass, and whose buttons open the windows too.
    void connectTo(CalculationsPane &pane);

private:
    void openMolarMass();
    void openStock();

    const Module1 &m_module;
    const DataStore &m_store;
    QWidget &m_form1;
    QAction &m_molarMass;
    QAction &m_stock;
    CalculationsPane *m_pane = nullptr;
};
