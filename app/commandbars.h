#pragma once

#include "core/value.h"

#include <QHash>
#include <QObject>

class QAction;
class QMainWindow;
class QToolBar;
struct MenuLayout;

/// Menu bar and tool bars of the main window: one action for each command, placed by the layout file.
///
/// An action's object name is "Id1124", its data the id. A command that the layout leaves out has its action
/// all the same, without a place.
class CommandBars final : public QObject
{
    Q_OBJECT

public:
    explicit CommandBars(QMainWindow &window);

    /// Builds menus and tool bars. Ids without a command get an action that does nothing.
    void load(const MenuLayout &layout);

    /// Look of the tool bars by the theme values 0, 1, 2, 3, 5 and 6; any other leaves it as it is.
    void setTheme(int theme);

    QAction &action(int id);

Q_SIGNALS:
    void execute(int id);

    /// A menu is about to open: whoever knows sets the actions' enabled state.
    void updateWanted();

private:
    QMainWindow &m_window;
    QHash<int, QAction *> m_actions;
    QList<QToolBar *> m_toolBars;
};

/// The theme value for menu style @p style of the options: 0 to 3 as they are, 4 is theme 5, 5 is theme 6.
/// The jump is meant. -1 for any other style: it sets no theme.
int themeOfMenuStyle(const Value &style);
