#pragma once

#include "app/commands.h"
#include "app/form1.h"
#include "widgets/sidewindow.h"

#include <QRadioButton>
#include <QTabBar>
#include <functional>

/// The ways through the running program for tests that look at all panes and windows.
namespace Walk {

using Visit = std::function<void()>;

inline bool showsPane(CommandKind kind)
{
    return kind == CommandKind::ShowPanel || kind == CommandKind::ShowPanelOnce ||
           kind == CommandKind::SolventTab || kind == CommandKind::SpectroscopyMode ||
           kind == CommandKind::Find;
}

/// As @p window stands, then with each tab, and with each option button of a tab where @p options say so:
/// those that can be seen, for some lie beneath others.
inline void throughTabs(QWidget &window, const Visit &visit, bool options = false)
{
    const auto throughOptions = [&] {
        visit();
        for (QRadioButton *option : window.findChildren<QRadioButton *>()) {
            const QPoint middle = option->mapTo(&window, option->rect().center());
            if (options && option->isEnabled() && !option->isChecked() && window.childAt(middle) == option) {
                option->click();
                visit();
            }
        }
    };
    throughOptions();
    for (QTabBar *tabs : window.findChildren<QTabBar *>()) {
        for (int tab = 0; tabs->isVisible() && tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            throughOptions();
        }
    }
}

/// Every command that shows a pane, and each pane once with all of its tabs.
inline void throughPanes(Form1 &form, const Visit &visit, bool options = false)
{
    QList<PanelId> walked;
    for (const Command &command : Commands) {
        if (!showsPane(command.kind))
            continue;
        form.executeCommand(command.id);
        if (walked.contains(command.panel)) {
            visit();
        } else {
            walked << command.panel;
            throughTabs(form, visit, options);
        }
    }
}

/// The side window that stands open.
inline SideWindow *sideWindow(const Form1 &form)
{
    for (SideWindow *each : form.findChildren<SideWindow *>()) {
        if (each->isVisible())
            return each;
    }
    return nullptr;
}

} // namespace Walk
