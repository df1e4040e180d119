#include "core/module1.h"
#include "options/filefigures.h"
#include "options/statisticstab.h"
#include "store/datastore.h"
#include "tests/support/files.h"

#include <QComboBox>
#include <QLabel>
#include <QTemporaryDir>

class StatisticsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsComeFromTheirTallies()
    {
        DataStore store;
        for (int step = 0; step < int(store.tallies.rows.size()); ++step)
            store.tallies.rows[size_t(step)] = 1000 + step;
        store.tallies.isotopes = 40;
        store.tallies.carbonShifts = 50;
        store.tallies.acidBaseIndicators = 60;
        store.tallies.fluorescentIndicators = 70;
        store.tallies.irBonds = 80;
        for (const QStringView row : {u"a", u"b"})
            store.lists.ListView1.append(row);
        Module1 module;
        module.UnitItemCount = 85;
        const StatisticsTab tab(store, module, nullptr);
        const std::pair<const char *, int> labels[] = {
            {"Label12", 2},  // the rows of the list
            {"Label45", 51}, // one solvent more than shifts
            {"Label44", 1028}, {"Label20", 60},   {"Label23", 70},   {"Label13", 1003},
            {"Label51", 40},   {"Label30", 1017}, {"Label47", 1015}, // without four overviews
            {"Label50", 1019},                                       // without one overview
            {"Label57", 80},   {"Label14", 1006}, {"Label53", 85},
        };
        for (const auto &[label, count] : labels)
            QCOMPARE(label + (':' + get<QLabel>(tab, label).text()), QString("%1:%2").arg(label).arg(count));
        QVERIFY(!get(tab, "Label12").isHidden() && get(tab, "Label53").isHidden());
        get<QComboBox>(tab, "Combo1").setCurrentIndex(5); // calculations instead of solvents
        QVERIFY(get(tab, "Label12").isHidden() && !get(tab, "Label53").isHidden());
    }

    void sizesAreWrittenInFull()
    {
        QCOMPARE(FileFigures::kilobytes(0), QString("0 Ko"));
        QCOMPARE(FileFigures::kilobytes(1), QString("0.0009765625 Ko"));
        QCOMPARE(FileFigures::kilobytes(1234567890123), QString("1205632705.19824 Ko"));
        QCOMPARE(FileFigures::megabytes(3145728), QString("3 Mo"));
        QCOMPARE(FileFigures::megabytes(1048576 + 131072), QString("1.12 Mo")); // 1.125, half to even
        QCOMPARE(FileFigures::megabytes(1048576 + 393216), QString("1.38 Mo")); // 1.375
    }

    void folderSizeIsTheSumOfItsFiles()
    {
        const QTemporaryDir folder;
        int bytes = 1;
        for (const char *name : {"a", ".hidden", "Data/b", "Data/img/c", "Data/Data/d"}) {
            writeFile(folder.filePath(name), QByteArray(bytes, 'x'));
            bytes *= 10;
        }
        const QString none = folder.filePath("none");
        QVERIFY(QFile::link(folder.path(), folder.filePath("round")));
        QVERIFY(QFile::link(none, folder.filePath("dangling")));
        QCOMPARE(FileFigures::folderSize(folder.path()), 11111);
        QCOMPARE(errorOf([&] { FileFigures::fileLength(none); }), 53);
        QCOMPARE(errorOf([&] { FileFigures::modificationDate(none); }), 53);
        QCOMPARE(errorOf([&] { FileFigures::folderSize(none); }), 76);
    }
};

const TestClass<StatisticsTest> statisticsTest;
#include "statistics_test.moc"
