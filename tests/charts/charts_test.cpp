#include "charts/chartscroll.h"
#include "charts/ircharts.h"
#include "charts/nmrcharts.h"
#include "charts/reactioncharts.h"
#include "core/runtimeerror.h"
#include "tests/support/tsvsource.h"

#include <QFileInfo>
#include <QTest>

class ChartsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void overviewsAreNumberedApartFromMotifs_data();
    void overviewsAreNumberedApartFromMotifs();
    void everyRowAsksForAFileThatIsThere();
    void scrollingBeginsAtTheTallPicture();
    void aPictureBeyondSixteenBitsOverflows();
    void infraredChartsScrollFromAnOriginOfTheirOwn();
    void onlyTheSixGroupsHaveATitle();
    void reactionsAreCentredByTheGivenFactor();
};

void ChartsTest::overviewsAreNumberedApartFromMotifs_data()
{
    QTest::addColumn<bool>("protons");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("file");

    QTest::newRow("first overview of protons") << true << 1 << "Data/nmr/1h/1000.gif";
    QTest::newRow("last overview of protons") << true << 4 << "Data/nmr/1h/1003.gif";
    QTest::newRow("first motif of protons") << true << 5 << "Data/nmr/1h/2.gif";
    QTest::newRow("last motif of protons") << true << 250 << "Data/nmr/1h/247.gif";
    QTest::newRow("the overview of carbons") << false << 1 << "Data/nmr/13c/1000.gif";
    QTest::newRow("first motif of carbons") << false << 2 << "Data/nmr/13c/2.gif";
}

void ChartsTest::overviewsAreNumberedApartFromMotifs()
{
    QFETCH(const bool, protons);
    QFETCH(const int, position);
    QFETCH(const QString, file);
    const NmrCharts &charts = protons ? ProtonCharts : CarbonCharts;
    QCOMPARE(charts.file(charts.number(position)), file);
}

void ChartsTest::everyRowAsksForAFileThatIsThere()
{
    DataStore store;
    TsvSource::load(19, QStringLiteral("RMN1Hspectro"), store);
    TsvSource::load(20, QStringLiteral("RMN13Cspectro"), store);
    TsvSource::load(30, QStringLiteral("IRgraphe"), store);
    TsvSource::load(35, QStringLiteral("Reaction"), store);
    QStringList files;
    for (const NmrCharts &charts : {ProtonCharts, CarbonCharts}) {
        for (int row = 0; row < store.lists.ListView3[charts.list].rowCount(); ++row)
            files << charts.file(charts.number(row + 1));
    }
    for (int row = 0; row < store.lists.ListView3[5].rowCount(); ++row) {
        const QString group = store.lists.ListView3[5].subItem(row, 1);
        QVERIFY2(IrCharts::title(group), qPrintable(group));
        files << IrCharts::file(group);
    }
    for (int row = 0; row < store.lists.ListView3[31].rowCount(); ++row)
        files << ReactionCharts::file(row + 1, false) << ReactionCharts::file(row + 1, true);

    QVERIFY(files.size() > 800);
    for (const QString &file : files)
        QVERIFY2(QFileInfo(QStringLiteral(ALEMBRA_FOLDER "/") + file).isFile(), qPrintable(file));
}

void ChartsTest::scrollingBeginsAtTheTallPicture()
{
    QVERIFY(!ChartScroll::maximum(12499));
    QCOMPARE(ChartScroll::maximum(12500), 962); // 962.5, half to even
    QCOMPARE(ChartScroll::maximum(20000), 4750);
}

void ChartsTest::aPictureBeyondSixteenBitsOverflows()
{
    QCOMPARE(ChartScroll::maximum(75480), 32767); // 32767.4
    QVERIFY_THROWS_EXCEPTION(RuntimeError, ChartScroll::maximum(75481));
}

void ChartsTest::infraredChartsScrollFromAnOriginOfTheirOwn()
{
    QCOMPARE(ChartScroll::pictureTop(1, true), 98);
    QCOMPARE(ChartScroll::pictureTop(1, false), -1);
}

void ChartsTest::onlyTheSixGroupsHaveATitle()
{
    QCOMPARE(IrCharts::title(QStringLiteral("1")), QStringLiteral("Aliphatics, aliphatics halide"));
    QCOMPARE(IrCharts::title(QStringLiteral("4")), QStringLiteral("Sulfur, Phosphorous, Silicium"));
    QCOMPARE(IrCharts::title(QStringLiteral("6")), QStringLiteral("Functionalized aromatics"));
    for (const char *other : {"0", "7", "01", ""})
        QVERIFY2(!IrCharts::title(QString::fromLatin1(other)), other);
}

void ChartsTest::reactionsAreCentredByTheGivenFactor()
{
    QCOMPARE(ReactionCharts::left(10000, 10000), 2000.0);
    QVERIFY(ReactionCharts::left(6000, 20000) < 0);
}

QTEST_MAIN(ChartsTest)
#include "charts_test.moc"
