#include "app/placeswitch.h"
#include "tests/e2e/walk.h"
#include "tests/support/files.h"
#include "tests/support/wholerun.h"
#include "widgets/rowlistview.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QTreeWidget>

namespace {

struct Entry
{
    const char *field;
    const char *text;
};

/// A question of the bench and how it is answered with the keyboard: a shortcut, then what is typed.
struct Task
{
    const char *question;
    qsizetype steps; ///< at most
    QKeySequence shortcut;
    QList<Entry> typed;
    const char *answer;         ///< the first answer of the search begins with it, or the label reads so
    const char *label = "";     ///< that has the answer; empty for the search
    const char *list = nullptr; ///< where Enter leads to from the search
};

QList<Task> tasks()
{
    const QKeySequence search(Qt::CTRL | Qt::Key_K);
    const auto lookUp = [&](const char *question, const char *typed, const char *answer, const char *list) {
        return Task{question, 2, search, {{"txtSearch", typed}}, answer, "", list};
    };
    return {
        lookUp("boiling point of acetonitrile", "acetonitrile", "Acetonitrile|bp 81.6", "ListView1"),
        lookUp("its immiscible partners", "acetonitrile immiscible",
               "Acetonitrile|non-miscible: Cyclohexane, Decane, Heptane", "ListView6"),
        lookUp("impurity at 2.05 in CDCl3", "2.05 CDCl3", "Ethyl acetate|CH3CO, s, CDCl3 2.05 ppm",
               "ListView4"),
        lookUp("peaks 58 and 43", "m/z 58 43", "2-Heptanone|m/z 58 (78), 43 (100)", "ListView3(26)"),
        {"molar mass of C6H12O6.H2O",
         3,
         QKeySequence(Qt::CTRL | Qt::Key_M),
         {{"txtFormula", "C6H12O6*H2O"}},
         "198.171 g/mol",
         "lblMass"},
        {"250 mL of 1 M HCl from 37 %",
         4,
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_M),
         {{"txtConcentration", "1"}, {"txtVolume", "250"}},
         "20.8 mL (exactly 20.81 mL), made up to 250 mL",
         "lblStockVolume"},
        lookUp("codons of tryptophan", "codons of tryptophan", "Tryptophan|UGG", nullptr),
        lookUp("pKa of acetic acid", "pKa acetic acid", "Acetic acid|CH3COOH, pKa1 4.76", "ListView3(3)"),
        lookUp("alpha in any table", "alpha", "alpha-Pinene|bp 156.3", "ListView1"),
        lookUp("band at 1715 cm-1", "1715 cm-1", "Ketones|C=O stretch (saturated), 1725-1705 cm-1",
               "ListView3(27)"),
        lookUp("ice and salt for -20", "ice -20", "Ice + sodium chloride (3:1)|cools to -21 °C", "ListView9"),
    };
}

} // namespace

/// Questions of the bench, each answered in a few steps of a whole run.
class TasksRunTest final : public WholeRun
{
    Q_OBJECT

    static QString answerIn(const QWidget &window, const Task &task)
    {
        if (*task.label)
            return get<QLabel>(window, QString(task.label)).text();
        const QTreeWidgetItem *first = get<QTreeWidget>(window, QStringLiteral("lstSearch")).topLevelItem(0);
        return first ? (first->text(0) + '|' + first->text(2)).left(int(qstrlen(task.answer))) : QString();
    }

private Q_SLOTS:
    void answeredInFewSteps_data()
    {
        QTest::addColumn<qsizetype>("number");
        for (qsizetype number = 0; number < tasks().size(); ++number)
            QTest::newRow(tasks()[number].question) << number;
    }

    void answeredInFewSteps()
    {
        QFETCH(const qsizetype, number);
        const Task task = tasks()[number];
        QVERIFY(1 + task.typed.size() <= task.steps);
        const auto steps = [&task](Form1 &form) {
            QVERIFY(QTest::qWaitForWindowActive(&form));
            QTest::keySequence(form.focusWidget(), task.shortcut);
            QWidget *window = Walk::sideWindow(form);
            QVERIFY(window);
            for (const Entry &entry : task.typed)
                QTest::keyClicks(&get(*window, QString(entry.field)), entry.text);
            QCOMPARE(answerIn(*window, task), QString(task.answer));
            if (!task.list)
                return;
            QTest::keyClick(&get(*window, "txtSearch"), Qt::Key_Return);
            const auto &places = get<PlaceSwitch>(form, QString());
            QCOMPARE(places.current().list, QString(task.list));
            const Place place = places.current();
            const auto &list = get<RowListView>(form, place.list);
            const QString name = list.model()->index(place.row, 0).data().toString();
            QVERIFY(QString(task.answer).startsWith(name + '|'));
        };
        QCOMPARE(run(ProgramFolder(), steps), 0);
    }

    // Two steps: open "Show in", choose the table.
    void fromThePropertiesOfAcetoneToItsShifts()
    {
        const auto steps = [](Form1 &form) {
            form.executeCommand(1119);
            QTest::keyClicks(&get(form, "ListView1"), "acetone");
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
        };
        QCOMPARE(run(ProgramFolder(), steps), 0);
    }
};

const TestClass<TasksRunTest> tasksRunTest;
#include "tasks_run_test.moc"
