// The pictures of the built program folder, and the drawing behind them.

#include "tests/tools/pictures_data.h"
#include "tools/make_pictures/crystals.h"
#include "tools/make_pictures/elements.h"
#include "tools/make_pictures/ircharts.h"
#include "tools/make_pictures/structures.h"

#include <QFile>
#include <QImage>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace {

int darkPixels(const QImage &picture)
{
    int dark = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            dark += qGray(picture.pixel(x, y)) < 128;
    }
    return dark;
}

} // namespace

class PicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyElementHasTwoCards();
    void everyCrystalStructureHasACell();
    void everySolventWithAStructureHasItTwice();
    void numbersThatTwoListsShareShowBothFormulas();
    void drawingAgainGivesTheSameBytesAndWritesNothing();
    void wrongDataIsRefusedWithFileAndLine_data();
    void wrongDataIsRefusedWithFileAndLine();
    void electronsAreCountedShellByShell();
    void blocksFollowThePeriodicTable();
    void gifKeepsUpTo256ColoursExactly();
};

void PicturesTest::everyElementHasTwoCards()
{
    for (int number = 1; number <= LastCard; ++number) {
        const QString name = Pictures + QStringLiteral("elements/%1").arg(number);
        QCOMPARE(QImage(name + QStringLiteral(".jpg")).size(), QSize(160, 160));
        QCOMPARE(QImage(name + QStringLiteral("b.jpg")).size(), QSize(480, 480));
    }
    QVERIFY(!QFile::exists(Pictures + QStringLiteral("elements/107.jpg")));
}

void PicturesTest::everyCrystalStructureHasACell()
{
    const Table table = Table::read(Data + QStringLiteral("/tables/Elements.tsv"));
    QSet<QByteArray> different;
    QSet<QString> names;
    for (int row = 0; row < table.rowCount(); ++row) {
        const QString name = table.cell(row, "cristallo");
        if (name == QLatin1String("-"))
            continue;
        const QString path = Pictures + QStringLiteral("cristal/%1.bmp").arg(name);
        QVERIFY2(!QImage(path).isNull(), qPrintable(path));
        names << name;
        different << bytesOf(path);
    }
    QCOMPARE(different.size(), names.size());
}

void PicturesTest::everySolventWithAStructureHasItTwice()
{
    const Table solvents = Table::read(Data + QStringLiteral("/tables/Solvants.tsv"));
    int without = 0;
    for (int row = 0; row < solvents.rowCount(); ++row) {
        const QString folder = Pictures + QStringLiteral("chemicals/");
        const QString name = solvents.cell(row, "solvant");
        const QImage named(folder + name + QStringLiteral(".bmp"));
        const QImage numbered(folder + QStringLiteral("%1.bmp").arg(row + 1));
        QCOMPARE(named.isNull(), name.startsWith(QLatin1String("Petroleum ether")));
        without += named.isNull();
        if (row >= 20)
            QCOMPARE(numbered, named);
        QVERIFY2(named.width() <= 430 && named.height() <= 320, qPrintable(name));
        // No white margin that would take width from the report.
        if (!named.isNull())
            QVERIFY2(darkPixels(named.copy(0, 0, 8, named.height())) > 0, qPrintable(name));
    }
    QCOMPARE(without, 4);
}

void PicturesTest::numbersThatTwoListsShareShowBothFormulas()
{
    const Table solvents = Table::read(Data + QStringLiteral("/tables/Solvants.tsv"));
    for (int row = 0; row < 20; ++row) {
        const QString folder = Pictures + QStringLiteral("chemicals/");
        const QString name = solvents.cell(row, "solvant");
        const QImage numbered(folder + QStringLiteral("%1.bmp").arg(row + 1));
        const QImage named(folder + name + QStringLiteral(".bmp"));
        QVERIFY2(darkPixels(numbered) > darkPixels(named) * 5 / 4, qPrintable(name));
        const QImage right = numbered.copy(numbered.width() / 2, 0, numbered.width() / 2, numbered.height());
        QVERIFY2(darkPixels(right) > 0, qPrintable(name));
    }
}

void PicturesTest::drawingAgainGivesTheSameBytesAndWritesNothing()
{
    QTemporaryDir folder;
    const PictureFolder fresh(folder.path());
    for (const Draw draw : {drawCrystals, drawElements, drawStructures, drawIrCharts})
        draw(Data, fresh);
    QCOMPARE(fresh.unchanged(), 0);
    for (const QString &name :
         {QStringLiteral("elements/92b.jpg"), QStringLiteral("cristal/Diamond cubic.bmp"),
          QStringLiteral("chemicals/18.bmp"), QStringLiteral("ir/3.gif")})
        QCOMPARE(bytesOf(folder.filePath(name)), bytesOf(Pictures + name));

    const PictureFolder again(folder.path());
    for (const Draw draw : {drawCrystals, drawElements, drawStructures, drawIrCharts})
        draw(Data, again);
    QCOMPARE(again.written(), 0);
    QCOMPARE(again.unchanged(), fresh.written());
}

void PicturesTest::wrongDataIsRefusedWithFileAndLine_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<Draw>("draw");
    QTest::addColumn<QString>("place");
    const QString elements = QStringLiteral("tables/Elements.tsv");
    const QString solvents = QStringLiteral("drawing/structures_solvants.tsv");
    using B = QByteArray;
    QTest::newRow("too few cells") << elements << B("Lithium\tLi") << B("Lithium") << Draw(drawElements)
                                   << elements + QStringLiteral(":4:");
    QTest::newRow("electrons that do not add up") << elements << B("[Ar] 3d6 4s2") << B("[Ar] 3d6 4s1")
                                                  << Draw(drawElements) << elements + QStringLiteral(":27:");
    QTest::newRow("unknown core") << elements << B("[Ne] 3s1") << B("[Nn] 3s1") << Draw(drawElements)
                                  << elements + QStringLiteral(":12:");
    QTest::newRow("unknown family") << elements << B("Alkali metal") << B("Alkali") << Draw(drawElements)
                                    << elements + QStringLiteral(":4:");
    QTest::newRow("unknown crystal structure") << elements << B("Simple cubic") << B("Plain cubic")
                                               << Draw(drawCrystals) << elements + QStringLiteral(":85:");
    QTest::newRow("no structure") << solvents << B("CC(C)=O\t") << B("CC(C=O\t") << Draw(drawStructures)
                                  << solvents + QStringLiteral(":4:");
    QTest::newRow("impossible structure") << solvents << B("CC(C)=O\t") << B("CC(C)(C)(C)C\t")
                                          << Draw(drawStructures) << solvents + QStringLiteral(":4:");
    QTest::newRow("missing column") << solvents << B("smiles") << B("structure") << Draw(drawStructures)
                                    << solvents + QStringLiteral(":1:");
}

void PicturesTest::wrongDataIsRefusedWithFileAndLine()
{
    QFETCH(QString, table);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(Draw, draw);
    QFETCH(QString, place);
    const QString message = WrongData{table, before, after, draw}.refusal();
    QVERIFY2(message.contains(place), qPrintable(message));
}

void PicturesTest::electronsAreCountedShellByShell()
{
    QCOMPARE(electronsInShells(QStringLiteral("1s2 2s2 2p6 3s2 3p6 3d10 4s2 4p6 4d10")),
             (QList<int>{2, 8, 18, 18}));
    for (const char *text : {"", "1s", "2x3", "1s2  2s1", "[He] 2s1"})
        QVERIFY2(electronsInShells(QString::fromLatin1(text)).isEmpty(), text);
}

void PicturesTest::blocksFollowThePeriodicTable()
{
    QString blocks;
    for (const int number : {1, 2, 3, 5, 10, 20, 21, 30, 31, 57, 58, 71, 72, 89, 90, 103, 104, 118})
        blocks += QLatin1Char(blockOf(number));
    QCOMPARE(blocks, QStringLiteral("ssspps"
                                    "ddpdff"
                                    "ddffdp"));
}

void PicturesTest::gifKeepsUpTo256ColoursExactly()
{
    QImage picture(16, 16, QImage::Format_RGB32);
    for (int i = 0; i < 256; ++i)
        picture.setPixel(i % 16, i / 16, qRgb(i, 255 - i, i / 2));
    const QImage read = QImage::fromData(encodeGif(picture), "GIF");
    QCOMPARE(read.convertToFormat(QImage::Format_RGB32), picture);

    const QImage plain = QImage::fromData(encodeGif(picture.copy(0, 0, 1, 1)), "GIF");
    QCOMPARE(plain.pixel(0, 0), picture.pixel(0, 0));
}

QTEST_MAIN(PicturesTest)
#include "pictures_test.moc"
