#include "app/commandbars.h"
#include "app/commands.h"
#include "app/copyactions.h"
#include "app/frmload.h"
#include "app/menulayout.h"
#include "app/ownactions.h"
#include "core/runtimeerror.h"
#include "store/rowlist.h"
#include "widgets/rowlistview.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

class ShellTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deliveredLayoutPlacesEveryCommandOnce();
    void deliveredShortcutsAreDistinct();
    void malformedLayoutIsRefused_data();
    void malformedLayoutIsRefused();
    void missingLayoutIsFileNotFound();
    void unknownIdsArePlacedAndDoNothing();
    void editMenuCopiesFromTheList_data();
    void editMenuCopiesFromTheList();
    void menuStyleJumpsFromThreeToFive();
    void progressIsRoundedHalfToEvenInSinglePrecision();
};

namespace {

MenuLayout delivered()
{
    return MenuLayout::read(QStringLiteral(ALEMBRA_FOLDER "/menuc_uk.xcb"));
}

int numberOf(const QString &path)
{
    try {
        MenuLayout::read(path);
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}

} // namespace

void ShellTest::deliveredLayoutPlacesEveryCommandOnce()
{
    QList<int> placed;
    const MenuLayout layout = delivered();
    for (const MenuLayout::Menu &menu : layout.menus) {
        for (const MenuLayout::Entry &entry : menu.entries) {
            if (entry.id != 0) {
                placed << entry.id;
                QVERIFY2(!entry.caption.isEmpty(), qPrintable(QString::number(entry.id)));
            }
        }
    }
    for (const Command &command : Commands)
        QVERIFY2(placed.count(command.id) == 1, qPrintable(QString::number(command.id)));
}

void ShellTest::deliveredShortcutsAreDistinct()
{
    QMainWindow window;
    CommandBars bars(window);
    bars.load(delivered());
    QSet<QString> seen;
    for (const Command &command : Commands) {
        const QKeySequence shortcut = bars.action(command.id).shortcut();
        QVERIFY2(shortcut.isEmpty() || !seen.contains(shortcut.toString()), qPrintable(shortcut.toString()));
        seen << shortcut.toString();
        QVERIFY2(!bars.action(command.id).icon().isNull(), qPrintable(bars.action(command.id).text()));
    }
    QCOMPARE(bars.action(1121).shortcut(), QKeySequence(QStringLiteral("Ctrl+F")));
}

void ShellTest::malformedLayoutIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no XML") << QByteArray("\x01\x02menu");
    QTest::newRow("another document") << QByteArray("<html/>");
    QTest::newRow("cut off") << QByteArray("<layout><menubar><menu caption='a'><command id='1005'/>");
    QTest::newRow("strange element") << QByteArray("<layout><menubar><button/></menubar></layout>");
    QTest::newRow("command without an id") << QByteArray("<layout><toolbar><command/></toolbar></layout>");
}

void ShellTest::malformedLayoutIsRefused()
{
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("menuc_uk.xcb")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    QCOMPARE(numberOf(file.fileName()), ErrorNumber::InvalidFileFormat);
}

void ShellTest::missingLayoutIsFileNotFound()
{
    const QTemporaryDir folder;
    QCOMPARE(numberOf(folder.filePath(QStringLiteral("none"))), ErrorNumber::FileNotFound);
    QCOMPARE(numberOf(folder.path()), ErrorNumber::PathAccess);
}

void ShellTest::unknownIdsArePlacedAndDoNothing()
{
    QMainWindow window;
    CommandBars bars(window);
    MenuLayout layout;
    layout.menus << MenuLayout::Menu{QStringLiteral("Menu"),
                                     {{1107, QStringLiteral("Unknown"), {}, {}, {}}, {}}};
    bars.load(layout);
    QCOMPARE(window.menuBar()->actions().constFirst()->text(), QStringLiteral("Menu"));
    QCOMPARE(bars.action(1107).objectName(), QStringLiteral("Id1107"));
    QVERIFY(!findCommand(1107));
    QVERIFY(!findCommand(1146));
}

void ShellTest::editMenuCopiesFromTheList_data()
{
    QTest::addColumn<QString>("caption"); // of a menu in the layout
    QTest::newRow("beside commands") << "&Edit";
    QTest::newRow("in a menu of its own") << "&Fichier";
}

void ShellTest::editMenuCopiesFromTheList()
{
    QFETCH(const QString, caption);
    QMainWindow window;
    CommandBars bars(window);
    OwnActions own(window);
    CopyActions copyActions(own, window);
    connect(&bars, &CommandBars::updateWanted, &copyActions, &CopyActions::update);
    bars.load({{{caption, {{1121, "&Find...", {}, {}, {}}}}}, {}});
    own.place();
    RowList rows;
    for (const QStringView text : {u"Acetone", u"Water"})
        rows.append(text);
    rows.filled();
    window.setCentralWidget(new RowListView("ListView1", rows, {{"Name", 100}}, &window));
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto choose = [&window](Qt::Key key) {
        QTest::keyClick(&window, Qt::Key_E, Qt::AltModifier);
        QVERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), key);
        QVERIFY(!QApplication::activePopupWidget());
    };

    choose(Qt::Key_T); // the only list on screen
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("Name\nAcetone\nWater\n"));
    window.centralWidget()->setFocus();
    QTest::keyClick(window.centralWidget(), Qt::Key_Down);
    choose(Qt::Key_R);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("Water"));
}

void ShellTest::menuStyleJumpsFromThreeToFive()
{
    QCOMPARE(themeOfMenuStyle(Value()), 0);
    QCOMPARE(themeOfMenuStyle(3), 3);
    QCOMPARE(themeOfMenuStyle(4), 5);
    QCOMPARE(themeOfMenuStyle(5), 6);
    QCOMPARE(themeOfMenuStyle(6), -1);
    QCOMPARE(themeOfMenuStyle(QStringLiteral("4")), -1);
}

void ShellTest::progressIsRoundedHalfToEvenInSinglePrecision()
{
    frmload splash;
    QStringList captions;
    const auto tick = [&] {
        splash.ProgressTick();
        captions << splash.windowTitle();
    };
    tick();
    splash.setMaximum(185);
    for (int i = 1; i < 37; ++i)
        tick();
    QCOMPARE(captions.first(4), (QStringList{"5% Alembra", "5% Alembra", "8% Alembra", "11% Alembra"}));
    QCOMPARE(captions.last(), QStringLiteral("100% Alembra"));
    QCOMPARE(progressPercent(1, 8), 12);
    QCOMPARE(progressPercent(3, 8), 38);
}

QTEST_MAIN(ShellTest)
#include "shell_test.moc"
