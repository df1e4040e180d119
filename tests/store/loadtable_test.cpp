#include "core/runtimeerror.h"
#include "store/tablecatalog.h"
#include "tests/support/deliveredtables.h"
#include "tests/support/testclass.h"

namespace {

/// Rows of which each cell says where it comes from: "r<row>f<field>", rows from 1.
class MadeRows final : public RowSource
{
public:
    int rows;
    int fields;
    QHash<QString, QString> others = {}; ///< cells with another text, a null text for no value

    MadeRows(int rowCount, int fieldCount) : rows(rowCount), fields(fieldCount) {}
    bool atEnd() const override { return m_row > rows; }
    QStringView field(int index) const override
    {
        requireRow();
        m_cell = index < fields ? QString("r%1f%2").arg(m_row).arg(index) : QString("");
        m_cell = others.value(m_cell, m_cell);
        if (m_cell.isNull())
            throw RuntimeError(ErrorNumber::InvalidNull);
        return m_cell;
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

    mutable QString m_cell;
    int m_row = 1;
};

QString cellsOf(const RowList &list, int row)
{
    QStringList cells;
    for (int number = 0; number < 12; ++number)
        cells << list.cell(row, number).toString();
    return cells.join(' ').trimmed();
}

template<class Lists>
QString sizes(const Lists &lists, int count)
{
    QStringList rows;
    for (int index = 0; index < count; ++index)
        rows << QString::number(lists[index].rowCount());
    return rows.join(' ');
}

} // namespace

class LoadTableTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_store = std::make_unique<DataStore>(); }

    // A table with fewer or more rows than its groups ends its step in silence.
    void rowsGoToTheirGroups()
    {
        RowLists &lists = m_store->lists;
        load(6, {44, 4});
        QCOMPARE(sizes(lists.ListView2, 5), QString("10 6 14 11 3"));
        QCOMPARE(m_store->tallies.rows[6], 44);
        load(16, {5, 3});
        QCOMPARE(lists.ListView3[14].rowCount(), 5);

        init(); // past groups by count: to the first list
        load(8, {181, 3});
        QCOMPARE(sizes(m_store->lists.ListView3, 7), QString("62 63 0 0 0 0 56"));
        QCOMPARE(m_store->lists.ListView3[0].text(61), QString("r181f0"));
        QCOMPARE(m_store->lists.ListView3[1].text(0), QString("r61f0"));
        QCOMPARE(m_store->tallies.acidBaseIndicators, 125);
        QCOMPARE(m_store->tallies.fluorescentIndicators, 56);

        init(); // past groups by range: from the start
        load(6, {57, 4});
        QCOMPARE(sizes(m_store->lists.ListView2, 5), QString("20 8 14 11 4"));
        QCOMPARE(m_store->lists.ListView2[1].text(7), QString("r57f0"));

        load(14, {75, 11}); // past a plain count: unread
        QCOMPARE(m_store->lists.ListView3[9].rowCount(), 20);
        QCOMPARE(m_store->lists.ListView3[10].rowCount(), 53);
        QCOMPARE(m_store->tallies.rows[14], 73);
    }

    void emptyTableOfAnOuterLoopIsNoError()
    {
        for (const int step : {1, 7, 13, 19})
            load(step, {0, 7});
        QCOMPARE(m_store->SolventCount, 0);
    }

    void someListsOrderOrLeaveOutFields()
    {
        const RowLists &lists = m_store->lists;
        load(1, {2, 7});
        QCOMPARE(cellsOf(lists.ListView1, 1), QString("r2f0 r2f1 r2f2 r2f3 r2f4 r2f6 r2f5"));
        QCOMPARE(m_store->SolventCount, 2);
        load(14, {21, 11});
        QCOMPARE(cellsOf(lists.ListView3[9], 0),
                 QString("r1f0 r1f1 r1f2 r1f3 r1f4 r1f5 r1f6 r1f7 r1f9 r1f10"));
        QCOMPARE(cellsOf(lists.ListView3[10], 0),
                 QString("r21f0 r21f2 r21f3 r21f4 r21f5 r21f6 r21f7 r21f8 r21f9 r21f10"));
        load(34, {2, 2});
        QCOMPARE(cellsOf(lists.ListView3[29], 1), QString("r2f0 r2f1"));
        QCOMPARE(lists.Combo4.text(1), QString("r2f0"));
    }

    void elementsFillTableNamesAndTallies()
    {
        MadeRows rows(2, 30);
        for (int field = 21; field < 30; ++field)
            rows.others[QString("r2f%1").arg(field)] = ""; // the second element has two isotopes
        load(3, rows);
        const auto &table = m_store->tables.ElementData;
        QCOMPARE(table(1, ElementColumn::Symbol), QString("r2f1"));
        QCOMPARE(table(0, 29), QString("r1f29"));
        QVERIFY(table(0, 30).isEmpty());
        QCOMPARE(m_store->lists.Combo2[3].text(1), QString("r2f0"));
        QCOMPARE(m_store->tallies.isotopes, 7);
        QCOMPARE(m_store->tallies.rows[3], 2);
    }

    void memoryTablesEndTheStepWhenFull()
    {
        load(18, {30, 7});
        QCOMPARE(m_store->lists.Comb2.rowCount(), 23);
        load(30, {120, 2});
        QCOMPARE(m_store->lists.ListView3[5].rowCount(),
                 101); // the row that does not fit the table is in the list
        QCOMPARE(m_store->tables.IrGroupData(100, 0), QString("r100f0"));
        load(29, {40, 2}); // the references start at row 1
        QVERIFY(m_store->tables.NmrReferenceData(0, 0).isEmpty());
        QCOMPARE(m_store->tables.NmrReferenceData(31, 1), QString("r31f1"));
        QVERIFY(m_store->tables.NmrReferenceData(32, 0).isEmpty());
    }

    void nullEndsTheStepWithinItsRow()
    {
        MadeRows rows(3, 4);
        rows.others["r2f2"] = QString();
        load(4, rows);
        QCOMPARE(m_store->lists.ListView6.rowCount(), 2);
        QCOMPARE(cellsOf(m_store->lists.ListView6, 1), QString("r2f0 r2f1"));
    }

    void ringColoursGoToTheListsOfTheirRows()
    {
        load(32, {13, 8});
        const auto &lists = m_store->lists.Combo2;
        QCOMPARE(lists[4].rowCount(), 11);
        QCOMPARE(lists[6].text(0), QString("r3f0"));
        QCOMPARE(lists[7].rowCount(), 10);
        QCOMPARE(lists[8].rowCount(), 7);
        QCOMPARE(lists[8].text(2), QString("r4f0"));
        QCOMPARE(lists[9].text(7), QString("r12f0"));
    }

    void onlyAMissingTableIsReported()
    {
        for (const int number : {ErrorNumber::TableNotFound, ErrorNumber::ColumnNotFound,
                                 ErrorNumber::DatabaseFailure, ErrorNumber::ObjectClosed}) {
            bool reported = false;
            TableLoader loader(
                *m_store, [&](const QString &) -> std::unique_ptr<RowSource> { throw RuntimeError(number); },
                [&] { reported = true; });
            loader.LoadTable("SELECT");
            QCOMPARE(reported, number == ErrorNumber::TableNotFound);
        }
    }

    // Redox couples and infrared bands are of any number.
    void everyDeliveredGroupGoesToItsList()
    {
        for (int step = TableCatalog::FirstStep; step <= TableCatalog::LastStep; ++step)
            loadDelivered(step, *m_store);
        const RowLists &lists = m_store->lists;
        QCOMPARE(sizes(lists.ListView2, 5), QString("10 6 14 11 4"));
        QCOMPARE(sizes(lists.ListView7, 7), QString("7 13 13 8 24 4 6"));
        const auto &rows = m_store->tallies.rows;
        QCOMPARE(sizes(lists.ListView3, 32),
                 QString("60 63 51 92 %1 66 56 242 318 20 53 6 33 7 73 250 418 5 25 21 30 47 "
                         "47 31 159 89 200 %2 192 96 0 59")
                     .arg(rows[12])
                     .arg(rows[31]));
    }

private:
    // No missing table may be reported.
    void load(int step, const MadeRows &rows)
    {
        TableLoader loader(
            *m_store, [&](const QString &) { return std::make_unique<MadeRows>(rows); },
            [] { QFAIL("a missing table"); });
        loader.LoadCounter = step;
        loader.LoadTable("SELECT");
    }

    std::unique_ptr<DataStore> m_store;
};

const TestClass<LoadTableTest> loadTableTest;
#include "loadtable_test.moc"
