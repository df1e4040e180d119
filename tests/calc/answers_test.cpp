#include "calc/glassware.h"
#include "calc/molarmass.h"
#include "calc/plainanswer.h"
#include "calc/stock.h"
#include "tests/support/deliveredtables.h"
#include "tests/support/files.h"

using namespace CalcFields;

/// Molar masses, stock solutions and the line under the calculators.
class AnswersTest final : public QObject
{
    Q_OBJECT

    AtomicMasses m_masses;

    auto parse(const char *typed) const
    {
        return Formula::parse(QString::fromUtf8(typed), {m_masses.keyBegin(), m_masses.keyEnd()});
    }

private Q_SLOTS:
    void initTestCase()
    {
        DataStore store;
        loadDelivered(3, store);
        for (int row = 0; row < 118; ++row)
            m_masses[store.tables.ElementData(row, ElementColumn::Symbol)] =
                store.tables.ElementData(row, ElementColumn::AtomicMass);
    }

    void formulasAreWeighed()
    {
        for (const auto &[typed, hill, mass, charge] :
             {std::tuple<const char *, const char *, const char *, int>{"C6H12O6·H2O", "C6H14O7", "198.171",
                                                                        0},
              {"CuSO4.5H2O", "CuH10O9S", "249.68", 0},
              {"Na2CO3*1.5H2O", "CH3Na2O4.5", "133.010", 0},
              {"Fe0.95O", "Fe0.95O", "69.052", 0},
              {"K4[Fe(CN)6]", "C6FeK4N6", "368.346", 0},
              {"SO4 2-", "O4S", "96.06", -2},
              {"SO₄²⁻", "O4S", "96.06", -2},
              {"NH4+", "H4N", "18.039", 1},
              {"Ca2+", "Ca", "40.078", 2},
              {"Fe+++", "Fe", "55.845", 3},
              {"CDCl3", "CDCl3", "120.38", 0},
              {"D2O", "D2O", "20.027", 0},
              {"CH3-CH=CH2", "C3H6", "42.081", 0},
              {"tBuOH", "C4H10O", "74.123", 0},
              {"Ac2O", "C4H6O3", "102.089", 0},
              {"Ac", "Ac", "227", 0},
              {"PrCl3", "Cl3Pr", "247.26", 0},
              {"2H2O", "H4O2", "36.030", 0},
              {"HCo(CO)4", "C4HCoO4", "171.981", 0}}) {
            const auto parsed = parse(typed);
            const auto *formula = std::get_if<Formula>(&parsed);
            QVERIFY2(formula, typed);
            const QString found = formula->hill() + ' ' + MolarMass::of(*formula, m_masses).text() + ' ' +
                                  QString::number(formula->charge);
            QCOMPARE(found, QStringLiteral("%1 %2 %3").arg(hill, mass).arg(charge));
        }
        const MolarMass water = MolarMass::of(std::get<Formula>(parse("H2O")), m_masses);
        QCOMPARE(water.shares[0].symbol, "H");
        QCOMPARE(qRound(water.shares[0].percent * 100), 1119);
        QCOMPARE(qRound(water.shares[1].percent * 100), 8881);
    }

    void anErrorSaysWhereItIs()
    {
        for (const auto &[typed, position, reason] :
             {std::tuple<const char *, int, const char *>{"NaXy", 2, "neither an element nor a group"},
              {"C6H12(", 6, "missing here"},
              {"C6(H5", 2, "not closed"},
              {"C6H5)", 4, "not opened"},
              {"h2o", 0, "begin with a capital"},
              {"CuSO4·", 6, "missing here"},
              {"SO42-", 2, "blank before the charge"},
              {"O2-", 0, "blank before the charge"},
              {"NaCl2000000", 4, "between 0 and a million"},
              {"C0", 1, "between 0 and a million"}}) {
            const auto parsed = parse(typed);
            const auto *error = std::get_if<FormulaError>(&parsed);
            QVERIFY2(error && error->reason.contains(reason), typed);
            QVERIFY2(error->position == position, typed);
        }
        QVERIFY(std::holds_alternative<FormulaError>(parse(QByteArray(30000, '('))));
    }

    // Every row of the file that ships has the molar mass of its formula, and the molarity that it states.
    void theShippedReagentsAreConsistent()
    {
        const QByteArray bytes = readFile(ALEMBRA_SOURCE "/data/program/stock_reagents.tsv");
        const QStringList lines = QString::fromUtf8(bytes).split('\n', Qt::SkipEmptyParts).sliced(1);
        const QList<StockReagent> reagents = StockReagents::parse(QString::fromUtf8(bytes));
        QCOMPARE(reagents.size(), lines.size());
        for (int i = 0; i < lines.size(); ++i) {
            const StockReagent &reagent = reagents[i];
            const QStringList cells = lines[i].split('\t');
            const auto formula = std::get<Formula>(parse(qPrintable(cells[1])));
            QVERIFY2(qAbs(MolarMass::of(formula, m_masses).value - reagent.stock.molarMass) < 0.011,
                     qPrintable(reagent.name));
            QVERIFY2(qAbs(reagent.stock.molarity() - cells[5].toDouble()) < 0.006, qPrintable(reagent.name));
        }
        QVERIFY(StockReagents::parse("header\nAcid\tHCl\t36.46\t137\t1.18\t12\tsafety\tX\tnote\nshort\t1\n")
                    .isEmpty());
        QVERIFY(StockReagents::parse({}).isEmpty());
    }

    void amountsAreThoseOfTheBench()
    {
        const QList<QPair<double, const char *>> volumes{{0.0123, "12.3 µL"}, {0.85, "850 µL"},
                                                         {0.99996, "1 mL"},   {9.996, "10 mL"},
                                                         {250.4, "250 mL"},   {1250, "1.25 L"}};
        for (const auto &[millilitres, text] : volumes)
            QCOMPARE(Glassware::volume(millilitres), text);
        const QList<QPair<double, const char *>> masses{
            {0.01249, "12.5 mg"}, {9.8765, "9.877 g"}, {24.634, "24.63 g"}, {1205.4, "1.205 kg"}};
        for (const auto &[grams, text] : masses)
            QCOMPARE(Glassware::mass(grams), text);
    }

    void plainAnswers()
    {
        FieldTexts texts;
        QCOMPARE(PlainAnswer::dilution(texts), "");
        texts[Vi] = "0.0208";
        texts[Vf] = "0.25";
        texts[Ci] = "12";
        texts[Cf] = "2";
        QVERIFY(
            PlainAnswer::dilution(texts).endsWith("Attention: Ci · Vi is 0.2496 mol, Cf · Vf is 0.5 mol"));
        texts[TextBoxM3] = "0.0832";
        texts[TextBoxM4] = "0.0208";
        texts[TextBoxM5] = "0.25";
        QCOMPARE(PlainAnswer::concentration(texts), "20.8 mmol in 250 mL: 83.2 mmol/L");
        texts[Xn1] = "0.25";
        texts[Xm1] = "0.461";
        QCOMPARE(PlainAnswer::fractions(texts), "By amount 25 % and 75 %, by mass 46.1 % and 53.9 %");
        texts[Xn1] = "1.5";
        QCOMPARE(PlainAnswer::fractions(texts), "");
    }
};

const TestClass<AnswersTest> answersTest;
#include "answers_test.moc"
