#include "tests/faults/faultrun.h"
#include "tests/store/sampledatabases.h"
#include "widgets/rowlistview.h"

#include <QTest>

using SampleDatabases::Edit;

/// Databases that a user has edited, or that are of another kind.
class DatabasesTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editedTable_data();
    void editedTable();
    void ofAnotherKind_data();
    void ofAnotherKind();
};

namespace {

/// The rows of a list as "text|sub-item|...".
QStringList rowsOf(const Form1 &form, const QString &list)
{
    QStringList rows;
    const QAbstractItemModel &model = *form.findChild<RowListView *>(list)->model();
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells << model.index(row, column).data().toString();
        rows << cells.join(QLatin1Char('|'));
    }
    return rows;
}

} // namespace

Q_DECLARE_METATYPE(SampleDatabases::Edit)

void DatabasesTest::editedTable_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<int>("command");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QStringList>("rows");

    const QString cooling = QStringLiteral("Refrigeration");
    const auto coolingRow = [&](const char *name, const Edit &edit, const QStringList &rows) {
        QTest::newRow(name) << edit << 1117 << "ListView9" << rows;
    };
    coolingRow("as it was", {cooling, 2}, {"0.0|0.1", "1.0|1.1"});
    coolingRow("a column more", {cooling, 2, {}, true}, {"0.0|0.1", "1.0|1.1"});
    coolingRow("a row more", {cooling, 3}, {"0.0|0.1", "1.0|1.1", "2.0|2.1"});
    coolingRow("rows deleted", {cooling, 4, {0, 2}}, {"1.0|1.1", "3.0|3.1"});
    coolingRow("no rows", {cooling, 0}, {});
    coolingRow("all rows deleted", {cooling, 2, {0, 1}}, {});
    coolingRow("columns of numbers", {cooling, 3, {}, false, true}, {"0|0.1", "1|1.1", "2|2.1"});
}

void DatabasesTest::editedTable()
{
    QFETCH(Edit, edit);
    QFETCH(int, command);
    QFETCH(QString, list);
    QFETCH(QStringList, rows);
    const ProgramFolder folder;
    folder.write(QStringLiteral("Data/Database_uk.mdb"), SampleDatabases::catalogued(2, edit));
    FaultRun run;
    run.start(folder, [&](Form1 &form) {
        form.executeCommand(command);
        QCOMPARE(rowsOf(form, list), rows);
        // The tables behind it are loaded whatever became of this one.
        form.executeCommand(1133);
        QCOMPARE(rowsOf(form, QStringLiteral("ListView3(26)")).size(), 2);
    });
    QCOMPARE(run.outcome(), QStringLiteral("runs"));
}

void DatabasesTest::ofAnotherKind_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray whole = SampleDatabases::catalogued(1);
    QByteArray jet3 = whole;
    jet3[0x14] = 0;
    QTest::newRow("Jet 3") << jet3;
    QByteArray ace = whole;
    ace[0x14] = 2;
    ace.replace(4, 15, "Standard ACE DB");
    QTest::newRow("Access 2007") << ace;
    QTest::newRow("header alone") << whole.first(128);
    QTest::newRow("one page") << whole.first(4096);
    QTest::newRow("another password") << SampleDatabases::catalogued(1).replace(0x42, 4, "\1\2\3\4");
    QTest::newRow("text") << QByteArray("name,value\r\n").repeated(1000);
    QTest::newRow("zeros") << QByteArray(1 << 20, '\0');
}

// Refused with the question before any window, and untouched.
void DatabasesTest::ofAnotherKind()
{
    QFETCH(QByteArray, content);
    const ProgramFolder folder;
    folder.write(QStringLiteral("Data/Database_uk.mdb"), content);
    FaultRun run;
    run.start(folder);
    QCOMPARE(run.outcome(), QStringLiteral("question"));
    QVERIFY(!run.stood);
    QCOMPARE(folder.read(QStringLiteral("Data/Database_uk.mdb")), content);
}

QTEST_MAIN(DatabasesTest)
#include "databases_test.moc"
