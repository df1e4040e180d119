#include "app/traydoubleclick.h"

#include <QTest>

/// What notification areas tell of the clicks on an icon: c is a click, d a double click, a digit the
/// hundreds of milliseconds that pass.
class TrayDoubleClickTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachDoubleClickCountsOnce_data();
    void eachDoubleClickCountsOnce();
};

void TrayDoubleClickTest::eachDoubleClickCountsOnce_data()
{
    QTest::addColumn<QByteArray>("told");
    QTest::addColumn<int>("counted");
    QTest::newRow("one click") << QByteArray("c") << 0;
    QTest::newRow("two clicks in time") << QByteArray("c3c") << 1;
    QTest::newRow("two clicks far apart") << QByteArray("c5c") << 0;
    QTest::newRow("three clicks, the last two in time") << QByteArray("c5c3c") << 1;
    QTest::newRow("click and double click") << QByteArray("c1d") << 1;
    QTest::newRow("two clicks and a double click") << QByteArray("c1cd") << 1;
    QTest::newRow("double click alone") << QByteArray("d") << 1;
    QTest::newRow("two double clicks in haste") << QByteArray("c1d1c1d") << 2;
    QTest::newRow("four clicks in haste") << QByteArray("c1c1c1c") << 2;
    QTest::newRow("double click, then a click") << QByteArray("c1d1c") << 1;
}

void TrayDoubleClickTest::eachDoubleClickCountsOnce()
{
    QFETCH(QByteArray, told);
    QFETCH(int, counted);
    TrayDoubleClick clicks(400);
    qint64 now = 0;
    int count = 0;
    for (const char c : told) {
        if (c == 'c')
            count += clicks.click(now) ? 1 : 0;
        else if (c == 'd')
            count += clicks.doubleClick(now) ? 1 : 0;
        else
            now += qint64(100) * (c - '0');
    }
    QCOMPARE(count, counted);
}

QTEST_GUILESS_MAIN(TrayDoubleClickTest)
#include "traydoubleclick_test.moc"
