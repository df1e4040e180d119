#include "app/ownactions.h"

#include "app/commands.h"
#include "core/runtimeerror.h"
#include "widgets/icons.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <array>

namespace {

struct Entry
{
    const char *menu;      ///< caption of the menu, with its mnemonic
    const char *name;      ///< object name of the action; null for a separator
    const char *caption;   ///< with its mnemonic
    const char *shortcuts; ///< portable form, more than one apart by "; "
    const char *icon;      ///< name of a drawn icon; null for none
    int before;            ///< the command of the menu that it comes before; 0: at the end
};

// In the order of the menu bar.
constexpr std::array Entries{
    Entry{"&File", "actPrintReport", "P&rint report...", "Ctrl+Shift+P", "print", CommandId::Print},
    Entry{"&File", "actPdfReport", "Save report as P&DF...", "Ctrl+Shift+E", "export", CommandId::Print},
    Entry{"&Edit", "actCopyRow", "Copy &row", "Ctrl+C", "copy", CommandId::Find},
    Entry{"&Edit", "actCopyTable", "Copy &table", "Ctrl+Shift+C", "copy-table", CommandId::Find},
    Entry{"&Edit", "actWhereFrom", "&Where is this from?", "Ctrl+I", nullptr, CommandId::Find},
    Entry{"&Edit", nullptr, nullptr, nullptr, nullptr, CommandId::Find},
    Entry{"&View", "actZoomIn", "Zoom &in...", "Ctrl++; Ctrl+=", "zoom-in", 0},
    Entry{"&View", "actZoomOut", "Zoom &out...", "Ctrl+-", "zoom-out", 0},
    Entry{"&View", "actZoomReset", "&Default size...", "Ctrl+0", nullptr, 0},
    Entry{"&View", nullptr, nullptr, nullptr, nullptr, 0},
    Entry{"&View", "actFitWindow", "&Fit to screen", nullptr, "fit-screen", 0},
    Entry{"&Tools", "actMolarMass", "&Molar mass...", "Ctrl+M", "molar-mass", 0},
    Entry{"&Tools", "actStock", "&Stock solutions...", "Ctrl+Shift+M", "stock", 0},
    Entry{"&Help", "actHelpPages", "Help &pages", "Shift+F1", "help", CommandId::WebSite},
};

QString plain(QString caption)
{
    return caption.remove(QLatin1Char('&'));
}

QAction *actionOf(const QMenu &menu, int id)
{
    const QList<QAction *> actions = menu.actions();
    const auto found = std::find_if(actions.begin(), actions.end(),
                                    [id](const QAction *action) { return action->data() == id; });
    return id != 0 && found != actions.end() ? *found : nullptr;
}

} // namespace

OwnActions::OwnActions(QMainWindow &window) : m_window(window)
{
    for (const Entry &entry : Entries) {
        if (!entry.name)
            continue;
        auto *action = new QAction(QString::fromUtf8(entry.caption), &window);
        action->setObjectName(QLatin1StringView(entry.name));
        action->setShortcuts(QKeySequence::listFromString(QLatin1StringView(entry.shortcuts)));
        if (entry.icon)
            action->setIcon(Icons::named(QLatin1StringView(entry.icon)));
    }
}

QAction &OwnActions::action(const char *name) const
{
    auto *found = m_window.findChild<QAction *>(QLatin1StringView(name), Qt::FindDirectChildrenOnly);
    if (!found)
        throw RuntimeError(ErrorNumber::Subscript, QLatin1StringView(name));
    return *found;
}

void OwnActions::place()
{
    QAction *leftNeighbour = nullptr;
    for (const Entry &entry : Entries) {
        QMenu &shown = menu(QString::fromUtf8(entry.menu), leftNeighbour);
        leftNeighbour = shown.menuAction();
        QAction *before = actionOf(shown, entry.before);
        if (entry.name)
            shown.insertAction(before, &action(entry.name));
        else
            shown.insertSeparator(before);
    }
}

QMenu &OwnActions::menu(const QString &caption, QAction *leftNeighbour)
{
    QMenuBar &bar = *m_window.menuBar();
    const QList<QAction *> menus = bar.actions();
    for (QAction *each : menus) {
        if (each->menu() && plain(each->text()) == plain(caption))
            return *each->menu();
    }
    auto *made = new QMenu(caption, &bar);
    bar.insertMenu(menus.value(menus.indexOf(leftNeighbour) + 1), made);
    return *made;
}
