#pragma once

#include "core/value.h"

#include <QHash>
#include <QObject>

class QAction;
class QMainWindow;
class QToolBar;
struct MenuLayout;

/// Menu bar and tool bars of the main window: an action for each command, placed by the layout file.
///
/// An action's object name is "Id1124", its data the id. Commands that the layout omits have an action too.
class CommandBars final : public QObject
{
    Q_OBJECT

public:
    explicit CommandBars(QMainWindow &window);

    /// Builds menus and tool bars. Ids without a command get an action that does nothing.
    void load(const MenuLayout &layout);

    /// The look of the tool bars by theme, 0, 1, 2, 3, 5 or 6. Others leave it as it is.
    void setTheme(int theme);

    QAction &action(int id);

Q_SIGNALS:
    void execute(int id);

    /// A menu is about to open: time to enable and disable actions.
    void updateWanted();

private:
    QMainWindow &m_window;
    QHash<int, QAction *> m_actions;
    QList<QToolBar *> m_toolBars;
};

/// The theme for menu style @p style of the options: styles 0 to 3 are themes 0 to 3, but 4 is 5 and 5 is 6.
/// -1 for any other style.
int themeOfMenuStyle(const Value &style);
