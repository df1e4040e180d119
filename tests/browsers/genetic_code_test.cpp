#include "browsers/geneticcode.h"
#include "browsers/geneticcodepainter.h"
#include "tests/support/tsvsource.h"

#include <QTest>

class GeneticCodeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLastRowWithTheCodonCounts();
    void theSixthCodonIsNotSearched();
    void codonsAreComparedExactly();
    void rowsOutsideTheTableAreRefused();
    void theDeliveredTableAnswersLikeTheStandardCode();
};

void GeneticCodeTest::theLastRowWithTheCodonCounts()
{
    GeneticCode::Table table;
    table(3, 0) = "first";
    table(3, 1) = "UGA";
    table(22, 0) = "last";
    table(22, 5) = "UGA";
    QCOMPARE(GeneticCode::aminoAcid(table, "UGA"), std::optional<QString>("last"));
}

void GeneticCodeTest::theSixthCodonIsNotSearched()
{
    GeneticCode::Table table;
    table(0, 0) = "Arginine";
    table(0, 6) = "CGA";
    QCOMPARE(GeneticCode::aminoAcid(table, "CGA"), std::nullopt);
    QCOMPARE(GeneticCode::codons(table, 0), (QStringList{"", "", "", "", "", "CGA"}));
}

void GeneticCodeTest::codonsAreComparedExactly()
{
    GeneticCode::Table table;
    table(0, 0) = "Methionine";
    table(0, 1) = "AUG";
    QCOMPARE(GeneticCode::aminoAcid(table, "aug"), std::nullopt);
    QCOMPARE(GeneticCode::aminoAcid(table, "AUGA"), std::nullopt);
}

void GeneticCodeTest::rowsOutsideTheTableAreRefused()
{
    const GeneticCode::Table table;
    QVERIFY_THROWS_EXCEPTION(RuntimeError, GeneticCode::codons(table, 23));
}

void GeneticCodeTest::theDeliveredTableAnswersLikeTheStandardCode()
{
    DataStore store;
    TsvSource::load(14, QStringLiteral("Acidesamines"), store);
    TsvSource::load(18, QStringLiteral("Codegenetique"), store);
    QHash<QString, QString> shortNames{{"Stop", "Stop"}};
    for (int row = 0; row < 20; ++row)
        shortNames[store.lists.ListView3[9].text(row)] = store.lists.ListView3[9].subItem(row, 1).left(3);
    const QString bases = QStringLiteral("UCAG");
    for (const QChar first : bases) {
        for (const QChar second : bases) {
            for (const QChar third : bases) {
                const QString codon = QString(first) + second + third;
                const auto name = GeneticCode::aminoAcid(store.tables.GeneticCodeData, codon);
                QCOMPARE(name.has_value(), codon != "CGA"); // its place is the sixth alone
                QCOMPARE(shortNames.value(name.value_or("Arginine")), GeneticCodePainter::nameOf(codon));
            }
        }
    }
}

QTEST_MAIN(GeneticCodeTest)
#include "genetic_code_test.moc"
