#include "app/placeswitch.h"
#include "tests/e2e/walk.h"
#include "tests/support/wholerun.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTreeWidget>

/// What answers a question of the bench in a few steps, and paper, in whole runs of the program.
class AnswersRunTest final : public WholeRun
{
    Q_OBJECT

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

    static QWidget &searchFor(Form1 &form, const char *text)
    {
        if (!QTest::qWaitFor([&] { return form.isActiveWindow() && form.focusWidget(); }))
            qFatal("the main window has no focus");
        QTest::keyClick(form.focusWidget(), Qt::Key_K, Qt::ControlModifier);
        auto &field = get(form, "txtSearch");
        QTest::keyClicks(&field, text);
        return field;
    }

    static void type(const QWidget &window, const char *field, const QString &text)
    {
        QTest::keyClicks(&get(window, field), text);
    }

    static QString text(const QWidget &window, const char *label)
    {
        return get<QLabel>(window, label).text();
    }

private Q_SLOTS:
    void everyListIsWhereTheTableOfPlacesSays()
    {
        run([](Form1 &form) {
            for (const ListPlace &where : Places::all()) {
                if (where.command == 0)
                    continue;
                const QString missed = missedAt(where, form);
                QVERIFY2(missed.isEmpty(), qPrintable(where.list + QStringLiteral(": ") + missed));
            }
            for (const RowListView *list : form.findChildren<RowListView *>())
                QVERIFY2(Places::find(list->objectName()), qPrintable(list->objectName()));
        });
    }

    // Each in two steps: Ctrl+K and what is typed. Enter leads to the row.
    void questionsOfTheBench()
    {
        const std::tuple<const char *, QString, QString> questions[] = {
            // the beginning of the first answer
            {"acetonitrile", "Acetonitrile|bp 81.6", "ListView1"},
            {"acetonitrile immiscible", "Acetonitrile|non-miscible: Cyclohexane, Decane", "ListView6"},
            {"2.05 CDCl3", "Ethyl acetate|CH3CO, s, CDCl3 2.05 ppm", "ListView4"},
            {"m/z 58 43", "2-Heptanone|m/z 58 (78), 43 (100)", "ListView3(26)"},
            {"pKa acetic acid", "Acetic acid|CH3COOH, pKa1 4.76", "ListView3(3)"},
            {"alpha", "alpha-Pinene|bp 156.3", "ListView1"},
            {"1715 cm-1", "Ketones|C=O stretch (saturated), 1725-1705 cm-1", "ListView3(27)"},
            {"ice -20", "Ice + sodium chloride (3:1)|cools to -21 °C", "ListView9"},
        };
        run([&](Form1 &form) {
            for (const auto &[typed, answer, list] : questions) {
                QWidget &field = searchFor(form, typed);
                const auto &answers = get<QTreeWidget>(form, "lstSearch");
                QVERIFY2(answers.topLevelItemCount() > 0, typed);
                const QTreeWidgetItem &first = *answers.topLevelItem(0);
                QCOMPARE((first.text(0) + '|' + first.text(2)).left(answer.size()), answer);
                QTest::keyClick(&field, Qt::Key_Return);
                const Place place = get<PlaceSwitch>(form, QString()).current();
                QCOMPARE(place.list, list);
                const auto &shown = get<RowListView>(form, place.list);
                QVERIFY(answer.startsWith(shown.model()->index(place.row, 0).data().toString() + '|'));
            }
        });
    }

    // Two steps: open "Show in", choose the table.
    void fromThePropertiesOfAcetoneToItsShifts()
    {
        run([](Form1 &form) {
            form.executeCommand(1119);
            type(form, "ListView1", "acetone");
            QVERIFY(QTest::qWaitForWindowActive(&form));
            QTest::keyClick(form.focusWidget(), Qt::Key_E, Qt::AltModifier);
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_I);
            const auto &tables = get<QMenu>(form, "mnuShowIn");
            QVERIFY(tables.isVisible());
            for (int entry = 0; entry < tables.actions().size(); ++entry) {
                if (tables.activeAction() && tables.activeAction()->text() == "Solvents, proton NMR")
                    break;
                QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
            }
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
            const auto &shifts = get<RowListView>(form, "ListView4");
            QVERIFY(shifts.isVisible());
            QCOMPARE(shifts.model()->index(shifts.selectedRow(), 0).data().toString(), "Acetone");
        });
    }

    void theWayBackAndForward()
    {
        run([](Form1 &form) {
            const auto &places = get<PlaceSwitch>(form, QString());
            form.executeCommand(1120);
            get(form, "TextBoxM3").setFocus(); // a field has Ctrl+K for itself
            QTest::keyClick(&searchFor(form, "bp acetonitrile"), Qt::Key_Down);
            auto &answers = get<QTreeWidget>(form, "lstSearch");
            QTest::keyClick(&answers, Qt::Key_Up);
            QCOMPARE(answers.window()->focusWidget(), &get(form, "txtSearch"));
            QTest::keyClick(answers.window()->focusWidget(), Qt::Key_Down);
            QCOMPARE(answers.topLevelItem(0)->text(1), "Solvents, properties");
            QTest::keyClick(answers.window()->focusWidget(), Qt::Key_Return);
            const Place row{"ListView1", 3};
            QVERIFY(places.current() == row);
            QTest::keyClick(&searchFor(form, "a-pinene"), Qt::Key_Escape);
            QVERIFY(places.current() == row);

            QTest::keyClick(&searchFor(form, "codons of tryptophan"), Qt::Key_Return);
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

            QTest::keyClick(&searchFor(form, "keyboard"), Qt::Key_Return);
            const QWidget *help = openWindow("frmHelpPages");
            QVERIFY(help);
            QCOMPARE(get<QTreeWidget>(*help, "treHelpContents").currentItem()->text(0), "Keyboard");
        });
    }

    void molarMassOfAFormula()
    {
        run([](Form1 &form) {
            form.executeCommand(1120);
            QVERIFY(QTest::qWaitForWindowActive(&form));
            QTest::keyClick(&form, Qt::Key_M, Qt::ControlModifier);
            const QWidget &window = get(form, "frmFormula");
            type(window, "txtFormula", "C6H12O6*H2O");
            QCOMPARE(text(window, "lblMass"), "198.171 g/mol");
            form.restoreAndRaise(); // as a second start does
            QVERIFY(QTest::qWaitFor([&] { return window.isActiveWindow(); }));
            type(window, "txtFormula", "(");
            QCOMPARE(text(window, "lblMass"), "");
            QCOMPARE(text(window, "lblError"), "After \"C6H12O6*H2O(\": an element is missing here");
            QVERIFY(!get(window, "cmdPutM").isEnabled());
            QTest::keyClick(&get(window, "txtFormula"), Qt::Key_Backspace);
            QTest::keyClick(&get(window, "txtFormula"), Qt::Key_Return);
            const auto &mass = get<QLineEdit>(form, "TextBoxM5");
            QCOMPARE(mass.text(), "198.171");
            QTRY_COMPARE(form.focusWidget(), &mass);

            get<QTabBar>(form, "TabStrip4").setCurrentIndex(4); // of two masses the first that is empty
            for (const auto &[next, caption] :
                 {std::pair("TextBoxM7(4)", "&Put into M1"), {"TextBoxM7(5)", "&Put into M2"}}) {
                QTRY_VERIFY(!form.findChild<QWidget *>("frmFormula"));
                QTest::keyClick(&form, Qt::Key_M, Qt::ControlModifier);
                QCOMPARE(get<QPushButton>(form, "cmdPutM").text(), caption);
                type(get(form, "frmFormula"), "txtFormula", "H2O");
                QTest::keyClick(&get(form, "txtFormula"), Qt::Key_Return);
                QCOMPARE(get<QLineEdit>(form, next).text(), "18.015");
            }
        });
    }

    void stockSolutionAndDilution()
    {
        run([](Form1 &form) {
            form.executeCommand(1120);
            get<QPushButton>(form, "cmdStock").click();
            QWidget &window = get(form, "frmStock");
            type(window, "txtConcentration", "1");
            type(window, "txtVolume", "250");
            QCOMPARE(text(window, "lblStockVolume"), "20.8 mL (exactly 20.81 mL), made up to 250 mL");
            QCOMPARE(text(window, "lblStockMass"), "24.64 g (exactly 24.64 g)");
            type(window, "txtTaken", "20.8");
            QCOMPARE(text(window, "lblMade"), "0.9997 mol/L in 250 mL");
            type(window, "txtConcentration", "3"); // 13 mol/L
            QCOMPARE(text(window, "lblStockVolume"), "");
            QCOMPARE(text(window, "lblWarning"), "That is stronger than the bottle.");
            window.close();

            get<QTabBar>(form, "TabStrip4").setCurrentIndex(3);
            type(form, "TextBoxM7(7)", "0.0208");
            type(form, "TextBoxM7(9)", "0.25");
            QCOMPARE(text(form, "lblPlain"), "20.8 mL, made up to 250 mL; 1 in 12");
        });
    }

    void reportsOnPaper()
    {
        const QTemporaryDir folder;
        m_desktop.savePaths = {folder.filePath("solvents.pdf")};
        run([](Form1 &form) {
            QVERIFY(get<QAction>(form, "actPdfReport").isEnabled()); // the elements
            form.executeCommand(1111);
            QVERIFY(!get<QAction>(form, "actPrintReport").isEnabled());
            form.executeCommand(1119);
            get<QAction>(form, "actPdfReport").trigger();
            get<QAction>(form, "actPrintReport").trigger();
            QWidget &preview = get(form, "frmPreview");
            QVERIFY(QTest::qWaitForWindowExposed(&preview));
            preview.close();
        });
        const QByteArray pdf = readFile(folder.filePath("solvents.pdf"));
        QVERIFY(pdf.startsWith("%PDF-"));
        QVERIFY(pdf.count("/Type /Page\n") > 5 && pdf.contains("/Subtype /Image"));
    }
};

QTEST_MAIN(AnswersRunTest)
#include "answers_run_test.moc"
