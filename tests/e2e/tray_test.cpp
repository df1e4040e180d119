#include "app/optionshost.h"
#include "core/sidewindow.h"
#include "tests/support/wholerun.h"

#include <QAction>
#include <QMenu>
#include <QPointer>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QSystemTrayIcon>
#include <QTest>

/// The way into the notification area and back, by mouse, on a desktop with a window manager. To be run by
/// tools/headless.
class TrayTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void minimisingHidesAndADoubleClickBringsBack();
    void minimisingByTheWindowManagerTellsInABalloon();
    void popupMovesTheWindowBothWays();
    void popupLeadsToHelpAndPages();
    void withoutTheOptionMinimisingMinimises();
    void secondStartRaisesOutOfTheTray();
    void sideWindowsAreUnloadedOnTheWay();
    void popupQuitsWithStatusZero();

private:
    using Walk = std::function<void(Form1 &)>;

    void runWith(const char *tray, const char *balloon, const Walk &walk)
    {
        m_folder->setOption(81, tray);
        m_folder->setOption(80, balloon);
        QCOMPARE(run(*m_folder,
                     [&](Form1 &form) {
                         QVERIFY(QTest::qWaitForWindowExposed(&form));
                         QTRY_VERIFY2(icon(form).geometry().isValid(), "the icon did not come up");
                         walk(form);
                     }),
                 0);
    }

    static QSystemTrayIcon &icon(const Form1 &form)
    {
        return *form.findChild<QSystemTrayIcon *>(QStringLiteral("TrayIcon"));
    }

    static QMenu &popup(const Form1 &form) { return *icon(form).contextMenu(); }

    static QAction &item(const Form1 &form, const char *name)
    {
        return *popup(form).findChild<QAction *>(QLatin1StringView(name));
    }

    static bool balloonIsShown()
    {
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->inherits("QBalloonTip"))
                return true;
        }
        return false;
    }

    // Mouse and window list from outside, while the program runs on.
    static QString tool(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        while (process.state() != QProcess::NotRunning)
            QTest::qWait(10);
        if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
            QTest::qFail(qPrintable(program + QLatin1Char(' ') + arguments.join(QLatin1Char(' '))), __FILE__,
                         __LINE__);
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    static void click(const QPoint &place, int button, int times = 1)
    {
        tool(QStringLiteral("xdotool"),
             {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y()),
              QStringLiteral("click"), QStringLiteral("--repeat"), QString::number(times),
              QStringLiteral("--delay"), QStringLiteral("60"), QString::number(button)});
    }

    static void doubleClickIcon(const Form1 &form) { click(icon(form).geometry().center(), 1, 2); }

    static void choose(const Form1 &form, const char *name)
    {
        click(icon(form).geometry().center(), 3);
        QTRY_VERIFY(popup(form).isVisible());
        QTest::qWait(100); // for the popup to take the mouse
        click(popup(form).mapToGlobal(popup(form).actionGeometry(&item(form, name)).center()), 1);
    }

    static void minimise(const Form1 &form)
    {
        tool(QStringLiteral("xdotool"), {QStringLiteral("windowminimize"), QString::number(form.winId())});
    }

    static bool isInTray(const Form1 &form)
    {
        return form.isHidden() && form.TrayMinimized() == -1 &&
               item(form, "trayminimax").text() == QStringLiteral("Open Alembra");
    }

    static bool isOnScreen(const Form1 &form)
    {
        return form.isVisible() && !form.isMinimized() && form.TrayMinimized() == 0 &&
               item(form, "trayminimax").text() == QStringLiteral("Minimize Alembra");
    }

    std::unique_ptr<ProgramFolder> m_folder;
};

void TrayTest::initTestCase()
{
    QVERIFY2(QSystemTrayIcon::isSystemTrayAvailable(),
             "there is no notification area; run this by tools/headless");
    for (const char *program : {"xdotool", "wmctrl"})
        QVERIFY2(!QStandardPaths::findExecutable(QLatin1StringView(program)).isEmpty(), program);
}

void TrayTest::init()
{
    m_folder = std::make_unique<ProgramFolder>();
    m_folder->setOption(56, "0"); // no tip
    m_desktop.targets.clear();
}

void TrayTest::minimisingHidesAndADoubleClickBringsBack()
{
    runWith("1", "0", [&](Form1 &form) {
        QVERIFY(isOnScreen(form));
        const QRect before = form.geometry();
        minimise(form);
        QTRY_VERIFY(isInTray(form));
        QTest::qWait(300);
        QVERIFY(!balloonIsShown());

        click(icon(form).geometry().center(), 1); // one click does nothing
        QTest::qWait(QApplication::doubleClickInterval() + 100);
        QVERIFY(isInTray(form));
        doubleClickIcon(form);
        QTRY_VERIFY(isOnScreen(form));
        QTRY_VERIFY(form.isActiveWindow());
        QTRY_COMPARE(form.geometry(), before);

        doubleClickIcon(form);
        QTRY_VERIFY(isInTray(form));
    });
}

void TrayTest::minimisingByTheWindowManagerTellsInABalloon()
{
    runWith("1", "1", [&](Form1 &form) {
        minimise(form);
        QTRY_VERIFY(balloonIsShown());
        QVERIFY(isInTray(form));
    });
}

void TrayTest::popupMovesTheWindowBothWays()
{
    runWith("1", "0", [&](Form1 &form) {
        QCOMPARE(popup(form).defaultAction(), &item(form, "trayminimax"));
        choose(form, "trayminimax");
        QTRY_VERIFY(isInTray(form));
        form.options().open(); // opening from the tray unloads nothing
        choose(form, "trayminimax");
        QTRY_VERIFY(isOnScreen(form));
        QVERIFY(form.findChild<SideWindow *>(QStringLiteral("Formoptions"))->isVisible());
        form.findChild<SideWindow *>(QStringLiteral("Formoptions"))->close();
    });
}

void TrayTest::popupLeadsToHelpAndPages()
{
    runWith("0", "0", [&](Form1 &form) {
        choose(form, "menuaide");
        QTRY_COMPARE(m_desktop.targets.size(), 1);
        choose(form, "siteweb");
        QTRY_COMPARE(m_desktop.targets.size(), 2);
        choose(form, "traydon");
        QTRY_COMPARE(m_desktop.targets.size(), 3);
        QCOMPARE(m_desktop.targets[0], m_folder->path(QStringLiteral("alembra_help_uk.chm")));
        QVERIFY(m_desktop.targets[2].startsWith(m_desktop.targets[1]));
        QVERIFY(m_desktop.targets[2].endsWith(QStringLiteral("/uk/don.php")));
    });
}

void TrayTest::withoutTheOptionMinimisingMinimises()
{
    runWith("0", "1", [&](Form1 &form) {
        QVERIFY(!item(form, "trayminimax").isEnabled());
        doubleClickIcon(form);
        QTest::qWait(200);
        QVERIFY(!form.isHidden());
        minimise(form);
        QTRY_VERIFY(form.isMinimized());
        QTest::qWait(300);
        QVERIFY(!form.isHidden());
        QCOMPARE(form.TrayMinimized(), 0);
        QVERIFY(!balloonIsShown());
    });
}

void TrayTest::secondStartRaisesOutOfTheTray()
{
    runWith("1", "0", [&](Form1 &form) {
        minimise(form);
        QTRY_VERIFY(isInTray(form));
        QTest::qWait(600);                // Qt takes its time to see that the window lost the keyboard
        tool(m_folder->executable(), {}); // ends with status 0
        QTRY_VERIFY(isOnScreen(form));
        QTRY_VERIFY(form.isActiveWindow());
        doubleClickIcon(form); // the next one goes down, not up
        QTRY_VERIFY(isInTray(form));
    });
}

void TrayTest::sideWindowsAreUnloadedOnTheWay()
{
    runWith("1", "0", [&](Form1 &form) {
        form.executeCommand(1058);
        const QPointer<QWidget> Formoptions = form.findChild<SideWindow *>(QStringLiteral("Formoptions"));
        QVERIFY(Formoptions && Formoptions->isVisible());
        QVERIFY(!form.isEnabled());
        doubleClickIcon(form);
        QTRY_VERIFY(isInTray(form));
        QTRY_VERIFY(!Formoptions);
        QVERIFY(form.isEnabled());
    });
}

void TrayTest::popupQuitsWithStatusZero()
{
    QProcess program;
    m_folder->setOption(81, "1");
    program.start(m_folder->executable(), {});
    QVERIFY(program.waitForStarted());
    static const QRegularExpression mainWindow(QStringLiteral("[^%] Alembra\n"));
    QTRY_VERIFY_WITH_TIMEOUT(tool(QStringLiteral("wmctrl"), {QStringLiteral("-l")}).contains(mainWindow),
                             20000);
    QTest::qWait(500);
    // The only icon there is.
    tool(QStringLiteral("xdotool"),
         {QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--class"),
          QStringLiteral("trayer"), QStringLiteral("mousemove"), QStringLiteral("--window"),
          QStringLiteral("%1"), QStringLiteral("12"), QStringLiteral("12"), QStringLiteral("click"),
          QStringLiteral("3")});
    QTest::qWait(500);
    tool(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("Up"), QStringLiteral("Return")});
    QTRY_COMPARE_WITH_TIMEOUT(program.state(), QProcess::NotRunning, 10000);
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
}

QTEST_MAIN(TrayTest)
#include "tray_test.moc"
