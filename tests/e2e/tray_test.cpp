#include "app/optionshost.h"
#include "tests/support/wholerun.h"
#include "widgets/icons.h"
#include "widgets/qtdesktop.h"
#include "widgets/sidewindow.h"

#include <QAction>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QSystemTrayIcon>

/// The way into the notification area and back, by mouse, on a desktop with a window manager. To be run by
/// tools/headless.
class TrayTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QSystemTrayIcon::isSystemTrayAvailable(),
                 "there is no notification area; run this by tools/headless");
        QVERIFY2(!QStandardPaths::findExecutable("xdotool").isEmpty(), "xdotool is missing");
        QApplication::setDoubleClickInterval(1500); // a busy machine delivers clicks late
        // trayer does not always come back once its last icon has gone: this one stays.
        m_neighbour = std::make_unique<QSystemTrayIcon>(Icons::named("help"));
        m_neighbour->show();
        QTRY_VERIFY_WITH_TIMEOUT(m_neighbour->geometry().isValid(), Patience);
    }
    void cleanupTestCase() { m_neighbour.reset(); }

    void minimisingHidesAndADoubleClickBringsBack()
    {
        for (const bool maximised : {false, true}) { // the second time with a balloon and an open window
            runWith("1", maximised ? "1" : "0", [&](Form1 &form) {
                QCOMPARE(placeOf(form), OnScreen);
                if (maximised) {
                    form.showMaximized();
                    QTRY_COMPARE_WITH_TIMEOUT(form.width(), form.screen()->availableSize().width(), Patience);
                    form.options().open();
                    hasFocus(&get(form, "Formoptions"));
                }
                const QRect before = form.geometry();
                minimise(form, InTray);
                QTRY_COMPARE_WITH_TIMEOUT(balloonIsShown(), maximised, Patience);
                QTRY_VERIFY_WITH_TIMEOUT(!form.findChild<QWidget *>("Formoptions"), Patience);
                QVERIFY(form.isEnabled());
                doubleClickIcon(form, OnScreen);
                QTRY_VERIFY_WITH_TIMEOUT(form.isActiveWindow(), Patience);
                QTRY_COMPARE_WITH_TIMEOUT(form.geometry(), before, Patience);
                QCOMPARE(form.isMaximized(), maximised);
            });
        }
    }

    // Icon and popup raise it. Minimising closes it, and the window whose handler waits for it.
    void anOpenDialogComesFirst()
    {
        QtDesktop desktop;
        const ProgramFolder folder;
        folder.setOption(81, "1");
        const auto inTheDialog = [](const Form1 &form, QWidget *dialog) {
            for (const char *name : {"menuabout", "trayminimax", "trayquit"})
                item(form, name).trigger();
            for (int i = 0; i < 2; ++i)
                Q_EMIT icon(form).activated(QSystemTrayIcon::Trigger);
            QCOMPARE(placeOf(form), OnScreen);
            QVERIFY(!form.findChild<SideWindow *>("frmAbout"));
            hasFocus(dialog);
            minimise(form, InTray);
        };
        const auto walk = [&](Form1 &form) {
            QVERIFY(QTest::qWaitForWindowExposed(&form));
            form.executeCommand(1058);
            const QPointer<QWidget> Formoptions = &get(form, "Formoptions");
            hasFocus(Formoptions);
            QTimer::singleShot(0, this, [&] {
                QWidget *dialog = QApplication::activeModalWidget();
                QVERIFY(QTest::qWaitForWindowExposed(dialog));
                inTheDialog(form, dialog);
                if (QTest::currentTestFailed())
                    dialog->close(); // else the run waits for it
            });
            get<QPushButton>(*Formoptions, "Command1").click();
            QTRY_VERIFY_WITH_TIMEOUT(!Formoptions, Patience);
            QVERIFY(form.isEnabled());
        };
        QCOMPARE(run(folder.root(), {}, desktop, walk), 0);
    }

    void popupLeadsEverywhere()
    {
        m_desktop.targets.clear();
        runWith("1", "0", [this](Form1 &form) {
            QCOMPARE(popup(form).defaultAction(), &item(form, "trayminimax"));
            choose(form, "trayminimax");
            QTRY_COMPARE_WITH_TIMEOUT(placeOf(form), InTray, Patience);
            form.options().open(); // opening from the tray unloads nothing
            choose(form, "trayminimax");
            QTRY_COMPARE_WITH_TIMEOUT(placeOf(form), OnScreen, Patience);
            QVERIFY(get(form, "Formoptions").isVisible() && get(form, "Formoptions").close());
            for (const char *name : {"menuaide", "siteweb", "traydon"}) {
                const auto before = m_desktop.targets.size();
                choose(form, name);
                QTRY_COMPARE_WITH_TIMEOUT(m_desktop.targets.size(), before + 1, Patience);
            }
            choose(form, "trayquit");
            QTRY_VERIFY_WITH_TIMEOUT(form.isHidden(), Patience);
        });
        QVERIFY(m_desktop.targets[0].endsWith("/alembra_help_uk.chm"));
        QCOMPARE(m_desktop.targets[2], m_desktop.targets[1] + "/uk/don.php");
    }

    void withoutTheOptionMinimisingMinimises()
    {
        runWith("0", "1", [](Form1 &form) {
            QVERIFY(!item(form, "trayminimax").isEnabled());
            doubleClickIcon(form, "shown, 0, Minimize Alembra");
            minimise(form, "minimised, 0, Minimize Alembra");
            QApplication::processEvents(); // what the change of state leads to
            QVERIFY(!form.isHidden() && !balloonIsShown());
        });
    }

    void secondStartRaisesOutOfTheTray()
    {
        runWith("1", "0", [this](Form1 &form) {
            minimise(form, InTray);
            QTRY_VERIFY_WITH_TIMEOUT(!QGuiApplication::focusWindow(),
                                     Patience); // Qt takes its time to see that
            tool(m_folder->executable(), {});
            QTRY_COMPARE_WITH_TIMEOUT(placeOf(form), OnScreen, Patience);
            QTRY_VERIFY_WITH_TIMEOUT(form.isActiveWindow(), Patience);
            doubleClickIcon(form, InTray); // the next one goes down, not up
        });
    }

private:
    void runWith(const char *tray, const char *balloon, const Steps &walk)
    {
        m_folder = std::make_unique<ProgramFolder>();
        m_folder->setOption(81, tray);
        m_folder->setOption(80, balloon);
        const auto steps = [&](Form1 &form) {
            QVERIFY(QTest::qWaitForWindowExposed(&form));
            QTRY_VERIFY_WITH_TIMEOUT(icon(form).geometry().isValid(), Patience);
            walk(form);
        };
        QCOMPARE(run(*m_folder, steps), 0);
    }

    static QSystemTrayIcon &icon(const Form1 &form) { return *form.findChild<QSystemTrayIcon *>("TrayIcon"); }
    static QMenu &popup(const Form1 &form) { return *icon(form).contextMenu(); }
    static QAction &item(const Form1 &form, const char *name) { return get<QAction>(popup(form), name); }

    static bool balloonIsShown()
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        return std::any_of(windows.begin(), windows.end(), [](const QWidget *window) {
            return window->isVisible() && window->inherits("QBalloonTip");
        });
    }

    // Mouse and keys from outside, while the program runs on. It has to end well.
    static void tool(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        QTRY_COMPARE_WITH_TIMEOUT(process.state(), QProcess::NotRunning, Patience);
        QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
                 qPrintable(program + ' ' + arguments.join(' ')));
    }

    // Again where it had no effect: the notification area may just have moved its icons.
    static void repeatUntil(const std::function<bool()> &isDone, const std::function<void()> &act)
    {
        bool done = isDone();
        for (int attempt = 0; attempt < 5 && !done && !QTest::currentTestFailed(); ++attempt) {
            act();
            done = QTest::qWaitFor(isDone, Patience / 6);
        }
        QVERIFY(done);
    }

    static void click(const QPoint &place, int button, int times = 1)
    {
        tool("xdotool", {"mousemove", QString::number(place.x()), QString::number(place.y()), "click",
                         "--repeat", QString::number(times), "--delay", "60", QString::number(button)});
    }

    static void doubleClickIcon(const Form1 &form, const QString &place)
    {
        const QSignalSpy clicks(&icon(form), &QSystemTrayIcon::activated);
        repeatUntil([&] { return clicks.size() > 1 && placeOf(form) == place; },
                    [&] { click(icon(form).geometry().center(), 1, 2); });
    }

    static void choose(const Form1 &form, const char *name)
    {
        repeatUntil([&] { return popup(form).isVisible(); },
                    [&] { click(icon(form).geometry().center(), 3); });
        QVERIFY(QTest::qWaitForWindowExposed(&popup(form)));
        click(popup(form).mapToGlobal(popup(form).actionGeometry(&item(form, name)).center()), 1);
    }

    // isActiveWindow() is also true while a parent has the focus. A focus that a blocked window gets later
    // makes Qt activate the dialog, and the window manager would bring back all that it has just minimised.
    static void hasFocus(const QWidget *window)
    {
        QTRY_COMPARE_WITH_TIMEOUT(QGuiApplication::focusWindow(), window->windowHandle(), Patience);
    }

    // By the window manager.
    static void minimise(const Form1 &form, const QString &place)
    {
        tool("xdotool", {"windowminimize", QString::number(form.winId())});
        QTRY_COMPARE_WITH_TIMEOUT(placeOf(form), place, Patience);
    }

    // Where the window is, and what the popup and the window know of it.
    static QString placeOf(const Form1 &form)
    {
        return QString("%1, %2, %3")
            .arg(form.isHidden()      ? "hidden"
                 : form.isMinimized() ? "minimised"
                                      : "shown")
            .arg(form.TrayMinimized())
            .arg(item(form, "trayminimax").text());
    }

    static constexpr int Patience =
        60000; // milliseconds: a busy machine is slow, and waits end when they can
    static inline const QString InTray = "hidden, -1, Open Alembra";
    static inline const QString OnScreen = "shown, 0, Minimize Alembra";

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<QSystemTrayIcon> m_neighbour; ///< another program's icon
};

QTEST_MAIN(TrayTest)
#include "tray_test.moc"
