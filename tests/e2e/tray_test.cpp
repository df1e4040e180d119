#include "app/optionshost.h"
#include "tests/support/wholerun.h"
#include "widgets/icons.h"
#include "widgets/qtdesktop.h"
#include "widgets/sidewindow.h"

#include <QAction>
#include <QMenu>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
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
    void cleanupTestCase() { m_neighbour.reset(); }
    void minimisingHidesAndADoubleClickBringsBack_data();
    void minimisingHidesAndADoubleClickBringsBack();
    void anOpenDialogComesFirst();
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

    // Mouse and keys from outside, while the program runs on. What it said, if it ended well.
    static std::optional<QString> outcome(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        while (process.state() != QProcess::NotRunning)
            QTest::qWait(10);
        if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
            return {};
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    static void tool(const QString &program, const QStringList &arguments)
    {
        QVERIFY2(outcome(program, arguments), qPrintable(program + u' ' + arguments.join(u' ')));
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
        // trayer may just be moving the icons together.
        for (int attempt = 0; attempt < 4 && !popup(form).isVisible(); ++attempt) {
            click(icon(form).geometry().center(), 3);
            if (QTest::qWaitFor([&] { return popup(form).isVisible(); }, 2000))
                break;
        }
        QVERIFY(popup(form).isVisible());
        QTest::qWait(100); // for the popup to take the mouse
        click(popup(form).mapToGlobal(popup(form).actionGeometry(&item(form, name)).center()), 1);
    }

    static void minimise(const Form1 &form)
    {
        tool(QStringLiteral("xdotool"), {QStringLiteral("windowminimize"), QString::number(form.winId())});
    }

    // Where the window is, and what the popup and the window know of it.
    static QString placeOf(const Form1 &form)
    {
        return QStringLiteral("%1, %2, %3")
            .arg(form.isHidden()      ? QStringLiteral("hidden")
                 : form.isMinimized() ? QStringLiteral("minimised")
                                      : QStringLiteral("shown"))
            .arg(form.TrayMinimized())
            .arg(item(form, "trayminimax").text());
    }

    static inline const QString InTray = QStringLiteral("hidden, -1, Open Alembra");
    static inline const QString OnScreen = QStringLiteral("shown, 0, Minimize Alembra");

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<QSystemTrayIcon> m_neighbour; ///< another program's icon
};

void TrayTest::initTestCase()
{
    QVERIFY2(QSystemTrayIcon::isSystemTrayAvailable(),
             "there is no notification area; run this by tools/headless");
    QVERIFY2(!QStandardPaths::findExecutable(QStringLiteral("xdotool")).isEmpty(), "xdotool is missing");
    QApplication::setDoubleClickInterval(1500); // a busy machine delivers clicks late
    // trayer does not always come back once its last icon has gone: this one stays.
    m_neighbour = std::make_unique<QSystemTrayIcon>(Icons::named(QStringLiteral("help")));
    m_neighbour->show();
    QTRY_VERIFY(m_neighbour->geometry().isValid());
}

void TrayTest::init()
{
    m_folder = std::make_unique<ProgramFolder>();
    m_folder->setOption(56, "0"); // no tip
    m_desktop.targets.clear();
}

void TrayTest::minimisingHidesAndADoubleClickBringsBack_data()
{
    QTest::addColumn<bool>("maximised");
    QTest::newRow("normal") << false;
    QTest::newRow("maximised") << true;
}

void TrayTest::minimisingHidesAndADoubleClickBringsBack()
{
    QFETCH(const bool, maximised);
    runWith("1", "0", [&](Form1 &form) {
        QCOMPARE(placeOf(form), OnScreen);
        if (maximised) {
            form.showMaximized();
            QTRY_COMPARE(form.width(), form.screen()->availableSize().width());
        }
        const QRect before = form.geometry();
        minimise(form);
        QTRY_COMPARE(placeOf(form), InTray);
        QTest::qWait(300);
        QVERIFY(!balloonIsShown());

        click(icon(form).geometry().center(), 1); // one click does nothing
        QTest::qWait(QApplication::doubleClickInterval() + 100);
        QCOMPARE(placeOf(form), InTray);
        doubleClickIcon(form);
        QTRY_COMPARE(placeOf(form), OnScreen);
        QTRY_VERIFY(form.isActiveWindow());
        QTRY_COMPARE(form.geometry(), before);
        QCOMPARE(form.isMaximized(), maximised);

        doubleClickIcon(form);
        QTRY_COMPARE(placeOf(form), InTray);
    });
}

void TrayTest::anOpenDialogComesFirst()
{
    QtDesktop desktop;
    m_folder->setOption(81, "1");
    m_folder->setOption(80, "0");
    const auto inTheDialog = [](const Form1 &form, QWidget *dialog) {
        for (const char *name : {"menuabout", "trayminimax", "trayquit"})
            item(form, name).trigger();
        for (int i = 0; i < 2; ++i)
            Q_EMIT icon(form).activated(QSystemTrayIcon::Trigger);
        QCOMPARE(placeOf(form), OnScreen);
        QVERIFY(!form.findChild<SideWindow *>(QStringLiteral("frmAbout")));
        QTRY_VERIFY(dialog->isActiveWindow());
        minimise(form);
        QTRY_COMPARE(placeOf(form), InTray);
    };
    const auto walk = [&](Form1 &form) {
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        form.executeCommand(1058);
        const QPointer<QWidget> Formoptions = form.findChild<SideWindow *>(QStringLiteral("Formoptions"));
        QTimer::singleShot(0, this, [&] {
            QWidget *dialog = QApplication::activeModalWidget();
            QVERIFY(QTest::qWaitForWindowExposed(dialog));
            inTheDialog(form, dialog);
            if (QTest::currentTestFailed())
                dialog->close(); // else the run waits for it and cannot be tried again
        });
        Formoptions->findChild<QPushButton *>(QStringLiteral("Command1"))->click();
        QTRY_VERIFY(!Formoptions);
        QVERIFY(form.isEnabled());
    };
    QCOMPARE(run(m_folder->root(), {}, desktop, walk), 0);
}

void TrayTest::minimisingByTheWindowManagerTellsInABalloon()
{
    runWith("1", "1", [&](Form1 &form) {
        minimise(form);
        QTRY_VERIFY(balloonIsShown());
        QCOMPARE(placeOf(form), InTray);
    });
}

void TrayTest::popupMovesTheWindowBothWays()
{
    runWith("1", "0", [&](Form1 &form) {
        QCOMPARE(popup(form).defaultAction(), &item(form, "trayminimax"));
        choose(form, "trayminimax");
        QTRY_COMPARE(placeOf(form), InTray);
        form.options().open(); // opening from the tray unloads nothing
        choose(form, "trayminimax");
        QTRY_COMPARE(placeOf(form), OnScreen);
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
        QTRY_COMPARE(placeOf(form), InTray);
        QTest::qWait(600);                // Qt takes its time to see that the window lost the keyboard
        tool(m_folder->executable(), {}); // ends with status 0
        QTRY_COMPARE(placeOf(form), OnScreen);
        QTRY_VERIFY(form.isActiveWindow());
        doubleClickIcon(form); // the next one goes down, not up
        QTRY_COMPARE(placeOf(form), InTray);
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
        QTRY_COMPARE(placeOf(form), InTray);
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
    QPoint icon;
    const auto findIcon = [&icon] {
        // Of the program's windows the one of that size, once trayer has taken it in.
        static const QRegularExpression place(
            QStringLiteral("Position: (\\d+),(\\d+) .*\\n *Geometry: 22x22"));
        const QStringList search{
            QStringLiteral("search"),     QStringLiteral("--onlyvisible"),     QStringLiteral("--classname"),
            QStringLiteral("Alembra_uk"), QStringLiteral("getwindowgeometry"), QStringLiteral("%@")};
        const auto found = place.match(outcome(QStringLiteral("xdotool"), search).value_or(QString()));
        icon = QPoint(found.captured(1).toInt(), found.captured(2).toInt()) + QPoint(11, 11);
        return found.hasMatch();
    };
    QVERIFY(QTest::qWaitFor(findIcon, 20000));
    bool ended = false;
    // "Quit" is the last item. A busy machine may take its time to show the popup: then once more.
    for (int attempt = 0; attempt < 5 && !ended; ++attempt) {
        QVERIFY(QTest::qWaitFor(findIcon, 5000));
        click(icon, 3);
        QTest::qWait(1000);
        tool(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("Up"),
                                         QStringLiteral("Return"), QStringLiteral("Escape")});
        ended = QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }, 3000);
    }
    QVERIFY(ended);
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QCOMPARE(program.readAllStandardError(), QByteArray());
}

QTEST_MAIN(TrayTest)
#include "tray_test.moc"
