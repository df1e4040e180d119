#include "app/placeswitch.h"
#include "tests/support/files.h"
#include "tests/support/wholerun.h"
#include "widgets/rowlistview.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTreeWidget>

/// What answers a question of the bench in a few steps, and paper, in whole runs of the program.
class AnswersRunTest final : public WholeRun
{
    Q_OBJECT

    static void trigger(const Form1 &form, const char *action)
    {
        get<QAction>(form, QString::fromLatin1(action)).trigger();
    }

    /// What the screen shows wrongly after going to the last row of @p where; empty if nothing.
    static QString missedAt(const ListPlace &where, Form1 &form)
    {
        auto &places = get<PlaceSwitch>(form, QString());
        const QString list = QLatin1String(where.list);
        places.show({list, 0}); // builds the pane
        const auto *view = form.findChild<QAbstractItemView *>(list);
        const int last = view ? view->model()->rowCount() - 1 : 0;
        places.show({list, last});
        QCoreApplication::sendPostedEvents();
        const Place shown = places.current();
        if (shown.list != list || (view && shown.row != last))
            return QStringLiteral("shows %1, row %2").arg(shown.list).arg(shown.row);
        if (!view)
            return {};
        const QPoint row = view->visualRect(view->currentIndex()).center();
        if ((last >= 0 && !view->viewport()->rect().contains(row)) || !Controls::isOnTop(*view, form))
            return QStringLiteral("is not in view");
        return form.focusWidget() == view ? QString() : QStringLiteral("has no focus");
    }

private Q_SLOTS:
    void everyListIsWhereTheTableOfPlacesSays()
    {
        const ProgramFolder folder;
        folder.setOption(56, "0");
        QCOMPARE(run(folder,
                     [](Form1 &form) {
                         for (const ListPlace &where : Places::all()) {
                             if (where.command == 0)
                                 continue;
                             const QString missed = missedAt(where, form);
                             QVERIFY2(missed.isEmpty(),
                                      qPrintable(where.list + QStringLiteral(": ") + missed));
                         }
                         for (const RowListView *list : form.findChildren<RowListView *>())
                             QVERIFY2(Places::find(list->objectName()), qPrintable(list->objectName()));
                     }),
                 0);
    }

    void anythingIsFoundAndTheWayBackToo()
    {
        const ProgramFolder folder;
        folder.setOption(56, "0");
        const auto steps = [](Form1 &form) {
            const auto &places = get<PlaceSwitch>(form, QString());
            const auto searchFor = [&form](const QString &text) -> QWidget & {
                if (!QTest::qWaitFor([&] { return form.isActiveWindow() && form.focusWidget(); }))
                    qFatal("the main window has no focus");
                QTest::keyClick(form.focusWidget(), Qt::Key_K, Qt::ControlModifier);
                QWidget &window = get(form, "frmSearch");
                QTest::keyClicks(&get(window, "txtSearch"), text);
                return window;
            };
            form.executeCommand(1120);
            get(form, "TextBoxM3").setFocus(); // a field has Ctrl+K for itself
            QWidget &window = searchFor("bp acetonitrile");
            const auto &answers = get<QTreeWidget>(window, "lstSearch");
            const auto cell = [&](int column) { return answers.topLevelItem(0)->text(column); };
            QCOMPARE(cell(0) + " | " + cell(1), "Acetonitrile | Solvents, properties");
            QVERIFY2(cell(2).startsWith("bp 81.6, "), qPrintable(cell(2)));
            QTest::keyClick(&get(window, "txtSearch"), Qt::Key_Down);
            QTest::keyClick(window.focusWidget(), Qt::Key_Return);
            const Place row{"ListView1", 3};
            QCOMPARE(places.current().list, row.list);
            QTest::keyClick(&searchFor("a-pinene"), Qt::Key_Escape);
            QVERIFY(places.current() == row);

            searchFor("codons of tryptophan");
            QTest::keyClick(form.findChild<QWidget *>("txtSearch"), Qt::Key_Return);
            QCOMPARE(get<QLineEdit>(form, "tbm(1)").text(), "UGG");
            QTest::keyClick(&form, Qt::Key_Left, Qt::AltModifier);
            QVERIFY(places.current() == row);
            form.executeCommand(1113);
            QVERIFY(!get<QAction>(form, "actForward").isEnabled());
            for (int step = 0; step < 2; ++step)
                QTest::keyClick(&form, Qt::Key_Left, Qt::AltModifier);
            QVERIFY(Controls::isShown(get(form, "Frame2")));
            QTest::keyClick(&form, Qt::Key_Right, Qt::AltModifier);
            QVERIFY(places.current() == row);

            searchFor("keyboard");
            QTest::keyClick(form.findChild<QWidget *>("txtSearch"), Qt::Key_Return);
            for (const QWidget *each : QApplication::topLevelWidgets()) {
                if (each->objectName() == "frmHelpPages")
                    QCOMPARE(get<QTreeWidget>(*each, "treHelpContents").currentItem()->text(0), "Keyboard");
            }
        };
        QCOMPARE(run(folder, steps), 0);
    }

    void molarMassOfAFormula()
    {
        const ProgramFolder folder;
        folder.setOption(56, "0"); // no tip
        QCOMPARE(run(folder,
                     [](Form1 &form) {
                         form.executeCommand(1120);
                         trigger(form, "actMolarMass");
                         const QWidget &window = get(form, "frmFormula");
                         auto &formula = get<QLineEdit>(window, "txtFormula");
                         const QString answer = QStringLiteral("198.171 g/mol");
                         QTest::keyClicks(&formula, "C6H12O6*H2O");
                         QCOMPARE(get<QLabel>(window, "lblMass").text(), answer);
                         form.restoreAndRaise(); // as a second start does
                         QVERIFY(QTest::qWaitFor([&] { return window.isActiveWindow(); }));
                         QTest::keyClicks(&formula, "(");
                         QCOMPARE(get<QLabel>(window, "lblMass").text(), "");
                         QCOMPARE(get<QLabel>(window, "lblError").text(),
                                  "After \"C6H12O6*H2O(\": an element is missing here");
                         QVERIFY(!get<QPushButton>(window, "cmdPutM").isEnabled());
                         QTest::keyClick(&formula, Qt::Key_Backspace);
                         QTest::keyClick(&formula, Qt::Key_Return);
                         const auto &mass = get<QLineEdit>(form, "TextBoxM5");
                         QCOMPARE(mass.text(), "198.171");
                         QTRY_COMPARE(form.focusWidget(), &mass);
                     }),
                 0);
    }

    void stockSolutionAndDilution()
    {
        const ProgramFolder folder;
        folder.setOption(56, "0");
        QCOMPARE(
            run(folder,
                [](Form1 &form) {
                    form.executeCommand(1120);
                    get<QPushButton>(form, "cmdStock").click();
                    QWidget &window = get(form, "frmStock");
                    QTest::keyClicks(&get<QLineEdit>(window, "txtConcentration"), "1");
                    QTest::keyClicks(&get<QLineEdit>(window, "txtVolume"), "250");
                    const QString wanted = QStringLiteral("20.8 mL (exactly 20.81 mL), made up to 250 mL");
                    QCOMPARE(get<QLabel>(window, "lblStockVolume").text(), wanted);
                    QCOMPARE(get<QLabel>(window, "lblStockMass").text(), "24.64 g (exactly 24.64 g)");
                    QTest::keyClicks(&get<QLineEdit>(window, "txtTaken"), "20.8");
                    QCOMPARE(get<QLabel>(window, "lblMade").text(), "0.9997 mol/L in 250 mL");
                    QTest::keyClicks(&get<QLineEdit>(window, "txtConcentration"), "3"); // 13 mol/L
                    QCOMPARE(get<QLabel>(window, "lblStockVolume").text(), "");
                    QCOMPARE(get<QLabel>(window, "lblWarning").text(), "That is stronger than the bottle.");
                    window.close();

                    get<QTabBar>(form, "TabStrip4").setCurrentIndex(3);
                    QTest::keyClicks(&get<QLineEdit>(form, "TextBoxM7(7)"), "0.0208");
                    QTest::keyClicks(&get<QLineEdit>(form, "TextBoxM7(9)"), "0.25");
                    QCOMPARE(get<QLabel>(form, "lblPlain").text(), "20.8 mL, made up to 250 mL; 1 in 12");
                }),
            0);
    }

    void reportsOnPaper()
    {
        const ProgramFolder folder;
        folder.setOption(56, "0");
        const QString file = folder.root() + "/acids.pdf";
        m_desktop.savePaths = {file};
        QCOMPARE(run(folder,
                     [&](Form1 &form) {
                         QVERIFY(get<QAction>(form, "actPdfReport").isEnabled()); // the elements
                         form.executeCommand(1111);
                         QVERIFY(!get<QAction>(form, "actPrintReport").isEnabled());
                         form.executeCommand(1113);
                         trigger(form, "actPdfReport");
                         trigger(form, "actPrintReport");
                         QWidget &preview = get(form, "frmPreview");
                         QVERIFY(QTest::qWaitForWindowExposed(&preview));
                         preview.close();
                     }),
                 0);
        const QByteArray pdf = readFile(file);
        QVERIFY(pdf.startsWith("%PDF-"));
        QVERIFY(pdf.count("/Type /Page\n") > 5);
    }
};

const TestClass<AnswersRunTest> answersRunTest;
#include "answers_run_test.moc"
