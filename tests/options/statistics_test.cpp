#include "core/module1.h"
#include "core/runtimeerror.h"
#include "options/filefigures.h"
#include "options/statistics.h"
#include "options/statisticstab.h"
#include "store/datastore.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

class StatisticsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsComeFromTheirTallies_data();
    void countsComeFromTheirTallies();
    void onePageIsShownAtATime();
    void sizesAreWrittenInFull();
    void folderSizeIsTheSumOfItsFiles();
    void missingFilesAndFoldersAreTold();
};

void StatisticsTest::countsComeFromTheirTallies_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("count");
    QTest::newRow("rows of the list") << "Label12"
                                      << "2";
    QTest::newRow("one solvent more than shifts") << "Label45"
                                                  << "51";
    QTest::newRow("masses") << "Label44"
                            << "1028";
    QTest::newRow("indicators by pH") << "Label20"
                                      << "60";
    QTest::newRow("indicators by fluorescence") << "Label23"
                                                << "70";
    QTest::newRow("elements") << "Label13"
                              << "1003";
    QTest::newRow("isotopes") << "Label51"
                              << "40";
    QTest::newRow("fatty acids") << "Label30"
                                 << "1017";
    QTest::newRow("protons without four overviews") << "Label47"
                                                    << "1015";
    QTest::newRow("carbons without one overview") << "Label50"
                                                  << "1019";
    QTest::newRow("infrared bonds") << "Label57"
                                    << "80";
    QTest::newRow("constants") << "Label14"
                               << "1006";
    QTest::newRow("conversions") << "Label53"
                                 << "85";
}

void StatisticsTest::countsComeFromTheirTallies()
{
    QFETCH(QString, label);
    QFETCH(QString, count);
    DataStore store;
    for (int step = 0; step < int(store.tallies.rows.size()); ++step)
        store.tallies.rows[size_t(step)] = 1000 + step;
    store.tallies.isotopes = 40;
    store.tallies.carbonShifts = 50;
    store.tallies.acidBaseIndicators = 60;
    store.tallies.fluorescentIndicators = 70;
    store.tallies.irBonds = 80;
    store.lists.ListView1.append(QStringLiteral("a"));
    store.lists.ListView1.append(QStringLiteral("b"));
    Module1 module;
    module.UnitItemCount = 85;

    const StatisticsTab tab(store, module, nullptr);

    QCOMPARE(tab.findChild<QLabel *>(label)->text(), count);
}

void StatisticsTest::onePageIsShownAtATime()
{
    const DataStore store;
    const Module1 module;
    const StatisticsTab tab(store, module, nullptr);
    auto *Combo1 = tab.findChild<QComboBox *>(QStringLiteral("Combo1"));
    const auto pages = Statistics::pages();
    QCOMPARE(Combo1->count(), int(pages.size()));
    QCOMPARE(Combo1->currentText(), QStringLiteral("Solvents"));
    for (int shown = int(pages.size()) - 1; shown >= 0; --shown) {
        Combo1->setCurrentIndex(shown);
        for (int page = 0; page < int(pages.size()); ++page) {
            for (const Statistics::Count &count : pages[size_t(page)].counts) {
                for (const int label : {count.captionLabel, count.valueLabel}) {
                    const auto *control = tab.findChild<QLabel *>(QStringLiteral("Label%1").arg(label));
                    QCOMPARE(control->isHidden(), page != shown);
                }
            }
        }
    }
    // No label stands on two pages, and none is one of the sizes above.
    QSet<QString> names;
    for (const QLabel *label : tab.findChildren<QLabel *>()) {
        QVERIFY2(!names.contains(label->objectName()), qPrintable(label->objectName()));
        names << label->objectName();
    }
}

void StatisticsTest::sizesAreWrittenInFull()
{
    QCOMPARE(FileFigures::kilobytes(0), QStringLiteral("0 Ko"));
    QCOMPARE(FileFigures::kilobytes(1536), QStringLiteral("1.5 Ko"));
    QCOMPARE(FileFigures::kilobytes(1), QStringLiteral("0.0009765625 Ko"));
    QCOMPARE(FileFigures::kilobytes(1234567890123), QStringLiteral("1205632705.19824 Ko"));
    QCOMPARE(FileFigures::megabytes(3145728), QStringLiteral("3 Mo"));
    QCOMPARE(FileFigures::megabytes(1048576 + 131072), QStringLiteral("1.12 Mo")); // 1.125, half to even
    QCOMPARE(FileFigures::megabytes(1048576 + 393216), QStringLiteral("1.38 Mo")); // 1.375
    QCOMPARE(FileFigures::megabytes(1), QStringLiteral("0 Mo"));
}

void StatisticsTest::folderSizeIsTheSumOfItsFiles()
{
    const QTemporaryDir folder;
    const auto add = [&](const QString &name, int bytes) {
        const QString path = folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(QByteArray(bytes, 'x')), bytes);
    };
    add(QStringLiteral("a"), 1);
    add(QStringLiteral(".hidden"), 10);
    add(QStringLiteral("Data/b"), 100);
    add(QStringLiteral("Data/img/c"), 1000);
    add(QStringLiteral("Data/Data/d"), 10000);
    QVERIFY(QFile::link(folder.path(), folder.filePath(QStringLiteral("round"))));
    QVERIFY(
        QFile::link(folder.filePath(QStringLiteral("none")), folder.filePath(QStringLiteral("dangling"))));
    QCOMPARE(FileFigures::folderSize(folder.path()), 11111);
}

void StatisticsTest::missingFilesAndFoldersAreTold()
{
    const QTemporaryDir folder;
    const auto numberOf = [](const auto &measure) {
        try {
            measure();
        } catch (const RuntimeError &error) {
            return error.number();
        }
        return 0;
    };
    const QString none = folder.filePath(QStringLiteral("none"));
    QCOMPARE(numberOf([&] { FileFigures::fileLength(none); }), 53);
    QCOMPARE(numberOf([&] { FileFigures::modificationDate(none); }), 53);
    QCOMPARE(numberOf([&] { FileFigures::folderSize(none); }), 76);
}

QTEST_MAIN(StatisticsTest)
#include "statistics_test.moc"
