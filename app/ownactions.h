#pragma once

#include <QString>

class QAction;
class QMainWindow;
class QMenu;

/// The entries of the menu bar that are the program's own, beside the commands of the layout file: an action
/// each. They do nothing until somebody connects to them.
class OwnActions final
{
    Q_DISABLE_COPY_MOVE(OwnActions)

public:
    explicit OwnActions(QMainWindow &window);

    /// The action of that object name, "actCopyRow".
    QAction &action(const char *name) const;

    /// Puts the entries into their menus, after the layout has been loaded. A menu is known by its caption;
    /// one that the layout lacks is made, to the right of the menu of the entry before.
    void place();

private:
    QMenu &menu(const QString &caption, QAction *leftNeighbour);

    QMainWindow &m_window;
};
