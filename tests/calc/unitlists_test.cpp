#include "calc/unitlists.h"

#include "core/runtimeerror.h"

#include <QTest>

class UnitListsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyUnitSlotGoesIntoItsPairInSlotOrder();
    void aShortFileLeavesNamesEmptyAndPositionsInPlace();
};

void UnitListsTest::everyUnitSlotGoesIntoItsPairInSlotOrder()
{
    OptionSlots slots;
    for (int slot = 0; slot <= OptionSlots::LastIndex; ++slot)
        slots(slot) = QStringLiteral("unit (%1)").arg(slot);
    UnitLists lists;
    int UnitItemCount = 5;

    lists.fill(slots, UnitItemCount);

    QCOMPARE(UnitItemCount, 5 + 68);
    QCOMPARE(lists.names(5), (QStringList{"unit (25)", "unit (26)", "unit (27)", "unit (87)"}));
    QStringList ends;
    for (int list = 1; list <= UnitLists::Count; list += 2) {
        QCOMPARE(lists.names(list), lists.names(list + 1));
        ends << lists.names(list).first() + QLatin1Char(' ') + lists.names(list).last();
    }
    QCOMPARE(ends, (QStringList{"unit (1) unit (13)", "unit (14) unit (24)", "unit (25) unit (87)",
                                "unit (28) unit (30)", "unit (31) unit (43)", "unit (44) unit (52)",
                                "unit (59) unit (62)", "unit (63) unit (73)"}));
    QVERIFY_THROWS_EXCEPTION(RuntimeError, lists.names(17));
}

void UnitListsTest::aShortFileLeavesNamesEmptyAndPositionsInPlace()
{
    UnitLists lists;
    int UnitItemCount = 0;
    lists.fill(OptionSlots(), UnitItemCount);
    QCOMPARE(UnitItemCount, 68);
    QCOMPARE(lists.names(6), QStringList(4, QString()));
}

QTEST_GUILESS_MAIN(UnitListsTest)
#include "unitlists_test.moc"
