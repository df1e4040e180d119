#include "browsers/geneticcode.h"
#include "browsers/geneticcodepainter.h"
#include "tests/support/testclass.h"
#include "tests/support/tsvsource.h"

class GeneticCodeTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLastOfTheFirstFiveCodonsCounts()
    {
        GeneticCode::Table table;
        table(0, 0) = "Arginine";
        table(0, 6) = "CGA";
        table(3, 0) = "first";
        table(3, 1) = "UGA";
        table(22, 0) = "last";
        table(22, 5) = "UGA";
        QCOMPARE(GeneticCode::aminoAcid(table, "UGA"), std::optional<QString>("last"));
        for (const char *other : {"CGA", "uga", "UGAA"}) // the sixth, and what is not the same text
            QCOMPARE(GeneticCode::aminoAcid(table, other), std::nullopt);
        QCOMPARE(GeneticCode::codons(table, 0), (QStringList{"", "", "", "", "", "CGA"}));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, GeneticCode::codons(table, 23));
    }

    void theDeliveredTableAnswersLikeTheStandardCode()
    {
        DataStore store;
        TsvSource::load(14, "Acidesamines", store);
        TsvSource::load(18, "Codegenetique", store);
        QHash<QString, QString> shortNames{{"Stop", "Stop"}};
        for (int row = 0; row < 20; ++row)
            shortNames[store.lists.ListView3[9].text(row)] = store.lists.ListView3[9].subItem(row, 1).left(3);
        const QString bases("UCAG");
        for (int number = 0; number < 64; ++number) {
            const QString codon = QString(bases[number / 16]) + bases[number / 4 % 4] + bases[number % 4];
            const auto name = GeneticCode::aminoAcid(store.tables.GeneticCodeData, codon);
            QCOMPARE(name.has_value(), codon != "CGA"); // its place is the sixth alone
            QCOMPARE(shortNames.value(name.value_or("Arginine")), GeneticCodePainter::nameOf(codon));
        }
    }
};

const TestClass<GeneticCodeTest> geneticCodeTest;
#include "genetic_code_test.moc"
