#include "app/placeswitch.h"
#include "app/singleinstance.h"
#include "app/startagain.h"
#include "tests/e2e/walk.h"
#include "tests/support/wholerun.h"
#include "widgets/modulepanel.h"

#include <QAction>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <future>

/// Whole runs of the program, from `Main` to its end, on copies of the assembled folder.
class RunTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void everyPaneIsShownAloneAndNamed()
    {
        int wentRight = 0;
        run([&](Form1 &form) {
            form.resize(640, 480); // smaller than a pane, which then scrolls
            QApplication::processEvents();
            const QScrollBar &bar = *qobject_cast<QScrollArea *>(form.centralWidget())->horizontalScrollBar();
            for (const Command &command : Commands) {
                if (!Walk::showsPane(command.kind) || command.kind == CommandKind::Find)
                    continue;
                QTest::keyClick(form.focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
                wentRight += bar.value() > 0 ? 1 : 0;
                const PanelName &name = Panels[size_t(command.panel)];
                const bool isAnother = shownPanes(form) != QStringList(name.frame);
                get<QAction>(form, QString("Id%1").arg(command.id)).trigger();
                QCOMPARE(shownPanes(form), QStringList(name.frame));
                QCOMPARE(statusText(form).text(), QString(name.statusText));
                QCOMPARE(get(form, "Text2(10)").isHidden(), command.panel != PanelId::Elements);
                if (isAnother)
                    QCOMPARE(bar.value(), 0); // shows its top left
                if (command.kind == CommandKind::SolventTab)
                    QCOMPARE(get<QTabBar>(form, "TabStrip1").currentIndex() + 1, command.argument);
                statusText(form).setText("mark");
                form.executeCommand(command.id); // once more runs the switch, but not for spectroscopy
                QCOMPARE(statusText(form).text() != "mark",
                         command.kind != CommandKind::ShowPanelOnce &&
                             command.kind != CommandKind::SpectroscopyMode);
            }
            form.executeCommand(1107); // no command
            form.executeCommand(99999);
        });
        QVERIFY(wentRight > 0);
        QCOMPARE(m_desktop.boxes.size(), 0);
    }

    void findAndExportFollowPaneAndTab()
    {
        const ProgramFolder folder;
        m_desktop.savePaths = QStringList(9, folder.path("report"));
        m_desktop.answers = QList<Desktop::Answer>(9, Desktop::Yes); // replace it
        run(folder, [&](Form1 &form) {
            const auto isEnabled = [&](const char *id) { return get<QAction>(form, id).isEnabled(); };
            // The name of the report, if there is one.
            for (const auto &[pane, find, report] : {std::tuple(1108, true, "Elements"),
                                                     {1119, true, "Solvents - Properties"},
                                                     {1116, false, "Solvents - Miscibility and Polarity"},
                                                     {1133, true, "Solvents - Mass spectrometry"},
                                                     {1120, false, "Constants and Units"},
                                                     {1109, false, "Biochemistry"},
                                                     {1113, false, "Solutions"},
                                                     {1132, false, ""},
                                                     {1142, false, ""}}) {
                m_desktop.saveRequests.clear();
                form.executeCommand(pane);
                QCOMPARE(isEnabled("Id1121"), find);
                QCOMPARE(isEnabled("Id1124"), *report != 0);
                QVERIFY(!isEnabled("Id1125"));
                if (*report) {
                    form.executeCommand(CommandId::Export);
                    QCOMPARE(m_desktop.saveRequests.constFirst().fileName, report);
                }
            }
            // A tab that is chosen by hand counts too.
            form.executeCommand(1119);
            get<QTabBar>(form, "TabStrip1").setCurrentIndex(4);
            QVERIFY(!isEnabled("Id1121"));
        });
        QVERIFY(folder.read("report.htm").contains("<title>Solutions</title>"));
    }

    void theStartShowsTheChosenModuleBelowTheTip()
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, QDir::tempPath() + "/none");
        for (const auto &[module, pane, text] : {std::tuple("0", "frmsolv", "Solvents"),
                                                 {"3", "frmbioch", "Biochemistry"},
                                                 {"6", "Frametable", "Elements"}}) {
            const ProgramFolder folder;
            folder.setOption(56, "1");
            folder.setOption(86, "1");
            folder.setOption(88, module);
            run(folder, [pane = pane, text = text](Form1 &form) {
                QCOMPARE(shownPanes(form), QStringList(pane));
                QCOMPARE(statusText(form).text(), text);
                QVERIFY(!get(form, "Text2(10)").isHidden()); // the boxes of the table are left alone
                QVERIFY(Walk::sideWindow(form)->isEnabled() && !form.isEnabled());
                Walk::sideWindow(form)->close();
                QVERIFY(form.isEnabled());
            });
        }
    }

    void anotherSizeStartsAgainInTheSamePlace()
    {
        const QTemporaryDir home;
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
        const ProgramFolder folder;
        folder.setOption(56, "1"); // a tip, which does not come again
        run(folder, [&](Form1 &form) {
            Walk::sideWindow(form)->close();
            get<QAbstractButton>(form, "Command7(25)").click();
            form.executeCommand(1116);
            get<RowListView>(form, "ListView6").selectRow(7);
            form.executeCommand(1120);
            get<QTabBar>(form, "TabStrip4").setCurrentIndex(4);
            QTest::keyClicks(&get(form, "TextBoxM7(0)"), "0.25");
            get<QTabBar>(form, "TabStrip3").setCurrentIndex(4);
            QTest::keyClicks(&get(form, "TextBoxM1"), "25");
            form.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&form));
            QTest::keyClick(&form, Qt::Key_Plus, Qt::ControlModifier);
            QVERIFY(QTest::qWaitForWindowActive(&get(form, "frmScale")));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Plus, Qt::ControlModifier);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QApplication::processEvents(); // which also ends the run
        });
        QCOMPARE(Scale::remembered(), 125);
        const StartAgain::Left left = StartAgain::take();
        QCOMPARE(left.percent, 125);

        const auto again = [&](Form1 &form) {
            const auto field = [&](const char *name) { return get<QLineEdit>(form, name).text(); };
            QCOMPARE(shownPanes(form), QStringList("Frame2"));
            QCOMPARE((QStringList{field("TextBoxM7(0)"), field("TextBoxM1"), field("TextBoxM2")}),
                     (QStringList{"0.25", "25", "77"}));
            QVERIFY(get(form, "TextBoxM7(0)").isVisible());
            form.executeCommand(1106);
            QVERIFY(get(form, "ListView6").isVisible());
            QCOMPARE(get<RowListView>(form, "ListView6").selectedRow(), 7);
            QCOMPARE(get<QLabel>(form, "lblatome(1)").text(), QString("Iron"));
        };
        run(folder, again, left.session);
    }

    void aCallDuringTheStartWaitsForTheWindow()
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
            early = openWindow("Form1");
        };
        QCOMPARE(run(folder, [&](Form1 &form) { QVERIFY(form.isVisible()); }), 0);
        m_desktop.whileWaiting = {};
        QCOMPARE(answer, SingleInstance::Previous::Answered);
        QVERIFY(!early);
    }

    void theHelpOpensWithAndWithoutAViewer()
    {
        const ProgramFolder folder;
        m_desktop.targets.clear();
        run(folder, [&](Form1 &form) {
            const auto window = [] { return openWindow("frmHelpPages"); };
            const auto open = [&](Desktop::Viewer viewer) {
                m_desktop.viewer = viewer;
                form.executeCommand(CommandId::Help);
            };
            open(Desktop::Viewer::Known);
            QCOMPARE(m_desktop.targets, QStringList(folder.path("alembra_help_uk.chm")));
            QVERIFY(!window());
            open(Desktop::Viewer::None);
            QCOMPARE(m_desktop.targets.size(), 1);
            QVERIFY(window() && form.isEnabled());
            QVERIFY(QTest::qWaitForWindowActive(window()));
            QTest::keyClick(window(), Qt::Key_Escape);
            QVERIFY(!window());
            get<QAction>(form, "actHelpPages").trigger();
            QVERIFY(window());
            const QString titles = window()->palette().color(QPalette::AlternateBase).name();
            QVERIFY(get<QTextBrowser>(*window(), "brwHelp").toHtml().contains("background-color:" + titles));
            open(Desktop::Viewer::Unknown);
            QCOMPARE(m_desktop.targets.size(), 2);
        });
    }

    void theLastTablesAreReadOnDemand()
    {
        run([&](Form1 &form) {
            const auto rows = [&form](const char *list) {
                return get<RowListView>(form, list).model()->rowCount();
            };
            const auto read = [&form](int command, const char *button) {
                form.executeCommand(command);
                get<QAbstractButton>(form, button).click();
                QVERIFY(!get(form, button).isVisible());
            };
            read(1139, "cmdReadTables(1)");
            read(1141, "cmdReadTables(0)"); // not twice
            const int reactions = rows("ListView3(31)");
            QVERIFY(reactions > 0 && rows("ListView3(29)") > 0);

            form.executeCommand(1058);
            m_desktop.answers = {Desktop::Yes};
            get<QAbstractButton>(get(form, "frmbdd"), "Command2").click(); // Restore
            Walk::sideWindow(form)->close();
            QCOMPARE(rows("ListView3(31)") + rows("ListView3(29)"), 0);
            QVERIFY(!get(form, "optorga(2)").isEnabled());
            read(1139, "cmdReadTables(1)");
            QCOMPARE(rows("ListView3(31)"), reactions);
        });
    }

    // The last row of each list; of some, a row whose text is known.
    void everyListTellsWhereItsRowsAreFrom()
    {
        const QString general = "General knowledge, no document: well established, but none of us has seen a "
                                "document for it. Look it up before you rely on it.";
        const QString names = "Merck, Riedel-deHaën, Carl-Zeiss and Olympus on the buttons only name the "
                              "lists, which are not from these companies.";
        const QMap<QString, std::pair<int, QString>> known{
            {"ListView3(0)", {1, "Picric acid, 0.0 - 1.3\n" + general + '\n' + names}},
            {"ListView3(24)",
             {155, "Zinc oxalate dihydrate, ZnC2O4.2H2O\n" + general + "\nIn doubt\nno document found"}},
            {"ListView3(25)",
             {17, "Cu+ + 2 CN- = [Cu(CN)2]-, 8.2E+21\nPHREEQC thermodynamic database minteq.v4.dat, "
                  "usgs-coupled/phreeqc3, 8176af0\nLicence: notice of the U.S. Geological Survey, to be "
                  "handed on; terms of the makers of the data not seen.\nIn doubt\npublished log Kf 16 to "
                  "24"}}};
        QSet<QString> walked;
        run([&](Form1 &form) {
            QVERIFY(QTest::qWaitForWindowActive(&form));
            const auto check = [&](RowListView &list) {
                const auto [row, text] =
                    known.value(list.objectName(), {list.model()->rowCount() - 1, QString()});
                list.selectRow(row - 1);
                const QString source = Walk::sourceOf(list, Qt::Key_Down);
                QCOMPARE(list.selectedRow(), row);
                const QStringList lines = source.split('\n');
                const QString cell = list.model()->index(row, 0).data().toString();
                QVERIFY2(lines.size() > 1 && lines[0].contains(cell) && !lines[1].contains("No source") &&
                             !lines[1].contains("You added or changed"),
                         qPrintable(list.objectName() + ": " + source));
                if (!text.isEmpty())
                    QCOMPARE(source, text);
            };
            form.executeCommand(1139);
            get<QAbstractButton>(form, "cmdReadTables(1)").click();
            const auto checkNew = [&] {
                for (RowListView *list : form.findChildren<RowListView *>()) {
                    if (list->isVisible() && Controls::isOnTop(*list, *list->parentWidget()) &&
                        !walked.contains(list->objectName())) {
                        walked << list->objectName();
                        check(*list);
                    }
                }
            };
            Walk::throughPanes(form, checkNew, true);
            for (const RowListView *list : form.findChildren<RowListView *>())
                QVERIFY2(walked.contains(list->objectName()), qPrintable(list->objectName()));
            QCOMPARE(get<RowListView>(form, "ListView3(0)").model()->index(1, 0).data(Qt::AccessibleTextRole),
                     "Picric acid, general knowledge");

            form.executeCommand(1142);
            get<QAbstractButton>(form, "Command1").click();
            check(*Walk::sideWindow(form)->findChild<RowListView *>());
            Walk::sideWindow(form)->close();

            form.executeCommand(1108);
            get<QAbstractButton>(form, "Command7(0)").click();
            QVERIFY(Walk::sourceOf(form).startsWith("Hydrogen, H\nPython package mendeleev"));
            for (const auto &[list, field, source] :
                 {std::tuple("ListView3(9)", "ListView3(9)", "Arginine, Arg (R)\npK\nKeene State"),
                  {"Comb2", "Comb2", "Arginine\nNCBI standard code"},
                  {"ListView3(29)", "Combo4", "01, 100\nEIA-96"}}) {
                get<PlaceSwitch>(form, QString()).show({list, 0});
                QVERIFY2(Walk::sourceOf(get(form, field), Qt::Key_Down).startsWith(source), source);
            }
            get<QTabBar>(form, "TabStrip11").setCurrentIndex(0); // the colours of rings
            QVERIFY(Walk::sourceOf(get(form, "Combo2(4)"), Qt::Key_Down).startsWith("Black\nIEC 60062"));
        });
    }

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

    static QLabel &statusText(const Form1 &form) { return get<QLabel>(form, "StatusBar1.Panels(1)"); }
};

QTEST_MAIN(RunTest)
#include "run_test.moc"
