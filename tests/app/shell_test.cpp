#include "app/commandbars.h"
#include "app/commands.h"
#include "app/csvaction.h"
#include "app/frmload.h"
#include "app/listactions.h"
#include "app/menulayout.h"
#include "app/ownactions.h"
#include "app/traydoubleclick.h"
#include "core/module1.h"
#include "store/rowlist.h"
#include "tests/support/files.h"
#include "tests/support/scripteddesktop.h"
#include "widgets/rowlistview.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMainWindow>
#include <QMenuBar>

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
        for (const char *content :
             {"<html/>", "<layout><menubar><menu caption='a'><command id='1005'/>",
              "<layout><menubar><button/></menubar></layout>",
              "<layout><toolbar><command/></toolbar></layout>", "<layout><bar/></layout>"}) {
            writeFile(path, content);
            QVERIFY2(errorOf([&] { MenuLayout::read(path); }) == ErrorNumber::InvalidFileFormat, content);
        }
    }

    void editMenuCopiesFromTheList()
    {
        for (const char *menu : {"&Edit", "&Fichier"}) { // beside commands, and in a menu of its own
            QMainWindow window;
            CommandBars bars(window);
            OwnActions own(window);
            ListActions listActions(own, window);
            connect(&bars, &CommandBars::updateWanted, &listActions, &ListActions::update);
            bars.load({{{menu, {{1121, "&Find...", {}, {}, {}}, {1107, "Unknown", {}, {}, {}}}}}, {}});
            QVERIFY(bars.action(1107).text() == "Unknown" && !findCommand(1107));
            own.place(bars);
            RowList rows;
            rows.append(u"Acetone");
            rows.appendSubItem(u"58.08 g");
            rows.append(u"say \"water\"");
            rows.appendSubItem(u"75-05-8");
            rows.filled();
            window.setCentralWidget(
                new RowListView("ListView1", rows, {{"Name", 100}, {"M", 50, {}, "g"}}, &window));
            ScriptedDesktop desktop;
            Module1 module;
            connectCsvAction(own, listActions, module, desktop);
            window.show();
            QVERIFY(QTest::qWaitForWindowActive(&window));
            const auto copied = [&window](Qt::Key key) {
                QTest::keyClick(&window, Qt::Key_E, Qt::AltModifier);
                QTest::keyClick(QApplication::activePopupWidget(), key);
                return QApplication::activePopupWidget() ? "still open" : QApplication::clipboard()->text();
            };
            // The only list on screen.
            QCOMPARE(copied(Qt::Key_T), "Name\tM\nAcetone\t58.08 g\nsay \"water\"\t75-05-8\n");
            QWidget *list = window.centralWidget();
            list->setFocus();
            QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier); // nothing is selected
            QVERIFY(QApplication::clipboard()->text().startsWith("Name"));
            QTest::keyClick(list, Qt::Key_Down);
            QCOMPARE(copied(Qt::Key_R), "say \"water\"\t75-05-8");
            QTest::keyClick(list, Qt::Key_Right);
            QTest::keyClick(list, Qt::Key_Right); // stays in the last column
            QCOMPARE(copied(Qt::Key_L), "75-05-8");
            QCOMPARE(own.action(OwnAction::CopyCell).text(), "Copy ce&ll: 75-05-8");
            QTest::keyClick(list, Qt::Key_A); // among the names, not in the current column
            QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier | Qt::AltModifier);
            QCOMPARE(QApplication::clipboard()->text(), "Acetone");

            const QTemporaryDir folder;
            desktop.savePaths = {folder.filePath("table")};
            QTest::keyClick(list, Qt::Key_S, Qt::ControlModifier);
            QCOMPARE(desktop.saveRequests.constFirst().fileName, "Properties of solvents");
            QCOMPARE(readFile(folder.filePath("table.csv")),
                     "\xEF\xBB\xBF\"Name\",\"M (g)\"\r\n\"Acetone\",58.08\r\n"
                     "\"say \"\"water\"\"\",\"75-05-8\"\r\n");
            desktop.savePaths = {folder.filePath("none/table.csv")};
            QTest::keyClick(list, Qt::Key_S, Qt::ControlModifier);
            QVERIFY(
                desktop.boxes.constFirst().first.endsWith("cannot be written.\n\nReason: there is no such "
                                                          "folder."));
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
        // c is a click, d a double click, a digit the hundreds of milliseconds that pass.
        const std::pair<QByteArray, int> Rows[]{
            {"c", 0},    {"c3c", 1}, {"c5c", 0},     {"c5c3c", 1},   {"c1d", 1},
            {"c1cd", 1}, {"d", 1},   {"c1d1c1d", 2}, {"c1c1c1c", 2}, {"c1d1c", 1},
        };
        for (const auto &[told, counted] : Rows) {
            TrayDoubleClick clicks(400);
            qint64 now = 0;
            int count = 0;
            for (const char c : told) {
                if (c == 'c')
                    count += clicks.click(now) ? 1 : 0;
                else if (c == 'd')
                    count += clicks.doubleClick(now) ? 1 : 0;
                else
                    now += qint64(100) * (c - '0');
            }
            QVERIFY2(count == counted, told);
        }
    }
};

const TestClass<ShellTest> shellTest;
#include "shell_test.moc"
