#pragma once

#include <QObject>

class ListActions;
class Desktop;
class OwnActions;
class PaneSwitch;
class QAction;
class QWidget;
struct Module1;
struct TableRow;

/// "Where is this from?" of the menu bar and of the lists' context menus: for the row that is selected in the
/// list with the focus or the only list on screen, or else for what the pane shows.
class SourceAction final : public QObject
{
    Q_OBJECT

public:
    /// @p form is the main window.
    SourceAction(const OwnActions &actions, const ListActions &lists, const PaneSwitch &panes,
                 const Module1 &module, Desktop &desktop, QWidget &form);

private:
    void open();
    TableRow rowInQuestion() const;

    const ListActions &m_lists;
    const PaneSwitch &m_panes;
    const Module1 &m_module;
    Desktop &m_desktop;
    QWidget &m_form;
};
