#include "app/commands.h"
#include "app/singleinstance.h"
#include "app/startagain.h"
#include "tests/e2e/walk.h"
#include "tests/support/wholerun.h"
#include "widgets/modulepanel.h"
#include "widgets/rowlistview.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QTabBar>
#include <QTest>
#include <QTextBrowser>
#include <future>

using namespace Qt::StringLiterals;

/// Whole runs of the program, from `Main` to its end, on copies of the assembled folder.
class RunTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void everyPaneIsShownAloneAndNamed();
    void listsShowTheTables_data();
    void listsShowTheTables();
    void solventCommandsSelectTheirTabs();
    void exportOffersWhatIsOnShow();
    void commandsGreyOutByPaneAndTab();
    void secondClickRunsTheSwitchAgainButNotForSpectroscopy();
    void startModuleLeavesTheBoxesOfTheTableAlone();
    void anotherStartModuleSwitchesNothing();
    void theTipDisablesTheMainWindowUntilItCloses();
    void anotherSizeStartsAgainInTheSamePlace();
    void sideWindowsOpenFromCommandsAndPanes();
    void aCallDuringTheStartWaitsForTheWindow();
    void failuresOfTheStartAreReported_data();
    void failuresOfTheStartAreReported();
    void damagedDatabaseAsksBeforeAnyWindow();
    void missingTableAsksUnderTheSplash();
    void missingColumnIsPassedOver();
    void theHelpOpensWithAndWithoutAViewer();
    void theLastTablesAreReadOnDemand();
    void readingOnDemandFailsLikeTheStart();
    void everyListTellsWhereItsRowsAreFrom();
    void aRowWithoutASourceOrChangedSaysSo();

private:
    static QStringList shownPanes(const Form1 &form)
    {
        QStringList shown;
        for (const ModulePanel *panel : form.findChildren<ModulePanel *>()) {
            if (panel->isVisible())
                shown << panel->objectName();
        }
        return shown;
    }

    static QString statusText(const Form1 &form)
    {
        return form.findChild<QLabel *>(QStringLiteral("StatusBar1.Panels(1)"))->text();
    }

    static QAction *action(const Form1 &form, int id)
    {
        return form.findChild<QAction *>(QStringLiteral("Id%1").arg(id));
    }

    // The text of frmSource for the row of @p list that @p key leads to, or for what the pane shows.
    static QString sourceOf(Form1 &form, RowListView *list = nullptr, Qt::Key key = {})
    {
        QWidget &owner = list ? *list->window() : form;
        QApplication::setActiveWindow(&owner);
        if (list) {
            list->setFocus();
            QTest::keyClick(list, key);
        }
        QTest::keyClick(owner.focusWidget(), Qt::Key_I, Qt::ControlModifier);
        const QPointer<QWidget> window = owner.findChild<SideWindow *>(u"frmSource"_s);
        if (!window)
            return u"no window"_s;
        const QString text = window->findChild<QTextBrowser *>(u"txtSource"_s)->toPlainText();
        QTest::keyClick(window, Qt::Key_Escape);
        return QTest::qWaitFor([&] { return !window; }) ? text : u"still open"_s;
    }

    // How the documents read that the data files name for rows with all of these cells.
    static QStringList documentsOf(const QStringList &cells)
    {
        QStringList found;
        const QDir folder(QStringLiteral(ALEMBRA_SOURCE "/data/tables"));
        for (const QFileInfo &file : folder.entryInfoList({QStringLiteral("*.tsv")})) {
            for (const QStringList &row : table(file.baseName())) {
                const bool same = std::all_of(cells.begin(), cells.end(),
                                              [&](const QString &cell) { return row.contains(cell); });
                const QString key =
                    row.constLast().section(u"; "_s, 0, 0).section(u": "_s, -1).section(u", "_s, 0, 0);
                for (const QStringList &source : same ? table(u"../sources"_s) : QList<QStringList>()) {
                    if (source[0] == key ||
                        (source[0].endsWith(u'*') && key.startsWith(source[0].chopped(1))))
                        found << (key == u"general" ? u"General knowledge, no document"_s : source[1]);
                }
            }
        }
        return found;
    }

    // The rows of a table file, their last cell the source.
    static QList<QStringList> table(const QString &name)
    {
        QFile file(QStringLiteral(ALEMBRA_SOURCE "/data/tables/%1.tsv").arg(name));
        QList<QStringList> rows;
        if (!file.open(QIODevice::ReadOnly))
            return rows;
        const QStringList lines =
            QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString &line : lines.sliced(1))
            rows << line.split(QLatin1Char('\t'));
        return rows;
    }
};

void RunTest::everyPaneIsShownAloneAndNamed()
{
    const ProgramFolder folder;
    int wentRight = 0;
    QCOMPARE(run(folder,
                 [&](Form1 &form) {
                     form.resize(640, 480); // smaller than a pane, which then scrolls
                     QApplication::processEvents();
                     const QScrollBar *bar =
                         qobject_cast<QScrollArea *>(form.centralWidget())->horizontalScrollBar();
                     for (const Command &command : Commands) {
                         if (command.kind != CommandKind::ShowPanel &&
                             command.kind != CommandKind::ShowPanelOnce)
                             continue;
                         QTest::keyClick(form.focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
                         wentRight += bar->value() > 0 ? 1 : 0;
                         action(form, command.id)->trigger();
                         QCOMPARE(bar->value(), 0); // shows its top left
                         const PanelName &name = Panels[size_t(command.panel)];
                         QCOMPARE(shownPanes(form), QStringList(QString::fromLatin1(name.frame)));
                         QCOMPARE(statusText(form), QString::fromLatin1(name.statusText));
                         const auto *box = form.findChild<QWidget *>(QStringLiteral("Text2(10)"));
                         QCOMPARE(!box->isHidden(), command.panel == PanelId::Elements);
                     }
                     form.executeCommand(1107); // no command
                     form.executeCommand(99999);
                 }),
             0);
    QVERIFY(wentRight > 0);
    QCOMPARE(m_desktop.boxes.size(), 0);
}

void RunTest::listsShowTheTables_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("tableName");
    QTest::addColumn<QList<int>>("fields");

    QTest::newRow("properties") << 1119 << "ListView1"
                                << "Solvants" << QList<int>{0, 1, 2, 3, 4, 6, 5};
    QTest::newRow("miscibility") << 1116 << "ListView6"
                                 << "Miscibilite" << QList<int>{0, 1, 2, 3};
    QTest::newRow("proton shifts") << 1115 << "ListView4"
                                   << "RMN1H" << QList<int>{0, 1, 2, 3, 9};
    QTest::newRow("masses") << 1133 << "ListView3(26)"
                            << "Masse" << QList<int>{0, 1, 10};
    QTest::newRow("drying") << 1118 << "ListView8"
                            << "Dessiccation" << QList<int>{0, 1};
    QTest::newRow("cooling") << 1117 << "ListView9"
                             << "Refrigeration" << QList<int>{0, 1};
}

void RunTest::listsShowTheTables()
{
    QFETCH(int, command);
    QFETCH(QString, list);
    QFETCH(QString, tableName);
    QFETCH(QList<int>, fields);
    const ProgramFolder folder;
    run(folder, [&](Form1 &form) {
        form.executeCommand(command);
        const auto *view = form.findChild<RowListView *>(list);
        QVERIFY(view);
        QVERIFY(view->isVisible());
        const QList<QStringList> rows = table(tableName);
        QVERIFY(!rows.isEmpty());
        QCOMPARE(view->model()->rowCount(), rows.size());
        QCOMPARE(view->model()->columnCount(), rows.constFirst().size() - 1); // all but the source
        for (int row = 0; row < rows.size(); ++row) {
            for (int column = 0; column < fields.size(); ++column) {
                const int shownColumn = tableName == QStringLiteral("Solvants") ? column : fields[column];
                QCOMPARE(view->model()->index(row, shownColumn).data().toString(), rows[row][fields[column]]);
            }
        }
    });
}

void RunTest::solventCommandsSelectTheirTabs()
{
    const ProgramFolder folder;
    run(folder, [&](Form1 &form) {
        for (const Command &command : Commands) {
            if (command.kind != CommandKind::SolventTab)
                continue;
            form.executeCommand(1108);
            form.executeCommand(command.id);
            QCOMPARE(form.findChild<QTabBar *>(QStringLiteral("TabStrip1"))->currentIndex() + 1,
                     command.argument);
            QCOMPARE(statusText(form), QStringLiteral("Solvents"));
        }
    });
}

void RunTest::exportOffersWhatIsOnShow()
{
    const ProgramFolder folder;
    m_desktop.saveRequests.clear();
    m_desktop.savePaths = QStringList(folder.path(QStringLiteral("masses")));
    run(folder, [&](Form1 &form) {
        for (const int pane : {1133, 1116, 1108, 1120, 1109, 1113}) {
            form.executeCommand(pane);
            form.executeCommand(1124);
        }
    });
    QStringList offered;
    for (const Desktop::SaveRequest &request : m_desktop.saveRequests)
        offered << request.fileName;
    QCOMPARE(offered, (QStringList{"Solvents - Mass spectrometry", "Solvents - Miscibility and Polarity",
                                   "Elements", "Constants and Units", "Biochemistry", "Solutions"}));
    QVERIFY(folder.read(QStringLiteral("masses.htm")).contains("<td>Acetone</td>"));
}

void RunTest::commandsGreyOutByPaneAndTab()
{
    const ProgramFolder folder;
    run(folder, [&](Form1 &form) {
        const auto enabledAfter = [&](int command) {
            form.executeCommand(command);
            return QList<bool>{action(form, 1121)->isEnabled(), action(form, 1124)->isEnabled(),
                               action(form, 1125)->isEnabled()};
        };
        QCOMPARE(enabledAfter(1108), (QList<bool>{true, true, false}));
        QCOMPARE(enabledAfter(1119), (QList<bool>{true, true, false}));
        QCOMPARE(enabledAfter(1116), (QList<bool>{false, true, false}));
        QCOMPARE(enabledAfter(1133), (QList<bool>{true, true, false}));
        QCOMPARE(enabledAfter(1120), (QList<bool>{false, true, false}));
        QCOMPARE(enabledAfter(1132), (QList<bool>{false, false, false}));
        QCOMPARE(enabledAfter(1142), (QList<bool>{false, false, false}));
        // A tab that is chosen by hand counts too.
        form.executeCommand(1119);
        form.findChild<QTabBar *>(QStringLiteral("TabStrip1"))->setCurrentIndex(4);
        QVERIFY(!action(form, 1121)->isEnabled());
    });
}

void RunTest::secondClickRunsTheSwitchAgainButNotForSpectroscopy()
{
    const ProgramFolder folder;
    run(folder, [&](Form1 &form) {
        auto *panel1 = form.findChild<QLabel *>(QStringLiteral("StatusBar1.Panels(1)"));
        const auto renamedBySecondClick = [&](int command) {
            form.executeCommand(command);
            panel1->setText(QStringLiteral("mark"));
            form.executeCommand(command);
            return panel1->text() != QStringLiteral("mark");
        };
        QVERIFY(renamedBySecondClick(1113));
        QVERIFY(!renamedBySecondClick(1111));
        QVERIFY(!renamedBySecondClick(1139));
    });
}

void RunTest::startModuleLeavesTheBoxesOfTheTableAlone()
{
    const ProgramFolder folder;
    folder.setOption(86, "1");
    folder.setOption(88, "3");
    run(folder, [&](Form1 &form) {
        QCOMPARE(shownPanes(form), QStringList("frmbioch"));
        QCOMPARE(statusText(form), QStringLiteral("Biochemistry"));
        QVERIFY(!form.findChild<QWidget *>(QStringLiteral("Text2(10)"))->isHidden());
    });
}

void RunTest::anotherStartModuleSwitchesNothing()
{
    const ProgramFolder folder;
    folder.setOption(88, "6");
    run(folder, [&](Form1 &form) {
        QCOMPARE(shownPanes(form), QStringList("Frametable"));
        QCOMPARE(statusText(form), QStringLiteral("Elements"));
    });
}

void RunTest::theTipDisablesTheMainWindowUntilItCloses()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       QDir::tempPath() + QStringLiteral("/none"));
    const ProgramFolder folder;
    folder.setOption(56, "1");
    folder.setOption(86, "1");
    folder.setOption(88, "0");
    run(folder, [&](Form1 &form) {
        const QPointer<QWidget> tip = form.findChild<QWidget *>(QStringLiteral("frmTip"));
        QVERIFY(tip && tip->isVisible() && tip->isEnabled());
        QVERIFY(!form.isEnabled());
        QCOMPARE(shownPanes(form), QStringList("frmsolv"));
        tip->close();
        QVERIFY(form.isEnabled());
    });
}

void RunTest::anotherSizeStartsAgainInTheSamePlace()
{
    const QTemporaryDir home;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
    const ProgramFolder folder;
    folder.setOption(56, "1"); // a tip, which does not come again
    const auto field = [](const Form1 &form, const char *name) {
        return form.findChild<QLineEdit *>(QLatin1StringView(name));
    };
    run(folder, [&](Form1 &form) {
        form.findChild<QWidget *>(QStringLiteral("frmTip"))->close();
        form.findChild<QAbstractButton *>(QStringLiteral("Command7(25)"))->click();
        form.executeCommand(1116);
        form.findChild<RowListView *>(QStringLiteral("ListView6"))->selectRow(7);
        form.executeCommand(1120);
        form.findChild<QTabBar *>(QStringLiteral("TabStrip4"))->setCurrentIndex(4);
        QTest::keyClicks(field(form, "TextBoxM7(0)"), QStringLiteral("0.25"));
        form.findChild<QTabBar *>(QStringLiteral("TabStrip3"))->setCurrentIndex(4);
        QTest::keyClicks(field(form, "TextBoxM1"), QStringLiteral("25"));
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QTest::keyClick(&form, Qt::Key_Plus, Qt::ControlModifier);
        auto *size = form.findChild<QWidget *>(QStringLiteral("frmScale"));
        QVERIFY(size && QTest::qWaitForWindowActive(size));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Plus, Qt::ControlModifier);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QApplication::processEvents(); // which also ends the run
    });
    QCOMPARE(Scale::remembered(), 125);
    const StartAgain::Left left = StartAgain::take();
    QCOMPARE(left.percent, 125);

    run(
        folder,
        [&](Form1 &form) {
            QCOMPARE(shownPanes(form), QStringList("Frame2"));
            QCOMPARE(field(form, "TextBoxM7(0)")->text(), QStringLiteral("0.25"));
            QVERIFY(field(form, "TextBoxM7(0)")->isVisible());
            QCOMPARE(field(form, "TextBoxM1")->text(), QStringLiteral("25"));
            QCOMPARE(field(form, "TextBoxM2")->text(), QStringLiteral("77"));
            form.executeCommand(1106);
            const auto *list = form.findChild<RowListView *>(QStringLiteral("ListView6"));
            QVERIFY(list->isVisible());
            QCOMPARE(list->selectedRow(), 7);
            QCOMPARE(form.findChild<QLabel *>(QStringLiteral("lblatome(1)"))->text(), QStringLiteral("Iron"));
        },
        left.session);
}

void RunTest::sideWindowsOpenFromCommandsAndPanes()
{
    const ProgramFolder folder;
    run(folder, [&](Form1 &form) {
        const auto opened = [&](const char *name) {
            auto *window = form.findChild<QWidget *>(QLatin1StringView(name));
            const bool alone = window && window->isVisible() && !form.isEnabled();
            return alone && window->close() && form.isEnabled();
        };
        QVERIFY(form.findChild<QWidget *>(QStringLiteral("frmTip")) == nullptr);
        action(form, 1122)->trigger();
        QVERIFY(opened("frmAbout"));
        const auto press = [&](const char *button) {
            form.findChild<QAbstractButton *>(QLatin1StringView(button))->click();
        };
        press("cmdhelp");
        QVERIFY(opened("Formhelp"));
        form.executeCommand(1142);
        press("Command1");
        QVERIFY(opened("Formhelp2"));
        form.executeCommand(1144);
        press("Command1");
        QVERIFY(opened("Formhelp3"));
        form.executeCommand(1141);
        press("Command2");
        QVERIFY(opened("Formhelp4"));
    });
}

void RunTest::aCallDuringTheStartWaitsForTheWindow()
{
    const ProgramFolder folder;
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.root()));
    std::optional<SingleInstance::Previous> answer;
    bool early = false;
    m_desktop.whileWaiting = [&] {
        if (answer)
            return;
        auto later = std::async(std::launch::async, &SingleInstance::activatePrevious,
                                std::make_unique<SingleInstance>(folder.root()));
        QTRY_COMPARE(later.wait_for(std::chrono::seconds(0)), std::future_status::ready);
        answer = later.get();
        early = mainWindow()->isVisible();
    };

    QCOMPARE(run(folder, [&](Form1 &form) { QVERIFY(form.isVisible()); }), 0);

    m_desktop.whileWaiting = {};
    QCOMPARE(answer, SingleInstance::Previous::Answered);
    QVERIFY(!early);
}

void RunTest::failuresOfTheStartAreReported_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("number");

    QTest::newRow("no options") << "options_uk.ini" << QByteArray() << 53;
    QTest::newRow("too many options") << "options_uk.ini" << QByteArray("1\r\n").repeated(102) << 9;
    QTest::newRow("no menus") << "menuc_uk.xcb" << QByteArray() << 53;
    QTest::newRow("malformed menus") << "menuc_uk.xcb" << QByteArray("<layout>") << 321;
}

void RunTest::failuresOfTheStartAreReported()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(int, number);
    const ProgramFolder folder;
    QVERIFY(QFile::remove(folder.path(file)));
    if (!content.isEmpty())
        folder.write(file, content);
    QStringList shown; // at the report
    m_desktop.whileWaiting = [&] {
        shown.clear();
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            if (window->isVisible())
                shown << window->objectName();
        }
    };

    QCOMPARE(outcome(folder), QStringLiteral("report %1").arg(number));

    m_desktop.whileWaiting = {};
    QVERIFY(!m_cameUp);
    QVERIFY(m_desktop.boxes.constFirst().first.contains(folder.path(file)));
    QCOMPARE(shown, QStringList(QStringLiteral("frmload")));
}

void RunTest::damagedDatabaseAsksBeforeAnyWindow()
{
    const ProgramFolder folder;
    folder.write(QStringLiteral("Data/Database_uk.mdb"), "no database");
    m_desktop.boxes.clear();
    m_desktop.answers = {Desktop::Yes};
    try {
        Main(m_desktop, folder.root());
        QFAIL("the program went on");
    } catch (const ProcessEnded &end) {
        QCOMPARE(end.status, 0);
    }
    QVERIFY(!mainWindow());
    QCOMPARE(m_desktop.boxes.size(), 2);
    m_desktop.boxes.clear();
    QCOMPARE(run(folder, [&](Form1 &form) { QVERIFY(form.isVisible()); }), 0); // the next start succeeds
    QCOMPARE(m_desktop.boxes.size(), 0);
}

// Renames something in every copy of its name in the database file; names lie there as UTF-16.
static void renameInDatabase(const ProgramFolder &folder, const QString &from, const QString &to)
{
    const auto bytes = [](const QString &text) {
        return QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
    };
    const QString file = QStringLiteral("Data/Database_uk.mdb");
    QByteArray content = folder.read(file);
    content.replace(bytes(from), bytes(to));
    folder.write(file, content);
}

void RunTest::missingTableAsksUnderTheSplash()
{
    const ProgramFolder folder;
    renameInDatabase(folder, QStringLiteral("Masse"), QStringLiteral("Mosse"));
    m_desktop.boxes.clear();
    m_desktop.answers = {Desktop::No};
    try {
        Main(m_desktop, folder.root());
        QFAIL("the program went on");
    } catch (const ProcessEnded &end) {
        QCOMPARE(end.status, 0);
    }
    QCOMPARE(m_desktop.boxes.size(), 1);
    QCOMPARE(m_desktop.boxes.constFirst().second, 20);
    QVERIFY(!QFile::exists(folder.path(QStringLiteral("Data/Database.mdb"))));
}

void RunTest::missingColumnIsPassedOver()
{
    const ProgramFolder folder;
    renameInDatabase(folder, QStringLiteral("temp"), QStringLiteral("tomp")); // of the cooling mixtures
    m_desktop.boxes.clear();
    run(folder, [&](Form1 &form) {
        form.executeCommand(1117);
        const auto *mixtures = form.findChild<RowListView *>(QStringLiteral("ListView9"));
        QCOMPARE(mixtures->model()->rowCount(), 0);
        QVERIFY(mixtures->accessibleDescription().contains(QLatin1String("no column Refrigeration.temp")));
        form.executeCommand(1118);
        QVERIFY(form.findChild<RowListView *>(QStringLiteral("ListView8"))->model()->rowCount() > 0);
    });
    QCOMPARE(m_desktop.boxes.size(), 0);
}

void RunTest::theHelpOpensWithAndWithoutAViewer()
{
    const ProgramFolder folder;
    m_desktop.targets.clear();
    run(folder, [&](Form1 &form) {
        const auto window = [] {
            for (QWidget *each : QApplication::topLevelWidgets()) {
                if (each->objectName() == QStringLiteral("frmHelpPages") && each->isVisible())
                    return each;
            }
            return static_cast<QWidget *>(nullptr);
        };
        const auto open = [&](Desktop::Viewer viewer) {
            m_desktop.viewer = viewer;
            form.executeCommand(1123);
        };
        open(Desktop::Viewer::Known);
        QCOMPARE(m_desktop.targets, QStringList(folder.path(QStringLiteral("alembra_help_uk.chm"))));
        QVERIFY(!window());
        open(Desktop::Viewer::None);
        QCOMPARE(m_desktop.targets.size(), 1);
        QVERIFY(window() && form.isEnabled());
        QVERIFY(QTest::qWaitForWindowActive(window()));
        QTest::keyClick(window(), Qt::Key_Escape);
        QVERIFY(!window());
        form.findChild<QAction *>(QStringLiteral("actHelpPages"))->trigger();
        QVERIFY(window());
        open(Desktop::Viewer::Unknown);
        QCOMPARE(m_desktop.targets.size(), 2);
    });
}

void RunTest::theLastTablesAreReadOnDemand()
{
    const ProgramFolder folder;
    run(folder, [&](Form1 &form) {
        const auto rows = [&form](const char *list) {
            return form.findChild<RowListView *>(QLatin1StringView(list))->model()->rowCount();
        };
        const auto read = [&form](int command, const char *button) {
            form.executeCommand(command);
            auto *cmdReadTables = form.findChild<QAbstractButton *>(QLatin1StringView(button));
            cmdReadTables->click();
            QVERIFY(!cmdReadTables->isVisible());
        };
        read(1139, "cmdReadTables(1)");
        read(1141, "cmdReadTables(0)"); // not twice
        const int reactions = rows("ListView3(31)");
        QCOMPARE(reactions, table(QStringLiteral("Reaction")).size());
        QCOMPARE(rows("ListView3(29)"), table(QStringLiteral("Resistancescms")).size());

        form.executeCommand(1058);
        m_desktop.answers = {Desktop::Yes};
        auto *frmbdd = form.findChild<QWidget *>(QStringLiteral("frmbdd"));
        frmbdd->findChild<QAbstractButton *>(QStringLiteral("Command2"))->click(); // Restore
        Walk::sideWindow(form)->close();
        QCOMPARE(rows("ListView3(31)") + rows("ListView3(29)"), 0);
        QVERIFY(!form.findChild<QWidget *>(QStringLiteral("optorga(2)"))->isEnabled());
        read(1139, "cmdReadTables(1)");
        QCOMPARE(rows("ListView3(31)"), reactions);
    });
}

void RunTest::readingOnDemandFailsLikeTheStart()
{
    const ProgramFolder folder;
    m_desktop.boxes.clear();
    m_desktop.answers = {Desktop::Yes};
    const int status = run(folder, [&](Form1 &form) {
        form.executeCommand(1139);
        folder.write(QStringLiteral("Data/Database_uk.mdb"), "no database");
        form.findChild<QAbstractButton *>(QStringLiteral("cmdReadTables(1)"))->click();
    });
    QCOMPARE(status, 0);
    QCOMPARE(m_desktop.boxes.size(), 2);
    QCOMPARE(m_desktop.boxes.constFirst().second, 20);
    QCOMPARE(folder.read(QStringLiteral("Data/Database_uk.mdb")),
             folder.read(QStringLiteral("Backup/Database_uk_origin.rbk")));
}

void RunTest::everyListTellsWhereItsRowsAreFrom()
{
    const ProgramFolder folder;
    QSet<QString> walked;
    QStringList wrong;
    run(folder, [&](Form1 &form) {
        QVERIFY(QTest::qWaitForWindowActive(&form));
        const auto check = [&](RowListView &list) {
            const QString text = sourceOf(form, &list, Qt::Key_End);
            QVERIFY2(list.selectedRow() >= 0, qPrintable(list.objectName()));
            QStringList cells = list.tableRow(list.selectedRow()).texts;
            cells.removeAll(QString());
            const QStringList documents = documentsOf(cells);
            if (std::none_of(documents.begin(), documents.end(),
                             [&](const QString &each) { return text.contains(each); }))
                wrong << list.objectName() + u": "_s + text;
        };
        form.executeCommand(1139);
        form.findChild<QAbstractButton *>(u"cmdReadTables(1)"_s)->click();
        Walk::throughPanes(
            form,
            [&] {
                for (RowListView *list : form.findChildren<RowListView *>()) {
                    const bool seen = list->isVisible() && Controls::isOnTop(*list, *list->parentWidget());
                    if (!seen || walked.contains(list->objectName()))
                        continue;
                    walked << list->objectName();
                    check(*list);
                }
            },
            true);
        for (const RowListView *list : form.findChildren<RowListView *>())
            QVERIFY2(walked.contains(list->objectName()), qPrintable(list->objectName()));

        const auto list = [&form](const char *name) {
            return form.findChild<RowListView *>(QLatin1StringView(name));
        };
        struct Exact
        {
            const char *list;
            int row;
            QString text;
        };
        const QString general =
            u"General knowledge, no document: well established, but none of us has seen a document for it. "
            "Look it up before you rely on it."_s;
        const QList<Exact> exact{
            {"ListView3(0)", 1,
             u"Picric acid, 0.0 - 1.3\n"_s + general +
                 u"\nMerck, Riedel-deHaën, Carl-Zeiss and Olympus on the buttons only name the lists, which "
                 u"are "
                 "not from these companies."_s},
            {"ListView3(24)", 155,
             u"Zinc oxalate dihydrate, ZnC2O4.2H2O\n"_s + general + u"\nIn doubt\nno document found"_s},
            {"ListView3(25)", 17,
             u"Cu+ + 2 CN- = [Cu(CN)2]-, 8.2E+21\nPHREEQC thermodynamic database minteq.v4.dat, "
             "usgs-coupled/phreeqc3, 8176af0\nLicence: notice of the U.S. Geological Survey, to be handed "
             "on; terms of the makers of the data not seen.\nIn doubt\npublished log Kf 16 to 24"_s}};
        QSet<QString> compared;
        form.executeCommand(1113);
        Walk::throughTabs(
            form,
            [&] {
                for (const Exact &each : exact) {
                    RowListView *view = list(each.list);
                    if (!view->isVisible())
                        continue;
                    view->selectRow(each.row - 1);
                    QCOMPARE(sourceOf(form, view, Qt::Key_Down), each.text);
                    compared << each.text;
                }
            },
            true);
        QCOMPARE(compared.size(), exact.size());
        RowListView &indicators = *list("ListView3(0)");
        indicators.copyRow();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"Picric acid\t0.0 - 1.3\tcolourless - yellow"_s);
        QCOMPARE(indicators.model()->index(1, 0).data(Qt::AccessibleTextRole),
                 u"Picric acid, general knowledge"_s);

        form.executeCommand(1142);
        form.findChild<QAbstractButton *>(u"Command1"_s)->click();
        check(*Walk::sideWindow(form)->findChild<RowListView *>());
        Walk::sideWindow(form)->close();

        form.executeCommand(1108);
        form.findChild<QAbstractButton *>(u"Command7(0)"_s)->click();
        QVERIFY(sourceOf(form).startsWith(u"Hydrogen, H\nPython package mendeleev"_s));
    });
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(u'\n')));
}

void RunTest::aRowWithoutASourceOrChangedSaysSo()
{
    const auto cooling = [this](const ProgramFolder &folder) {
        QString text;
        run(folder, [&](Form1 &form) {
            form.executeCommand(1117);
            text = sourceOf(form, form.findChild<RowListView *>(u"ListView9"_s), Qt::Key_Down);
        });
        return text;
    };
    const ProgramFolder without;
    renameInDatabase(without, u"source"_s, u"sauces"_s);
    QVERIFY(cooling(without).contains(u"No source is recorded for this row"_s));
    const ProgramFolder changed;
    const QString file = u"Data/Database_uk.mdb"_s;
    changed.write(file, changed.read(file).replace("1,4-Dioxane + dry", "1,3-Dioxane + dry"));
    const QString text = cooling(changed);
    QVERIFY2(text.startsWith(u"1,3-Dioxane + dry ice, 12\nYou added or changed this row."_s),
             qPrintable(text));
}

QTEST_MAIN(RunTest)
#include "run_test.moc"
