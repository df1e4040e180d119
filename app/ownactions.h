#pragma once

#include <QString>
#include <map>

class CommandBars;
class QAction;
class QMainWindow;
class QMenu;
class QMenuBar;

enum class OwnAction {
    PrintReport,
    PdfReport,
    CopyCell,
    CopyRow,
    CopyTable,
    SaveCsv,
    ShowIn,
    WhereFrom,
    SearchAll,
    SearchThis,
    Back,
    Forward,
    ZoomIn,
    ZoomOut,
    ZoomReset,
    FitWindow,
    MolarMass,
    Stock,
    HelpPages
};

/// The program's own menu entries, in addition to the commands of the layout file: an action each, which its
/// user connects.
class OwnActions final
{
    Q_DISABLE_COPY_MOVE(OwnActions)

public:
    explicit OwnActions(QMainWindow &window);

    QAction &action(OwnAction id) const { return *m_actions.at(id); }

    /// Puts the entries into their menus, after @p bars has loaded the layout. Menus are found by caption;
    /// one that the layout lacks is made, to the right of the menu of the entry before.
    void place(CommandBars &bars);

private:
    QMenu &menu(const QString &caption, QAction *leftNeighbour);

    QMenuBar &m_menuBar;
    std::map<OwnAction, QAction *> m_actions;
};
