#pragma once

#include "app/commands.h"
#include "app/form1.h"
#include "tests/support/files.h"
#include "widgets/rowlistview.h"
#include "widgets/sidewindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTextBrowser>

/// The ways through the running program for tests that look at all panes and windows.
namespace Walk {

using Visit = std::function<void()>;

inline bool showsPane(CommandKind kind)
{
    return kind == CommandKind::ShowPanel || kind == CommandKind::ShowPanelOnce ||
           kind == CommandKind::SolventTab || kind == CommandKind::SpectroscopyMode ||
           kind == CommandKind::Find;
}

/// As @p window is shown, then with each tab, and with each option button of a tab where @p options say so:
/// those that can be seen, for some are beneath others.
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

/// The side window that is open.
inline SideWindow *sideWindow(const QObject &form)
{
    for (SideWindow *each : form.findChildren<SideWindow *>()) {
        if (each->isVisible())
            return each;
    }
    return nullptr;
}

/// Every window above the main one, opened from where it is opened by hand, with all of its tabs.
inline void throughSideWindows(Form1 &form, const std::function<void(SideWindow &)> &visit)
{
    const struct
    {
        int pane;
        const char *opener; ///< a button, a list, or else an action
        const char *window;
    } ways[] = {
        {0, "Id1122", "frmAbout"},        {0, "actZoomIn", "frmScale"},     {0, "Id1058", "Formoptions"},
        {0, "actWhereFrom", "frmSource"}, {0, "actSearchAll", "frmSearch"}, {0, "cmdhelp", "Formhelp"},
        {0, "Command9", "Form4"},         {1119, "ListView1", "Form2"},     {1142, "Command1", "Formhelp2"},
        {1144, "Command1", "Formhelp3"},  {1141, "Command2", "Formhelp4"}};
    const QMap<QString, QString> titles{{"frmAbout", "About Alembra"},
                                        {"Formhelp", "Captions"},
                                        {"Formhelp2", "Abréviations"},
                                        {"Formhelp3", "Code couleur"},
                                        {"Formhelp4", "Form3"}}; // of those that Return closes, by their OK
    get<QAbstractButton>(form, "Command7(16)").click();
    for (const auto &way : ways) {
        form.executeCommand(way.pane);
        if (auto *button = form.findChild<QAbstractButton *>(way.opener))
            button->click();
        else if (auto *list = form.findChild<RowListView *>(way.opener))
            Q_EMIT list->rowDoubleClicked(0);
        else
            get<QAction>(form, way.opener).trigger();
        SideWindow *window = sideWindow(form);
        QVERIFY2(window && window->objectName() == way.window && !form.isEnabled(), way.window);
        // A blank first: a letter beside the edge of the field would hide it from a judge.
        if (auto *search = window->findChild<QLineEdit *>("txtSearch"))
            search->setText(" alanine codons");
        throughTabs(*window, [&] { visit(*window); });
        QVERIFY2(window->windowTitle() == titles.value(way.window, window->windowTitle()), way.window);
        QTest::keyClick(window, titles.contains(way.window) ? Qt::Key_Return : Qt::Key_Escape);
        QVERIFY2(form.isEnabled(), way.window);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

/// What the window of sources says of @p shown: of the row of a list that @p key leads to, or of what a pane
/// shows.
inline QString sourceOf(QWidget &shown, Qt::Key key = {})
{
    QWidget &owner = *shown.window();
    QApplication::setActiveWindow(&owner);
    if (key != Qt::Key()) {
        shown.setFocus();
        QTest::keyClick(&shown, key);
    }
    QTest::keyClick(owner.focusWidget(), Qt::Key_I, Qt::ControlModifier);
    const QPointer<QWidget> window = owner.findChild<SideWindow *>("frmSource");
    const QString text = window ? get<QTextBrowser>(*window, "txtSource").toPlainText() : "no window";
    if (window)
        QTest::keyClick(window, Qt::Key_Escape);
    return QTest::qWaitFor([&] { return !window; }) ? text : "still open";
}

} // namespace Walk
