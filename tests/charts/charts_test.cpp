#include "charts/chartscroll.h"
#include "charts/ircharts.h"
#include "charts/nmrcharts.h"
#include "charts/reactioncharts.h"
#include "core/runtimeerror.h"
#include "tests/support/deliveredtables.h"
#include "tests/support/testclass.h"

#include <QFileInfo>

class ChartsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRowAsksForAFileThatIsThere()
    {
        DataStore store;
        for (const int step : {19, 20, 30, 35}) // protons, carbons, infrared, reactions
            loadDelivered(step, store);
        QStringList files;
        for (const NmrCharts &charts : {ProtonCharts, CarbonCharts}) {
            for (int row = 0; row < store.lists.ListView3[charts.list].rowCount(); ++row)
                files << charts.file(charts.number(row + 1));
        }
        for (const int overview : {0, 3, 4, 249, 250, 251}) // overviews are numbered apart from motifs
            files << files[overview];
        QCOMPARE(files.mid(files.size() - 6).join(' '),
                 "Data/nmr/1h/1000.gif Data/nmr/1h/1003.gif Data/nmr/1h/2.gif Data/nmr/1h/247.gif "
                 "Data/nmr/13c/1000.gif Data/nmr/13c/2.gif");
        for (int row = 0; row < store.lists.ListView3[5].rowCount(); ++row) {
            const QString group = store.lists.ListView3[5].subItem(row, 1);
            QVERIFY2(IrCharts::title(group), qPrintable(group));
            files << IrCharts::file(group);
        }
        for (int row = 0; row < store.lists.ListView3[31].rowCount(); ++row)
            files << ReactionCharts::file(row + 1, false) << ReactionCharts::file(row + 1, true);

        QVERIFY(files.size() > 800);
        for (const QString &file : files)
            QVERIFY2(QFileInfo(ALEMBRA_FOLDER "/" + file).isFile(), qPrintable(file));
    }

    void scrollingBeginsAtTheTallPicture()
    {
        QVERIFY(!ChartScroll::maximum(12499));
        QCOMPARE(ChartScroll::maximum(12500), 962); // 962.5, half to even
        QCOMPARE(ChartScroll::maximum(20000), 4750);
        QCOMPARE(ChartScroll::maximum(75480), 32767); // 32767.4
        QVERIFY_THROWS_EXCEPTION(RuntimeError, ChartScroll::maximum(75481));
        QCOMPARE(ChartScroll::pictureTop(1, true), 98);
        QCOMPARE(ChartScroll::pictureTop(1, false), -1);
        QCOMPARE(ReactionCharts::left(10000, 10000), 2000.0);
        QVERIFY(ReactionCharts::left(6000, 20000) < 0);
    }
};

const TestClass<ChartsTest> chartsTest;
#include "charts_test.moc"
