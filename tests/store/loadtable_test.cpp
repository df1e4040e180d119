#include "core/runtimeerror.h"
#include "store/datastore.h"
#include "store/gridlines.h"
#include "store/loadtable.h"
#include "store/tablecatalog.h"
#include "tests/support/tsvsource.h"

#include <QTest>

namespace {

/// Rows made for a test. A cell "<null>" has no value.
class MadeRows final : public RowSource
{
public:
    explicit MadeRows(QList<QStringList> rows) : m_rows(std::move(rows)) {}

    bool atEnd() const override { return m_row >= m_rows.size(); }
    QStringView field(int index) const override
    {
        requireRow();
        const QStringList &cells = m_rows[m_row];
        const QStringView text = index < cells.size() ? QStringView(cells[index]) : QStringView();
        if (text == QStringLiteral("<null>"))
            throw RuntimeError(ErrorNumber::InvalidNull);
        return text;
    }
    void moveNext() override
    {
        requireRow();
        ++m_row;
    }

private:
    void requireRow() const
    {
        if (atEnd())
            throw RuntimeError(ErrorNumber::PastEnd);
    }

    const QList<QStringList> m_rows;
    qsizetype m_row = 0;
};

// Each cell tells where it comes from: "r<row>f<field>", rows from 1.
QList<QStringList> numbered(int rows, int fields)
{
    QList<QStringList> made;
    for (int row = 1; row <= rows; ++row) {
        QStringList cells;
        for (int field = 0; field < fields; ++field)
            cells << QStringLiteral("r%1f%2").arg(row).arg(field);
        made << cells;
    }
    return made;
}

QStringList cellsOf(const RowList &list, int row, int count)
{
    QStringList cells{list.text(row)};
    for (int number = 1; number < count; ++number)
        cells << list.subItem(row, number);
    return cells;
}

} // namespace

class LoadTableTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shortTableEndsTheStepInSilence();
    void rowsPastTheGroupsByCountGoToTheFirstList();
    void rowsPastTheGroupsByRangeStartOver();
    void rowsPastAPlainCountStayUnread();
    void emptyTableOfAnOuterLoopIsNoError();
    void solventsShowTheIndexBeforeTheCasNumber();
    void aminoAcidListsLeaveOutOneFieldEach();
    void elementsFillTableNamesAndTallies();
    void referencesStartAtRowOne();
    void nullEndsTheStepWithinItsRow();
    void tooManyRowsForAMemoryTableEndTheStep();
    void ringColoursGoToTheListsOfTheirRows();
    void onlyAMissingTableIsTold_data();
    void onlyAMissingTableIsTold();
    void indicatorTallySplitsByList();
    void everyGroupGoesToItsList();
    void gridLinesAreSwitchedAsymmetrically();

private:
    // Runs one step; true if the step's missing table was told.
    bool load(DataStore &store, int step, const QList<QStringList> &rows)
    {
        bool told = false;
        TableLoader loader(
            store, [&](const QString &) { return std::make_unique<MadeRows>(rows); }, [&] { told = true; });
        loader.LoadCounter = step;
        loader.LoadTable(QStringLiteral("SELECT"));
        return told;
    }
};

void LoadTableTest::shortTableEndsTheStepInSilence()
{
    DataStore store;
    QVERIFY(!load(store, 6, numbered(44, 4)));
    QCOMPARE(store.lists.ListView2[0].rowCount(), 10);
    QCOMPARE(store.lists.ListView2[3].rowCount(), 11);
    QCOMPARE(store.lists.ListView2[4].rowCount(), 3);
    QCOMPARE(store.tallies.rows[6], 44);

    QVERIFY(!load(store, 16, numbered(5, 3)));
    QCOMPARE(store.lists.ListView3[14].rowCount(), 5);
}

void LoadTableTest::rowsPastTheGroupsByCountGoToTheFirstList()
{
    DataStore store;
    QVERIFY(!load(store, 8, numbered(181, 3)));
    QCOMPARE(store.lists.ListView3[0].rowCount(), 62);
    QCOMPARE(store.lists.ListView3[0].text(61), QStringLiteral("r181f0"));
    QCOMPARE(store.lists.ListView3[1].text(0), QStringLiteral("r61f0"));
    QCOMPARE(store.lists.ListView3[6].text(55), QStringLiteral("r179f0"));
    QCOMPARE(store.lists.ListView3[6].rowCount(), 56);
}

void LoadTableTest::rowsPastTheGroupsByRangeStartOver()
{
    DataStore store;
    QVERIFY(!load(store, 6, numbered(57, 4)));
    QCOMPARE(store.lists.ListView2[0].rowCount(), 20);
    QCOMPARE(store.lists.ListView2[1].rowCount(), 8);
    QCOMPARE(store.lists.ListView2[1].text(7), QStringLiteral("r57f0"));
}

void LoadTableTest::rowsPastAPlainCountStayUnread()
{
    DataStore store;
    QVERIFY(!load(store, 14, numbered(75, 11)));
    QCOMPARE(store.lists.ListView3[9].rowCount(), 20);
    QCOMPARE(store.lists.ListView3[10].rowCount(), 53);
    QCOMPARE(store.tallies.rows[14], 73);
}

void LoadTableTest::emptyTableOfAnOuterLoopIsNoError()
{
    DataStore store;
    for (const int step : {1, 7, 13, 19})
        QVERIFY(!load(store, step, {}));
    QCOMPARE(store.SolventCount, 0);
}

void LoadTableTest::solventsShowTheIndexBeforeTheCasNumber()
{
    DataStore store;
    load(store, 1, numbered(2, 7));
    QCOMPARE(cellsOf(store.lists.ListView1, 1, 7),
             (QStringList{"r2f0", "r2f1", "r2f2", "r2f3", "r2f4", "r2f6", "r2f5"}));
    QCOMPARE(store.SolventCount, 2);
}

void LoadTableTest::aminoAcidListsLeaveOutOneFieldEach()
{
    DataStore store;
    load(store, 14, numbered(21, 11));
    QCOMPARE(
        cellsOf(store.lists.ListView3[9], 0, 11),
        (QStringList{"r1f0", "r1f1", "r1f2", "r1f3", "r1f4", "r1f5", "r1f6", "r1f7", "r1f9", "r1f10", ""}));
    QCOMPARE(cellsOf(store.lists.ListView3[10], 0, 11),
             (QStringList{"r21f0", "r21f2", "r21f3", "r21f4", "r21f5", "r21f6", "r21f7", "r21f8", "r21f9",
                          "r21f10", ""}));
}

void LoadTableTest::elementsFillTableNamesAndTallies()
{
    QList<QStringList> rows = numbered(2, 30);
    for (int field = 21; field < 30; ++field)
        rows[1][field].clear(); // the second element has two isotopes
    DataStore store;
    load(store, 3, rows);
    QCOMPARE(store.tables.ElementData(1, ElementColumn::Symbol), QStringLiteral("r2f1"));
    QCOMPARE(store.tables.ElementData(0, 29), QStringLiteral("r1f29"));
    QVERIFY(store.tables.ElementData(0, 30).isEmpty());
    QCOMPARE(store.lists.Combo2[3].text(1), QStringLiteral("r2f0"));
    QCOMPARE(store.tallies.isotopes, 7);
    QCOMPARE(store.tallies.rows[3], 2);
}

void LoadTableTest::referencesStartAtRowOne()
{
    DataStore store;
    load(store, 29, numbered(40, 2));
    QVERIFY(store.tables.NmrReferenceData(0, 0).isEmpty());
    QCOMPARE(store.tables.NmrReferenceData(31, 1), QStringLiteral("r31f1"));
    QVERIFY(store.tables.NmrReferenceData(32, 0).isEmpty());
}

void LoadTableTest::nullEndsTheStepWithinItsRow()
{
    QList<QStringList> rows = numbered(3, 4);
    rows[1][2] = QStringLiteral("<null>");
    DataStore store;
    QVERIFY(!load(store, 4, rows));
    QCOMPARE(store.lists.ListView6.rowCount(), 2);
    QCOMPARE(cellsOf(store.lists.ListView6, 1, 4), (QStringList{"r2f0", "r2f1", "", ""}));
}

void LoadTableTest::tooManyRowsForAMemoryTableEndTheStep()
{
    DataStore store;
    QVERIFY(!load(store, 18, numbered(30, 7)));
    QCOMPARE(store.lists.Comb2.rowCount(), 23);
    QVERIFY(!load(store, 30, numbered(120, 2)));
    QCOMPARE(store.lists.ListView3[5].rowCount(), 101); // the row that does not fit the table is in the list
    QCOMPARE(store.tables.IrGroupData(100, 0), QStringLiteral("r100f0"));
}

void LoadTableTest::ringColoursGoToTheListsOfTheirRows()
{
    DataStore store;
    load(store, 32, numbered(13, 8));
    QCOMPARE(store.lists.Combo2[4].rowCount(), 11);
    QCOMPARE(store.lists.Combo2[6].text(0), QStringLiteral("r3f0"));
    QCOMPARE(store.lists.Combo2[7].rowCount(), 10);
    QCOMPARE(store.lists.Combo2[8].rowCount(), 7);
    QCOMPARE(store.lists.Combo2[8].text(2), QStringLiteral("r4f0"));
    QCOMPARE(store.lists.Combo2[9].text(7), QStringLiteral("r12f0"));

    load(store, 34, numbered(2, 2));
    QCOMPARE(store.lists.ListView3[29].subItem(1, 1), QStringLiteral("r2f1"));
    QCOMPARE(store.lists.Combo4.text(1), QStringLiteral("r2f0"));
}

void LoadTableTest::onlyAMissingTableIsTold_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("told");
    QTest::newRow("missing table") << ErrorNumber::TableNotFound << true;
    QTest::newRow("missing column") << ErrorNumber::ColumnNotFound << false;
    QTest::newRow("damage") << ErrorNumber::DatabaseFailure << false;
    QTest::newRow("closed connection") << ErrorNumber::ObjectClosed << false;
}

void LoadTableTest::onlyAMissingTableIsTold()
{
    QFETCH(int, number);
    QFETCH(bool, told);
    DataStore store;
    bool asked = false;
    TableLoader loader(
        store, [&](const QString &) -> std::unique_ptr<RowSource> { throw RuntimeError(number); },
        [&] { asked = true; });
    loader.LoadTable(QStringLiteral("SELECT"));
    QCOMPARE(asked, told);
}

void LoadTableTest::indicatorTallySplitsByList()
{
    DataStore store;
    load(store, 8, numbered(180, 3));
    QCOMPARE(store.tallies.acidBaseIndicators,
             store.lists.ListView3[0].rowCount() + store.lists.ListView3[1].rowCount());
    QCOMPARE(store.tallies.fluorescentIndicators, store.lists.ListView3[6].rowCount());
}

void LoadTableTest::everyGroupGoesToItsList()
{
    DataStore store;
    for (int step = TableCatalog::FirstStep; step <= TableCatalog::LastStep; ++step)
        TsvSource::load(step, TableCatalog::table(step), store);
    const auto sizes = [](const auto &lists, int count) {
        QStringList rows;
        for (int index = 0; index < count; ++index)
            rows << QString::number(lists[index].rowCount());
        return rows.join(QLatin1Char(' '));
    };
    QCOMPARE(sizes(store.lists.ListView2, 5), QStringLiteral("10 6 14 11 4"));
    QCOMPARE(sizes(store.lists.ListView7, 7), QStringLiteral("7 13 13 8 24 4 6"));
    // Redox couples and infrared bands are of any number.
    const auto &rows = store.tallies.rows;
    const QString expected =
        QStringLiteral("60 63 51 92 %1 66 56 242 318 20 53 6 33 7 73 250 418 5 25 21 30 47 47 31 "
                       "159 89 200 %2 192 96 0 59");
    QCOMPARE(sizes(store.lists.ListView3, 32), expected.arg(rows[12]).arg(rows[31]));
}

void LoadTableTest::gridLinesAreSwitchedAsymmetrically()
{
    RowLists lists;
    ApplyGridLines(lists, true);
    QVERIFY(lists.ListView3[27].gridLines());
    QVERIFY(!lists.ListView3[5].gridLines());
    lists.ListView3[5].setGridLines(true);
    ApplyGridLines(lists, true);
    QVERIFY(lists.ListView3[5].gridLines());
    ApplyGridLines(lists, false);
    QVERIFY(!lists.ListView3[5].gridLines());
    QVERIFY(!lists.ListView1.gridLines());
}

QTEST_APPLESS_MAIN(LoadTableTest)
#include "loadtable_test.moc"
