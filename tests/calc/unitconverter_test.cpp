#include "calc/unitconverter.h"
#include "calc/units.h"
#include "core/optionslots.h"
#include "tests/support/files.h"

#include <QRegularExpression>

class UnitConverterTest final : public QObject
{
    Q_OBJECT

    enum Tab { Length = 1, Surface, Volume, Mass, Temperature, Pressure, Energy, Radioactivity };

    static QString converted(int tab, int from, int to, const QString &input)
    {
        UnitConverter converter([=](int) { return UnitPair{from, to}; });
        return converter.keyReleased(tab, input);
    }

private Q_SLOTS:
    // Values from the definitions of the units, not from the factors. The US measures and the ounce are
    // rounded here as they are in shops: "about".
    void unitsAgreeWithPhysics()
    {
        const struct
        {
            const char *name;
            Tab tab;
            int from, to;
            const char *input;
            double result;
            double tolerance = 1E-14; ///< relative
        } Rows[]{
            {"mile", Length, 12, 3, "1", 1609.344},
            {"feet in a yard", Length, 11, 10, "1", 3},
            {"inches in a foot", Length, 10, 9, "1", 12},
            {"hectare", Surface, 7, 3, "1", 1E4},
            {"ares in a square kilometre", Surface, 0, 8, "1", 1E4},
            {"gallon in litres", Volume, 10, 2, "1", 3.785411784, 2E-4},
            {"fluid ounces in a pint", Volume, 8, 7, "1", 16, 1E-14},
            {"pints in a quart", Volume, 9, 8, "1", 2},
            {"ton", Mass, 0, 2, "1", 1000},
            {"ounces in a pound", Mass, 11, 10, "1", 16},
            {"ounce in grams", Mass, 10, 5, "1", 28.349523125, 2E-2},
            {"atomic mass unit", Mass, 12, 5, "1", 1.66053906892E-24, 5E-4},
            {"atmosphere in bar", Pressure, 6, 4, "1", 1.01325},
            {"atmosphere in mmHg", Pressure, 6, 8, "1", 760, 1E-8},
            {"millibar is hectopascal", Pressure, 5, 2, "1013.25", 1013.25},
            {"technical atmosphere", Pressure, 7, 3, "1", 98066.5, 1E-4},
            {"pound per square inch", Pressure, 10, 3, "1", 6894.757293168, 1E-6},
            {"curie", Radioactivity, 2, 0, "1", 3.7E10},
            {"calorie", Energy, 1, 0, "1", 4.184},
            {"food calorie", Energy, 2, 0, "1", 4184},
            {"kilocalorie in calories", Energy, 2, 1, "1", 1000},
            {"electronvolt", Energy, 3, 0, "1", 1.602176634E-19, 1E-6},
            {"bond energy per molecule", Energy, 3, 2, "4.336411E-2", 1.66053906E-24, 1E-6},
            {"boiling water", Temperature, 0, 1, "100", 212},
            {"where both scales meet", Temperature, 1, 0, "-40", -40},
            {"absolute zero", Temperature, 0, 2, "-273.15", 0},
            {"absolute zero in Fahrenheit", Temperature, 2, 1, "0", -459.67},
            {"freezing in kelvin", Temperature, 1, 2, "32", 273.15},
            {"below absolute zero nothing is refused", Temperature, 2, 0, "-1", -274.15},
        };
        for (const auto &row : Rows) {
            const double got = converted(row.tab, row.from, row.to, row.input).toDouble();
            QVERIFY2(std::abs(got - row.result) <= std::abs(row.result) * row.tolerance,
                     qPrintable(QString("%1: %2").arg(row.name).arg(got, 0, 'g', 17)));
        }
        for (int pair = 0; pair < 16; ++pair) { // there and back are formulas of their own
            const QString there = converted(Energy, pair / 4, pair % 4, "123.25");
            const double back = converted(Energy, pair % 4, pair / 4, there).toDouble();
            QVERIFY2(std::abs(back / 123.25 - 1) < 1E-13, qPrintable(there));
        }
    }

    // "ounce of 28 g (oz)", "centimeter (cm)".
    void aNameThatSaysHowMuchOneIsAgreesWithTheConversion()
    {
        static const QRegularExpression Of(" of ([0-9.E-]+) (\\w+) \\(");
        static const QRegularExpression Prefix("\\((M|k|h|da|d|c|m|µ|n)(m²?|L|g|Bq|Ci|Pa|bar|cal)\\)");
        const QMap<QString, double> prefixes{{"M", 1E6},  {"k", 1E3},  {"h", 100},  {"da", 10}, {"d", 0.1},
                                             {"c", 0.01}, {"m", 1E-3}, {"µ", 1E-6}, {"n", 1E-9}};
        OptionSlots slots;
        slots.read(ALEMBRA_SOURCE "/data/program/options_uk.ini");
        int found = 0;
        for (int tab = Length; tab <= Radioactivity; ++tab) {
            const QStringList names = Units::names(Units::quantity(tab), slots);
            for (const QString &name : names) {
                const QRegularExpressionMatch of = Of.match(name);
                const QRegularExpressionMatch prefix = Prefix.match(name);
                if (!of.hasMatch() && !prefix.hasMatch())
                    continue;
                const QString other = (of.hasMatch() ? of : prefix).captured(2);
                const double expected = of.hasMatch()
                                            ? of.captured(1).toDouble()
                                            : std::pow(prefixes[prefix.captured(1)], tab == Surface ? 2 : 1);
                const int base = int(names.indexOf(names.filter(QString("(%1)").arg(other)).value(0)));
                const QString one = converted(tab, int(names.indexOf(name)), base, "1");
                QVERIFY2(std::abs(one.toDouble() / expected - 1) < 1E-7, qPrintable(name));
                ++found;
            }
        }
        QCOMPARE(found, 12 + 34);
    }

    void textsThatAreNoNumber()
    {
        for (const auto &[input, byFactors, byFormula] :
             {std::tuple("", "0", "0"), {"-", "0", ""}, {"abc", "", ""}}) {
            for (const int tab : {Length, Surface, Volume, Mass, Pressure, Radioactivity})
                QCOMPARE(converted(tab, 0, 1, input), byFactors);
            for (const int tab : {Energy, Temperature})
                QCOMPARE(converted(tab, 0, 1, input), byFormula);
        }
        for (const int tab : {Energy, Length, Temperature}) // no unit selected in one of the lists
            for (const auto &[from, to] : {std::pair(-1, 0), {0, -1}, {13, 0}})
                QCOMPARE(converted(tab, from, to, "1"), QString());
        for (const int tab : {Radioactivity, Energy}) // beyond the numbers
            QCOMPARE(converted(tab, tab == Energy ? 0 : 2, tab == Energy ? 3 : 0, "1E300"), QString());
    }

    void theSameUnitGivesTheTextBackOnlyWithoutFactors()
    {
        QCOMPARE(converted(Energy, 0, 0, "1.50"), "1.50");
        QCOMPARE(converted(Temperature, 2, 2, "007"), "007");
        QCOMPARE(converted(Length, 3, 3, "1.50"), "1.5");
    }

    void theModeFollowsTabsAndKeys()
    {
        UnitConverter converter([](int) { return UnitPair{0, 1}; });
        QCOMPARE(converter.ConversionMode(), QString());
        QStringList byTab;
        QStringList byKey;
        for (int tab = Length; tab <= Radioactivity; ++tab) {
            converter.selectTab(tab, "meter (m)", "foot (ft)");
            byTab << converter.ConversionMode();
            converter.keyReleased(tab, "1");
            byKey << converter.ConversionMode();
        }
        QCOMPARE(byTab.join(' '), "longueur surface volume masse temperature press nrj radio");
        QCOMPARE(byKey.join(' '), "longueur surface volume masse temperature press temperature radio");

        converter.selectTab(Mass, "gram", "ton"); // a length without a bracket stops after the mode
        QVERIFY_THROWS_EXCEPTION(RuntimeError, converter.selectTab(Length, "meter (m)", "foot"));
        QCOMPARE(converter.ConversionMode(), "longueur");
    }

    void aListConvertsByItselfOrByTheMode()
    {
        UnitPair pair{0, 3};
        UnitConverter converter([&](int) { return pair; });
        converter.selectTab(Mass, {}, {});
        QCOMPARE(converter.listClicked(9, ""), std::nullopt);
        QCOMPARE(converter.listClicked(9, "2"), QString("20000"));
        pair = {0, 2};
        QCOMPARE(converter.listClicked(10, "2"), QString("2000"));
        QCOMPARE(converter.listClicked(8, "2"), QString("275.15"));
        QCOMPARE(converter.listClicked(5, "4184"), QString("1"));
    }

    void bracketTextTakesTheSymbol()
    {
        QCOMPARE(BracketText("meter (m)", u'(', u')'), "m");
        QCOMPARE(BracketText("pressure (kgf/cm²) [old] (x)", u'(', u')'), "kgf/cm²");
        QCOMPARE(BracketText("open (m", u'(', u')'), "m");
        QVERIFY_THROWS_EXCEPTION(RuntimeError, BracketText("meter", u'(', u')'));
    }

    void theLocaleWithAComma()
    {
        inLocale("fr_FR.UTF-8", [] {
            QCOMPARE(converted(Length, 12, 3, "1,5"), "2414,016");
            QCOMPARE(converted(Length, 0, 3, "1234"), "1234000");
            QCOMPARE(converted(Temperature, 0, 2, "-0,5"), "272,65");
            QCOMPARE(converted(Energy, 3, 0, "2"), "3,204353E-19");
        });
    }
};

const TestClass<UnitConverterTest> unitConverterTest;
#include "unitconverter_test.moc"
