#include "tests/e2e/walk.h"
#include "tests/support/wholerun.h"
#include "widgets/modulepanel.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <QToolButton>

/// What a screen reader and the keyboard find: every pane and window, walked as they stand in the running
/// program.
class AccessibilityTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlOfEveryPaneHasAName();
    void everyControlOfEverySideWindowHasAName();
    void everyPaneIsReachedByTab();

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

    // Controls that take the focus and tell a screen reader nothing.
    static QStringList unnamed(const QWidget &window)
    {
        QStringList found;
        for (QWidget *control : window.findChildren<QWidget *>()) {
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
        form.findChild<QAbstractButton *>(QStringLiteral("Command7(25)"))->click(); // values to read
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
        for (const int id : {1058, 1122}) {
            form.executeCommand(id);
            SideWindow *window = Walk::sideWindow(form);
            QVERIFY(window);
            if (id == 1122)
                QCOMPARE(window->focusWidget()->objectName(), QStringLiteral("cmdOk"));
            Walk::throughTabs(*window, [&] { found << unnamed(*window) << withoutLetter(*window); });
            QTest::keyClick(window, Qt::Key_Escape);
            QVERIFY(form.isEnabled());
        }
    });
    found.removeDuplicates();
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char(' '))));
}

// Tab comes into every pane that has something to operate.
void AccessibilityTest::everyPaneIsReachedByTab()
{
    const ProgramFolder folder;
    run(folder, [&](Form1 &form) {
        for (const PanelName &name : Panels) {
            const auto *panel = form.findChild<ModulePanel *>(QString::fromLatin1(name.frame));
            for (const Command &command : Commands) {
                if (command.kind == CommandKind::ShowPanel && command.panel == name.panel)
                    form.executeCommand(command.id);
            }
            if (!panel->isVisible())
                continue;
            QWidget *control = form.nextInFocusChain();
            int inside = 0;
            while (control && control != &form) {
                const bool stop = control->isVisible() && control->isEnabled() &&
                                  (control->focusPolicy() & Qt::TabFocus) && panel->isAncestorOf(control);
                inside += stop ? 1 : 0;
                control = control->nextInFocusChain();
            }
            QVERIFY2(inside > 0 || name.panel == PanelId::Polymers, name.frame);
        }
    });
}

QTEST_MAIN(AccessibilityTest)
#include "accessibility_test.moc"
