#include "tests/e2e/walk.h"
#include "tests/support/files.h"
#include "tests/support/wholerun.h"
#include "widgets/modulepanel.h"
#include "widgets/rowlistview.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QTest>
#include <QToolButton>
#include <algorithm>

/// What a screen reader and the keyboard find: every pane and window, walked as they stand in the running
/// program.
class AccessibilityTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlOfEveryPaneHasAName();
    void everyControlOfEverySideWindowHasAName();
    void everyPaneIsWalkedWithTab();
    void theFocusComesBackFromASideWindow();

private:
    // Buttons that Alt and a letter do not press, and letters that two of them have.
    static QStringList withoutLetter(const QWidget &window)
    {
        QStringList found;
        QStringList letters;
        const auto check = [&](const QString &text) {
            const QString letter = QKeySequence::mnemonic(text).toString();
            if (letter.isEmpty() || letters.contains(letter))
                found << text;
            letters << letter;
        };
        for (const QAbstractButton *button : window.findChildren<QAbstractButton *>()) {
            if (button->isVisible() && button->isEnabled() && !qobject_cast<const QToolButton *>(button))
                check(button->text());
        }
        for (const QTabBar *tabs : window.findChildren<QTabBar *>()) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                check(tabs->tabText(tab));
        }
        return found;
    }

    static QString nameOf(const QWidget *control)
    {
        return control ? control->parentWidget()->objectName() + QLatin1Char('/') + control->objectName()
                       : QStringLiteral("nothing");
    }

    static bool isStop(const QWidget &control, const QWidget &pane)
    {
        return (control.focusPolicy() & Qt::TabFocus) && !control.focusProxy() && control.isEnabled() &&
               Controls::isOnTop(control, pane);
    }

    // To the right, be it up into the next column, or down, or onto what lies over the control. Two pixels
    // for edges that neighbours share, twelve for hydrogen, which begins beside the lowest of the buttons
    // over the table.
    static bool followsTheEye(const QWidget &from, const QWidget &to)
    {
        const QRect a(from.mapTo(from.window(), QPoint()), from.size());
        const QRect b(to.mapTo(to.window(), QPoint()), to.size());
        return b.left() >= a.right() - 2 || b.top() >= a.bottom() - 12 || a.contains(b);
    }

    // The stops from the focus all the way round.
    static QList<QWidget *> round(Form1 &form, Qt::Key key)
    {
        constexpr int Many = 60;
        QList<QWidget *> way{form.focusWidget()};
        do {
            QTest::keyClick(form.focusWidget(), key);
            way << form.focusWidget();
        } while (way.constLast() != way.constFirst() && way.size() < Many);
        return way;
    }

    static QStringList faultsOfTabOrder(Form1 &form)
    {
        QApplication::processEvents();
        const QList<ModulePanel *> panes = form.findChildren<ModulePanel *>();
        const ModulePanel &pane = **std::find_if(panes.begin(), panes.end(),
                                                 [](const ModulePanel *each) { return each->isVisible(); });
        const QList<QWidget *> there = round(form, Qt::Key_Tab);
        QList<QWidget *> back = round(form, Qt::Key_Backtab);
        std::reverse(back.begin(), back.end());
        QStringList faults;
        int leaps = 0;
        for (qsizetype step = 1; step < there.size(); ++step) {
            if (!followsTheEye(*there[step - 1], *there[step]) && ++leaps > 1) // one closes the round
                faults << QStringLiteral("from %1 to %2").arg(nameOf(there[step - 1]), nameOf(there[step]));
        }
        if (back != there)
            faults << QStringLiteral("another way back in %1").arg(pane.objectName());
        for (const QWidget *control : pane.findChildren<QWidget *>()) {
            const auto times = std::count(there.begin() + 1, there.end(), control);
            if (times != (isStop(*control, pane) ? 1 : 0))
                faults << QStringLiteral("%1 times at %2").arg(times).arg(nameOf(control));
        }
        for (qsizetype half = there.size() / 2; half > 0; --half)
            QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
        return faults;
    }

    template<class W = QAbstractButton>
    static W &control(Form1 &form, const char *name)
    {
        return *form.findChild<W *>(QLatin1StringView(name));
    }

    // Controls that take the focus and tell a screen reader nothing, and object names that two controls have.
    static QStringList unnamed(const QWidget &window)
    {
        QStringList found;
        QStringList names;
        for (QWidget *control : window.findChildren<QWidget *>()) {
            const QString name = control->objectName();
            const bool own = !name.startsWith("qt_") && !qobject_cast<QTabBar *>(control->parentWidget());
            if (control->window() == &window && own && !name.isEmpty()) {
                if (names.contains(name))
                    found << name + " twice";
                names << name;
            }
            if (!control->isVisible() || control->focusPolicy() == Qt::NoFocus || control->focusProxy())
                continue;
            if (control->objectName().startsWith(QStringLiteral("qt_")))
                continue; // parts of Qt's own controls
            const auto *label = qobject_cast<QLabel *>(control);
            if (label && label->text().isEmpty())
                continue; // a value that there is not
            const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(control);
            const bool named = interface && !interface->text(QAccessible::Name).trimmed().isEmpty();
            const bool roled = interface && interface->role() != QAccessible::NoRole;
            if (!named || !roled)
                found << QStringLiteral("%1 (%2)").arg(
                    control->objectName(), QString::fromLatin1(control->metaObject()->className()));
        }
        return found;
    }
};

void AccessibilityTest::everyControlOfEveryPaneHasAName()
{
    const ProgramFolder folder;
    QStringList found;
    run(folder, [&](Form1 &form) {
        control(form, "Command7(25)").click(); // values to read
        auto *picture = QAccessible::queryAccessibleInterface(&control<QWidget>(form, "imgato"));
        QCOMPARE(picture->role(), QAccessible::Button);
        Walk::throughPanes(form, [&] { found << unnamed(form); });
    });
    found.removeDuplicates();
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char(' '))));
}

void AccessibilityTest::everyControlOfEverySideWindowHasAName()
{
    const ProgramFolder folder;
    QStringList found;
    run(folder, [&](Form1 &form) {
        for (const QString action : {"Id1058", "Id1122", "actSearchAll"}) {
            get<QAction>(form, action).trigger();
            SideWindow *window = Walk::sideWindow(form);
            QVERIFY(window);
            if (action == "Id1122")
                QCOMPARE(window->focusWidget()->objectName(), QStringLiteral("cmdOk"));
            Walk::throughTabs(*window, [&] { found << unnamed(*window) << withoutLetter(*window); });
            QTest::keyClick(window, Qt::Key_Escape);
            QVERIFY(form.isEnabled());
        }
    });
    found.removeDuplicates();
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char(' '))));
}

// Each change of pane, tab and option leaves the focus in sight, though it was on what has gone. From there
// Tab and Shift+Tab come by every control once.
void AccessibilityTest::everyPaneIsWalkedWithTab()
{
    const ProgramFolder folder;
    QStringList found;
    run(folder, [&](Form1 &form) {
        QVERIFY(QTest::qWaitForWindowActive(&form));
        control(form, "Command7(25)").click();
        Walk::throughPanes(
            form, [&] { found << faultsOfTabOrder(form); }, true);
    });
    found.removeDuplicates();
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

void AccessibilityTest::theFocusComesBackFromASideWindow()
{
    const ProgramFolder folder;
    run(folder, [&](Form1 &form) {
        QVERIFY(QTest::qWaitForWindowActive(&form));
        form.executeCommand(1119);
        QApplication::processEvents();
        auto &list = control<RowListView>(form, "ListView1");
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Return);
        SideWindow *window = Walk::sideWindow(form);
        QVERIFY(window && !form.isEnabled());
        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_VERIFY(list.hasFocus());
        QCOMPARE(list.selectedRow(), 1);
    });
}

QTEST_MAIN(AccessibilityTest)
#include "accessibility_test.moc"
