// The charts of the spectroscopy pane: that each row of the lists has its own, and that they tell the truth.

#include "charts/chartgeometry.h"
#include "tests/tools/pictures_data.h"
#include "tools/make_pictures/formula.h"
#include "tools/make_pictures/ircharts.h"
#include "tools/make_pictures/nmrcharts.h"
#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/shiftaxis.h"

#include <QImage>
#include <QTest>

#include <cmath>

namespace {

constexpr Formula::Style Scale{20, 13};

/// The longest run of @p colour on one line of the picture, as first and last abscissa.
std::pair<int, int> longestRun(const QImage &picture, QRgb colour)
{
    std::pair<int, int> longest{0, -1};
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0, start = -1; x <= picture.width(); ++x) {
            if (x < picture.width() && picture.pixel(x, y) == colour) {
                start = start < 0 ? x : start;
            } else if (start >= 0) {
                if (x - 1 - start > longest.second - longest.first)
                    longest = {start, x - 1};
                start = -1;
            }
        }
    }
    return longest;
}

/// The abscissa in the middle of the disc that marks an atom, -1 without one.
int markedAbscissa(const Formula &formula)
{
    QImage picture = blankPicture(int(formula.size().width()) + 1, int(formula.size().height()) + 1);
    QPainter painter(&picture);
    formula.paint(painter, {0, 0});
    painter.end();
    const auto [first, last] = longestRun(picture, Scale.mark.rgb());
    return last < first ? -1 : (first + last) / 2;
}

} // namespace

class PictureChartsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyShiftRowHasItsChart_data();
    void everyShiftRowHasItsChart();
    void everyInfraredGroupHasItsChart();
    void bandsStandAtTheirWaveNumbersInTheColourOfTheirBond();
    void tallInfraredChartsCanBeScrolledToTheirEnd();
    void shiftsFallFromLeftToRight();
    void shiftScalesAreRoundedOutwards();
    void numberedAtomsAreMarked();
    void barsNeedTwentyObservations();
    void wrongDataIsRefusedWithFileAndLine_data();
    void wrongDataIsRefusedWithFileAndLine();
};

void PictureChartsTest::everyShiftRowHasItsChart_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<int>("overviews");
    QTest::newRow("protons") << "/tables/RMN1Hspectro.tsv"
                             << "nmr/1h/" << 4;
    QTest::newRow("carbons") << "/tables/RMN13Cspectro.tsv"
                             << "nmr/13c/" << 1;
}

void PictureChartsTest::everyShiftRowHasItsChart()
{
    QFETCH(QString, table);
    QFETCH(QString, folder);
    QFETCH(int, overviews);
    const int rows = Table::read(Data + table).rowCount();
    for (int position = 1; position <= rows; ++position) {
        const int file = position <= overviews ? 999 + position : position - overviews + 1;
        const QImage chart(Pictures + folder + QStringLiteral("%1.gif").arg(file));
        QVERIFY2(!chart.isNull(), qPrintable(QString::number(file)));
        QCOMPARE(chart.width(), ChartGeometry::Width);
        QVERIFY(chart.height() <= ChartGeometry::VisibleHeight);
    }
    QVERIFY(!QFile::exists(Pictures + folder + QStringLiteral("1.gif")));
    QVERIFY(!QFile::exists(Pictures + folder + QStringLiteral("%1.gif").arg(rows - overviews + 2)));
}

void PictureChartsTest::everyInfraredGroupHasItsChart()
{
    const Table table = Table::read(Data + QStringLiteral("/tables/IRgraphe.tsv"));
    for (int row = 0; row < table.rowCount(); ++row) {
        const QImage chart(Pictures + QStringLiteral("ir/%1.gif").arg(table.cell(row, "groupe")));
        QCOMPARE(chart.width(), ChartGeometry::Width);
    }
}

void PictureChartsTest::bandsStandAtTheirWaveNumbersInTheColourOfTheirBond()
{
    // The widest red bar is the O-H band of the carboxylic acids, 3300 to 2500 cm-1; the widest olive one the
    // C-F band, 1400 to 1000 cm-1.
    const auto [acidLeft, acidRight] = longestRun(QImage(Pictures + QStringLiteral("ir/2.gif")), 0xffff0000);
    QVERIFY(std::abs(acidLeft - ChartGeometry::irAbscissa(3300)) <= 1);
    QVERIFY(std::abs(acidRight + 1 - ChartGeometry::irAbscissa(2500)) <= 1);
    const auto [fluorideLeft, fluorideRight] =
        longestRun(QImage(Pictures + QStringLiteral("ir/1.gif")), 0xffc0c000);
    QVERIFY(std::abs(fluorideLeft - ChartGeometry::irAbscissa(1400)) <= 1);
    QVERIFY(std::abs(fluorideRight + 1 - ChartGeometry::irAbscissa(1000)) <= 1);
}

void PictureChartsTest::tallInfraredChartsCanBeScrolledToTheirEnd()
{
    for (int group = 1; group <= 6; ++group) {
        const QImage chart(Pictures + QStringLiteral("ir/%1.gif").arg(group));
        int end = chart.height();
        while (end > 0 && longestRun(chart.copy(0, end - 1, chart.width(), 1), 0xffffffff) ==
                              std::pair(0, chart.width() - 1))
            --end;
        // The scroll bar moves the picture by (H x 1.01 - 10700) / 2 + 1 - 100 twips, H in hundredths of a
        // millimetre; 448 pixels of the frame show it.
        const double highest = chart.height() * 2540 / 96.0;
        const double moved = highest < 12500 ? 0 : ((highest * 1.01 - 10700) / 2 - 99) / 15;
        QVERIFY2(end <= moved + 448, qPrintable(QString::number(group)));
    }
}

void PictureChartsTest::shiftsFallFromLeftToRight()
{
    const ShiftAxis axis(10, 0, 100, 300);
    QCOMPARE(axis.abscissa(10), 100.0);
    QCOMPARE(axis.abscissa(7.5), 150.0);
    QCOMPARE(axis.abscissa(0), 300.0);
}

void PictureChartsTest::shiftScalesAreRoundedOutwards()
{
    const ShiftAxis narrow = ShiftAxis::around(0.42, 0.94, 0, 100);
    QVERIFY(narrow.low() <= 0.42 && narrow.low() > 0.3);
    QVERIFY(narrow.high() >= 0.94 && narrow.high() < 1.05);
    const ShiftAxis wide = ShiftAxis::around(-24, 76, 0, 100);
    QCOMPARE(wide.high(), 80.0);
    QCOMPARE(wide.low(), -30.0);
    const ShiftAxis whole = ShiftAxis::around(1, 2, 0, 100); // bounds on ticks stay
    QCOMPARE(whole.high(), 2.0);
    QCOMPARE(whole.low(), 1.0);
}

void PictureChartsTest::numberedAtomsAreMarked()
{
    for (const char *smiles : {"C([H:1])([H:1])([H:1])O* |$C;;;;;R$|", "[C:1]1(=O)NC(=O)CC1", "O([H:1])C"}) {
        const std::optional<Formula> motif = Formula::fromSmiles(QString::fromLatin1(smiles), Scale);
        QVERIFY2(motif, smiles);
        QVERIFY2(markedAbscissa(*motif) >= 0, smiles);
    }
    const std::optional<Formula> solvent = Formula::fromSmiles(QStringLiteral("CCO"), Scale);
    QCOMPARE(markedAbscissa(*solvent), -1);
}

void PictureChartsTest::barsNeedTwentyObservations()
{
    // On the whole scale: R-CH2-S-R has 43 values, R-CH2-SO2-R 12.
    const auto barHeight = [](int chart) {
        const QImage picture(Pictures + QStringLiteral("nmr/1h/%1.gif").arg(chart));
        const QRgb colour = classColour(QStringLiteral("CH2 next to sulfur")).rgb();
        int lines = 0;
        for (int y = 170; y < 186; ++y) {
            const auto [first, last] = longestRun(picture.copy(0, y, picture.width(), 1), colour);
            lines += last - first >= 10;
        }
        return lines;
    };
    QVERIFY(barHeight(86) >= 6);
    QCOMPARE(barHeight(88), 1);
}

void PictureChartsTest::wrongDataIsRefusedWithFileAndLine_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<Draw>("draw");
    QTest::addColumn<int>("line");
    const auto row = [](const char *name, const char *table, const char *before, const char *after, Draw draw,
                        int line) {
        QTest::newRow(name) << QStringLiteral("drawing/") + QString::fromLatin1(table) << QByteArray(before)
                            << QByteArray(after) << draw << line;
    };
    row("typical shift outside its range", "nmr_1h.tsv", "0.76\t0.92", "0.76\t1.92", drawNmrCharts, 6);
    row("shift that is no number", "nmr_1h.tsv", "0.73\t1.00", "0.73\tone", drawNmrCharts, 7);
    row("motif that cannot be drawn", "nmr_1h.tsv", "\tC([H:1])([H:1])([H:1])Cl ", "\tC(Cl ", drawNmrCharts,
        31);
    row("motif without an observed atom", "nmr_1h.tsv", "\tC([H:1])([H:1])([H:1])Cl ",
        "\tC([H])([H])([H])Cl ", drawNmrCharts, 31);
    row("overview without classes", "nmr_overview.tsv", "1H\t2\t", "1H\t9\t", drawNmrCharts, 3);
    row("band off the scale", "ir_bands.tsv", "2862\t2972", "2862\t4972", drawIrCharts, 3);
    row("band without a colour", "ir_bands.tsv", "1017\t1025\tm\tHydrogen (H),  Carbon (C)\t008000",
        "1017\t1025\tm\tHydrogen (H),  Carbon (C)\tgreen", drawIrCharts, 12);
    row("motif without bands", "ir_charts.tsv", "Allenes\t1", "Allene\t1", drawIrCharts, 4);
    row("text too long for the chart", "ir_bands.tsv", "C-H rock ((CH2)4 and longer)",
        "C-H rock ((CH2)4 and longer) with very many words that no chart of this width can hold in one "
        "single line of "
        "text",
        drawIrCharts, 10);
}

void PictureChartsTest::wrongDataIsRefusedWithFileAndLine()
{
    QFETCH(QString, table);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(Draw, draw);
    QFETCH(int, line);
    const QString message = WrongData{table, before, after, draw}.refusal();
    const QString place =
        table == QLatin1String("drawing/nmr_overview.tsv") ? QStringLiteral("drawing/nmr_1h.tsv") : table;
    QVERIFY2(message.contains(place + QStringLiteral(":%1:").arg(line)), qPrintable(message));
}

QTEST_MAIN(PictureChartsTest)
#include "picturecharts_test.moc"
