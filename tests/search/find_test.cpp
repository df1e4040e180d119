#include "core/runtimeerror.h"
#include "search/find.h"
#include "store/rowlist.h"

#include <QTest>

using Find::Direction;
using Find::Position;

namespace {

void fill(RowList &list, const QStringList &rows)
{
    for (const QString &row : rows)
        list.append(row);
}

QStringList texts(const RowList &list)
{
    QStringList rows;
    for (int row = 0; row < list.rowCount(); ++row)
        rows << list.text(row);
    return rows;
}

} // namespace

class FindTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void gathersEverySubstringMatch_data();
    void gathersEverySubstringMatch();
    void aListShorterThanTheLimitFailsWithWhatItHas();
    void walksToTheHitsInOrderAndBack();
    void theSecondOfEqualTextsSelectsTheFirstOfThem();
    void aWalkPastEitherEndIsTheSubscriptError();
    void ordinalsAre16BitNumbers();
};

void FindTest::gathersEverySubstringMatch_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("matchCase");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QStringList>("expected");

    const QStringList all{"Acetic acid", "Acetone", "Butyl acetate"};
    QTest::newRow("any case") << "ACE" << false << 4 << all;
    QTest::newRow("case counts") << "ACE" << true << 4 << QStringList();
    QTest::newRow("case fits") << "ace" << true << 4 << QStringList{"Butyl acetate"};
    QTest::newRow("beyond the limit") << "ace" << false << 2 << QStringList{"Acetic acid", "Acetone"};
    QTest::newRow("no hit") << "xyz" << false << 4 << QStringList();
    QTest::newRow("blank counts") << "c a" << false << 4 << QStringList{"Acetic acid"};
}

void FindTest::gathersEverySubstringMatch()
{
    QFETCH(const QString, text);
    QFETCH(const bool, matchCase);
    QFETCH(const int, limit);
    QFETCH(const QStringList, expected);
    RowList list;
    fill(list, {"Acetic acid", "Acetone", "Butyl acetate", "Water"});
    RowList hits;
    hits.append(u"left over");

    Find::gather(list, limit, text, matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive, hits);

    QCOMPARE(texts(hits), expected);
}

void FindTest::aListShorterThanTheLimitFailsWithWhatItHas()
{
    RowList list;
    fill(list, {"Acetone", "Water"});
    RowList hits;
    try {
        Find::gather(list, 3, "a", Qt::CaseInsensitive, hits);
        QFAIL("no error");
    } catch (const RuntimeError &error) {
        QCOMPARE(error.number(), ErrorNumber::Subscript);
    }
    QCOMPARE(texts(hits), (QStringList{"Acetone", "Water"}));
}

void FindTest::walksToTheHitsInOrderAndBack()
{
    RowList list;
    fill(list, {"Water", "Acetone", "Ether", "Acetic acid", "Aceto"});
    RowList hits;
    Find::gather(list, 5, "ace", Qt::CaseInsensitive, hits);
    Position at{0, 0};
    QList<int> rows;
    while (const auto next = Find::walk(list, hits, at, Direction::Next)) {
        at = *next;
        rows << at.row;
    }
    while (const auto previous = Find::walk(list, hits, at, Direction::Previous)) {
        at = *previous;
        rows << at.row;
    }
    QCOMPARE(rows, (QList<int>{2, 4, 5, 4, 2}));
    QCOMPARE(at.hit, 1);
}

void FindTest::theSecondOfEqualTextsSelectsTheFirstOfThem()
{
    RowList list;
    fill(list, {"Water", "Xylene", "Ether", "Xylene", "Xylene"});
    RowList hits;
    Find::gather(list, 5, "Xyl", Qt::CaseSensitive, hits);
    const auto second = Find::walk(list, hits, {1, 2}, Direction::Next);
    QCOMPARE(second->row, 2); // looks from row 2 on and meets the first again
    const auto third = Find::walk(list, hits, *second, Direction::Next);
    QCOMPARE(third->row, 4); // from row 3 on
}

void FindTest::aWalkPastEitherEndIsTheSubscriptError()
{
    RowList list;
    fill(list, {"Water"});
    RowList hits;
    fill(hits, {"Ether", "Ether"});
    QVERIFY_THROWS_EXCEPTION(RuntimeError, Find::walk(list, hits, {0, 0}, Direction::Next));
    QVERIFY_THROWS_EXCEPTION(RuntimeError, Find::walk(list, hits, {2, 1}, Direction::Previous));
}

void FindTest::ordinalsAre16BitNumbers()
{
    RowList list;
    for (int row = 0; row < 32768; ++row)
        list.append(u"a");
    QCOMPARE(Find::walk(list, list, {32766, 32766}, Direction::Next)->hit, 32767);
    QVERIFY_THROWS_EXCEPTION(RuntimeError, Find::walk(list, list, {32767, 32767}, Direction::Next));
}

QTEST_APPLESS_MAIN(FindTest)
#include "find_test.moc"
