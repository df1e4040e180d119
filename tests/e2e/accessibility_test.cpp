#include "tests/e2e/walk.h"
#include "tests/support/wholerun.h"
#include "widgets/modulepanel.h"

#include <QAccessible>
#include <QLabel>
#include <QToolButton>
#include <algorithm>

/// What a screen reader and the keyboard find: every pane and window, walked as they are in the running
/// program.
class AccessibilityTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        m_found.removeDuplicates();
        QVERIFY2(m_found.isEmpty(), qPrintable(std::exchange(m_found, {}).join('\n')));
    }

    // Each change of pane, tab and option leaves the focus in sight, though it was on what has gone. From
    // there Tab and Shift+Tab come by every control once.
    void everyPaneHasNamesAndIsWalkedWithTab()
    {
        run([this](Form1 &form) {
            QVERIFY(QTest::qWaitForWindowActive(&form));
            get<QAbstractButton>(form, "Command7(25)").click(); // values to read
            QCOMPARE(QAccessible::queryAccessibleInterface(&get(form, "imgato"))->role(),
                     QAccessible::Button);
            const auto check = [&] {
                findUnnamed(form);
                findFaultsOfTabOrder(form);
            };
            Walk::throughPanes(form, check, true);
        });
    }

    void everySideWindowHasNamesAndLetters()
    {
        run([this](Form1 &form) {
            Walk::throughSideWindows(form, [this](SideWindow &window) {
                findUnnamed(window);
                if (QStringList{"Formoptions", "frmAbout", "frmSearch"}.contains(window.objectName()))
                    findWithoutLetter(window);
                if (window.objectName() == "frmAbout")
                    QCOMPARE(window.focusWidget()->objectName(), "cmdOk");
            });
        });
    }

    void theFocusComesBackFromASideWindow()
    {
        run([](Form1 &form) {
            QVERIFY(QTest::qWaitForWindowActive(&form));
            form.executeCommand(1119);
            QApplication::processEvents();
            auto &list = get<RowListView>(form, "ListView1");
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

private:
    // Buttons that Alt and a letter do not press, and letters that two of them have.
    void findWithoutLetter(const QWidget &window)
    {
        QStringList texts;
        for (const QAbstractButton *button : window.findChildren<QAbstractButton *>()) {
            if (button->isVisible() && button->isEnabled() && !qobject_cast<const QToolButton *>(button))
                texts << button->text();
        }
        for (const QTabBar *tabs : window.findChildren<QTabBar *>()) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                texts << tabs->tabText(tab);
        }
        QStringList letters{QString()};
        for (const QString &text : std::as_const(texts)) {
            letters << QKeySequence::mnemonic(text).toString();
            if (letters.indexOf(letters.constLast()) < letters.size() - 1)
                m_found << "no letter of its own: " + text;
        }
    }

    // Controls that take the focus and tell a screen reader nothing, and object names that two controls have.
    void findUnnamed(const QWidget &window)
    {
        QStringList names;
        for (QWidget *control : window.findChildren<QWidget *>()) {
            const QString name = control->objectName();
            if (control->window() != &window || name.startsWith("qt_")) // parts of Qt's own controls
                continue;
            if (names.contains(name) && !name.isEmpty() && !qobject_cast<QTabBar *>(control->parentWidget()))
                m_found << "twice: " + name;
            names << name;
            const auto *label = qobject_cast<QLabel *>(control);
            const bool isEmpty = label && label->text().isEmpty(); // a value that there is not
            if (!control->isVisible() || control->focusPolicy() == Qt::NoFocus || control->focusProxy() ||
                isEmpty)
                continue;
            const QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(control);
            if (!heard || heard->text(QAccessible::Name).trimmed().isEmpty() ||
                heard->role() == QAccessible::NoRole)
                m_found << "without name or role: " + nameOf(control);
        }
    }

    static QString nameOf(const QWidget *control)
    {
        return control ? control->parentWidget()->objectName() + '/' + control->objectName() : "nothing";
    }

    // To the right, be it up into the next column, or down, or onto what is above the control. Two pixels for
    // edges that neighbours share, twelve for hydrogen, which begins beside the lowest of the buttons over
    // the table.
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

    void findFaultsOfTabOrder(Form1 &form)
    {
        QApplication::processEvents();
        const QList<ModulePanel *> panes = form.findChildren<ModulePanel *>();
        const ModulePanel &pane = **std::find_if(panes.begin(), panes.end(),
                                                 [](const ModulePanel *each) { return each->isVisible(); });
        const QList<QWidget *> there = round(form, Qt::Key_Tab);
        QList<QWidget *> back = round(form, Qt::Key_Backtab);
        std::reverse(back.begin(), back.end());
        int leaps = 0;
        for (qsizetype step = 1; step < there.size(); ++step) {
            if (!followsTheEye(*there[step - 1], *there[step]) && ++leaps > 1) // one closes the round
                m_found << QString("from %1 to %2").arg(nameOf(there[step - 1]), nameOf(there[step]));
        }
        if (back != there)
            m_found << "another way back in " + pane.objectName();
        for (const QWidget *control : pane.findChildren<QWidget *>()) {
            const bool isStop = (control->focusPolicy() & Qt::TabFocus) && !control->focusProxy() &&
                                control->isEnabled() && Controls::isOnTop(*control, pane);
            if (std::count(there.begin() + 1, there.end(), control) != (isStop ? 1 : 0))
                m_found << "not once at " + nameOf(control);
        }
        for (qsizetype half = there.size() / 2; half > 0; --half)
            QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
    }

    QStringList m_found;
};

QTEST_MAIN(AccessibilityTest)
#include "accessibility_test.moc"
