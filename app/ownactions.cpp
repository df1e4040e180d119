#include "app/ownactions.h"

#include "app/commandbars.h"
#include "app/commands.h"
#include "widgets/icons.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <array>

namespace {

struct Entry
{
    const char *menu; ///< caption with its mnemonic
    OwnAction id;
    const char *name;      ///< object name of the action; null for a separator
    const char *caption;   ///< with its mnemonic
    const char *shortcuts; ///< portable form, separated by "; "
    const char *icon;      ///< null for none
    int before;            ///< the command that follows in the menu; 0: at the end
};

// In the order of the menu bar.
constexpr std::array Entries{
    Entry{"&File", OwnAction::PrintReport, "actPrintReport", "P&rint report...", "Ctrl+Shift+P", "print",
          CommandId::Print},
    Entry{"&File", OwnAction::PdfReport, "actPdfReport", "Save report as P&DF...", "Ctrl+Shift+E", "export",
          CommandId::Print},
    Entry{"&Edit", OwnAction::CopyCell, "actCopyCell", "Copy ce&ll", "Ctrl+Alt+C", nullptr, CommandId::Find},
    Entry{"&Edit", OwnAction::CopyRow, "actCopyRow", "Copy &row", "Ctrl+C", "copy", CommandId::Find},
    Entry{"&Edit", OwnAction::CopyTable, "actCopyTable", "Copy &table", "Ctrl+Shift+C", "copy-table",
          CommandId::Find},
    Entry{"&Edit", OwnAction::SaveCsv, "actSaveCsv", "Save table as &CSV...", "Ctrl+S", nullptr,
          CommandId::Find},
    Entry{"&Edit", {}, nullptr, nullptr, nullptr, nullptr, CommandId::Find},
    Entry{"&Edit", OwnAction::ShowIn, "actShowIn", "Show &in", nullptr, nullptr, CommandId::Find},
    Entry{"&Edit", OwnAction::SearchThis, "actSearchThis", "Searc&h everything for this", "Ctrl+Shift+K",
          nullptr, CommandId::Find},
    Entry{"&Edit", OwnAction::WhereFrom, "actWhereFrom", "&Where is this from?", "Ctrl+I", nullptr,
          CommandId::Find},
    Entry{"&Edit", {}, nullptr, nullptr, nullptr, nullptr, CommandId::Find},
    Entry{"&Edit", OwnAction::SearchAll, "actSearchAll", "&Search everything...", "Ctrl+K", "search-all",
          CommandId::Find},
    Entry{"&View", OwnAction::Back, "actBack", "&Back", "Alt+Left", "arrow-left", 0},
    Entry{"&View", OwnAction::Forward, "actForward", "For&ward", "Alt+Right", "arrow-right", 0},
    Entry{"&View", {}, nullptr, nullptr, nullptr, nullptr, 0},
    Entry{"&View", OwnAction::ZoomIn, "actZoomIn", "Zoom &in...", "Ctrl++; Ctrl+=", "zoom-in", 0},
    Entry{"&View", OwnAction::ZoomOut, "actZoomOut", "Zoom &out...", "Ctrl+-", "zoom-out", 0},
    Entry{"&View", OwnAction::ZoomReset, "actZoomReset", "&Default size...", "Ctrl+0", nullptr, 0},
    Entry{"&View", {}, nullptr, nullptr, nullptr, nullptr, 0},
    Entry{"&View", OwnAction::FitWindow, "actFitWindow", "&Fit to screen", nullptr, "fit-screen", 0},
    Entry{"&Tools", OwnAction::MolarMass, "actMolarMass", "&Molar mass...", "Ctrl+M", "molar-mass", 0},
    Entry{"&Tools", OwnAction::Stock, "actStock", "&Stock solutions...", "Ctrl+Shift+M", "stock", 0},
    Entry{"&Help", OwnAction::HelpPages, "actHelpPages", "Help &pages", "Shift+F1", "help",
          CommandId::WebSite},
};

QString plain(QString caption)
{
    return caption.remove(u'&');
}

} // namespace

OwnActions::OwnActions(QMainWindow &window) : m_menuBar(*window.menuBar())
{
    for (const Entry &entry : Entries) {
        if (!entry.name)
            continue;
        auto *action = new QAction(entry.caption, &window);
        action->setObjectName(entry.name);
        action->setShortcuts(QKeySequence::listFromString(entry.shortcuts));
        if (entry.icon)
            action->setIcon(Icons::named(entry.icon));
        m_actions[entry.id] = action;
    }
}

void OwnActions::place(CommandBars &bars)
{
    QAction *leftNeighbour = nullptr;
    for (const Entry &entry : Entries) {
        QMenu &shown = menu(entry.menu, leftNeighbour);
        leftNeighbour = shown.menuAction();
        QAction *before = entry.before ? &bars.action(entry.before) : nullptr;
        if (entry.name)
            shown.insertAction(before, &action(entry.id));
        else
            shown.insertSeparator(before);
    }
}

QMenu &OwnActions::menu(const QString &caption, QAction *leftNeighbour)
{
    const QList<QAction *> menus = m_menuBar.actions();
    for (QAction *each : menus) {
        if (each->menu() && plain(each->text()) == plain(caption))
            return *each->menu();
    }
    auto *made = new QMenu(caption, &m_menuBar);
    m_menuBar.insertMenu(menus.value(menus.indexOf(leftNeighbour) + 1), made);
    return *made;
}
