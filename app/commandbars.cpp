#include "app/commandbars.h"

#include "app/commands.h"
#include "app/menulayout.h"
#include "widgets/icons.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace {

struct Theme
{
    int value;
    Qt::ToolButtonStyle buttons;
    int iconSize; ///< logical pixels
};

constexpr std::array Themes{
    Theme{0, Qt::ToolButtonIconOnly, 16},       Theme{1, Qt::ToolButtonIconOnly, 22},
    Theme{2, Qt::ToolButtonTextBesideIcon, 18}, Theme{3, Qt::ToolButtonTextOnly, 16},
    Theme{5, Qt::ToolButtonTextUnderIcon, 24},  Theme{6, Qt::ToolButtonIconOnly, 32},
};

} // namespace

CommandBars::CommandBars(QMainWindow &window) : QObject(&window), m_window(window)
{
    for (const Command &command : Commands)
        action(command.id);
}

QAction &CommandBars::action(int id)
{
    QAction *&action = m_actions[id];
    if (!action) {
        action = new QAction(&m_window);
        action->setObjectName(u"Id%1"_s.arg(id));
        action->setData(id);
        connect(action, &QAction::triggered, this, [this, id] { Q_EMIT execute(id); });
    }
    return *action;
}

void CommandBars::load(const MenuLayout &layout)
{
    for (const MenuLayout::Menu &menu : layout.menus) {
        QMenu *shown = m_window.menuBar()->addMenu(menu.caption);
        connect(shown, &QMenu::aboutToShow, this, &CommandBars::updateWanted);
        for (const MenuLayout::Entry &entry : menu.entries) {
            if (entry.id == 0) {
                shown->addSeparator();
                continue;
            }
            QAction &command = action(entry.id);
            command.setText(entry.caption);
            if (!entry.shortCaption.isEmpty())
                command.setIconText(entry.shortCaption);
            command.setShortcut(QKeySequence(entry.shortcut, QKeySequence::PortableText));
            command.setIcon(Icons::named(entry.icon));
            shown->addAction(&command);
        }
    }
    for (const MenuLayout::Menu &bar : layout.toolBars) {
        auto *shown = new QToolBar(bar.caption, &m_window);
        m_window.addToolBar(shown);
        shown->setMovable(false);
        shown->setContextMenuPolicy(Qt::PreventContextMenu);
        for (const MenuLayout::Entry &entry : bar.entries) {
            if (entry.id == 0)
                shown->addSeparator();
            else
                shown->addAction(&action(entry.id));
        }
        m_toolBars << shown;
    }
}

void CommandBars::setTheme(int theme)
{
    for (const Theme &known : Themes) {
        if (known.value != theme)
            continue;
        for (QToolBar *bar : std::as_const(m_toolBars)) {
            bar->setToolButtonStyle(known.buttons);
            bar->setIconSize(QSize(known.iconSize, known.iconSize));
        }
    }
}

int themeOfMenuStyle(const Value &style)
{
    constexpr std::array ThemeOfStyle{0, 1, 2, 3, 5, 6};
    for (size_t index = 0; index < ThemeOfStyle.size(); ++index) {
        if (style.equals(double(index)))
            return ThemeOfStyle[index];
    }
    return -1;
}
