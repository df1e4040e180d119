#include "app/commandbars.h"
#include "app/commands.h"
#include "app/copyactions.h"
#include "app/frmload.h"
#include "app/menulayout.h"
#include "app/ownactions.h"
#include "app/traydoubleclick.h"
#include "store/rowlist.h"
#include "tests/support/files.h"
#include "widgets/rowlistview.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMainWindow>
#include <QMenuBar>
#include <QTemporaryDir>

class ShellTest final : public QObject
{
    Q_OBJECT

    static MenuLayout delivered() { return MenuLayout::read(ALEMBRA_FOLDER "/menuc_uk.xcb"); }

private Q_SLOTS:
    void deliveredLayoutPlacesEveryCommandOnce()
    {
        QList<int> placed;
        const MenuLayout layout = delivered();
        for (const MenuLayout::Menu &menu : layout.menus) {
            for (const MenuLayout::Entry &entry : menu.entries) {
                placed << entry.id;
                QVERIFY2(entry.id == 0 || !entry.caption.isEmpty(), qPrintable(QString::number(entry.id)));
            }
        }
        for (const MenuLayout::Entry &entry : layout.toolBars.value(0).entries)
            QVERIFY(placed.contains(entry.id)); // there it has its caption
        QMainWindow window;
        CommandBars bars(window);
        bars.load(layout);
        QStringList shortcuts;
        for (const Command &command : Commands) {
            const QAction &action = bars.action(command.id);
            QVERIFY2(placed.count(command.id) == 1 && !action.icon().isNull(), qPrintable(action.text()));
            if (!action.shortcut().isEmpty())
                shortcuts << action.shortcut().toString();
        }
        QCOMPARE(shortcuts.removeDuplicates(), 0);
        QCOMPARE(bars.action(1121).shortcut(), QKeySequence("Ctrl+F"));
    }

    void malformedLayoutIsRefused()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("menuc_uk.xcb");
        for (const char *content : {"<html/>", "<layout><menubar><menu caption='a'><command id='1005'/>",
                                    "<layout><menubar><button/></menubar></layout>",
                                    "<layout><toolbar><command/></toolbar></layout>"}) {
            writeFile(path, content);
            QVERIFY2(errorOf([&] { MenuLayout::read(path); }) == ErrorNumber::InvalidFileFormat, content);
        }
    }

    void unknownIdsArePlacedAndDoNothing()
    {
        QMainWindow window;
        CommandBars bars(window);
        bars.load({{{"Menu", {{1107, "Unknown", {}, {}, {}}, {}}}}, {}});
        QCOMPARE(window.menuBar()->actions().constFirst()->text(), "Menu");
        QCOMPARE(bars.action(1107).objectName(), "Id1107");
        QVERIFY(!findCommand(1107));
        QVERIFY(!findCommand(1146));
    }

    void editMenuCopiesFromTheList()
    {
        for (const char *menu : {"&Edit", "&Fichier"}) { // beside commands, and in a menu of its own
            QMainWindow window;
            CommandBars bars(window);
            OwnActions own(window);
            CopyActions copyActions(own, window);
            connect(&bars, &CommandBars::updateWanted, &copyActions, &CopyActions::update);
            bars.load({{{menu, {{1121, "&Find...", {}, {}, {}}}}}, {}});
            own.place(bars);
            RowList rows;
            rows.append(u"Acetone");
            rows.append(u"Water");
            rows.filled();
            window.setCentralWidget(new RowListView("ListView1", rows, {{"Name", 100}}, &window));
            window.show();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            const auto copied = [&window](Qt::Key key) {
                QTest::keyClick(&window, Qt::Key_E, Qt::AltModifier);
                QTest::keyClick(QApplication::activePopupWidget(), key);
                return QApplication::activePopupWidget() ? "still open" : QApplication::clipboard()->text();
            };
            QCOMPARE(copied(Qt::Key_T), "Name\nAcetone\nWater\n"); // the only list on screen
            window.centralWidget()->setFocus();
            QTest::keyClick(window.centralWidget(), Qt::Key_Down);
            QCOMPARE(copied(Qt::Key_R), "Water");
        }
    }

    void menuStyleJumpsFromThreeToFive()
    {
        QList<int> themes;
        for (const Value &style : {Value(), Value(3), Value(4), Value(5), Value(6), Value(QString("4"))})
            themes << themeOfMenuStyle(style);
        QCOMPARE(themes, (QList{0, 3, 5, 6, -1, -1}));
    }

    void progressIsRoundedHalfToEvenInSinglePrecision()
    {
        frmload splash;
        splash.ProgressTick();
        QCOMPARE(splash.windowTitle(), "5% Alembra");
        QCOMPARE(progressPercent(1, 8), 12);
        QCOMPARE(progressPercent(3, 8), 38);
    }

    void eachDoubleClickOnTheTrayCountsOnce()
    {
        const struct
        {
            // c is a click, d a double click, a digit the hundreds of milliseconds that pass.
            QByteArray told;
            int counted;
        } Rows[]{
            {"c", 0},    {"c3c", 1}, {"c5c", 0},     {"c5c3c", 1},   {"c1d", 1},
            {"c1cd", 1}, {"d", 1},   {"c1d1c1d", 2}, {"c1c1c1c", 2}, {"c1d1c", 1},
        };
        for (const auto &row : Rows) {
            TrayDoubleClick clicks(400);
            qint64 now = 0;
            int count = 0;
            for (const char c : row.told) {
                if (c == 'c')
                    count += clicks.click(now) ? 1 : 0;
                else if (c == 'd')
                    count += clicks.doubleClick(now) ? 1 : 0;
                else
                    now += qint64(100) * (c - '0');
            }
            QVERIFY2(count == row.counted, row.told);
        }
    }
};

const TestClass<ShellTest> shellTest;
#include "shell_test.moc"
