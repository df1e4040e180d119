#include "calc/unitconverter.h"

#include "core/optionslots.h"
#include "core/runtimeerror.h"
#include "fieldrows.h"

namespace {

enum Tab { Length = 1, Surface, Volume, Mass, Temperature, Pressure, Energy, Radioactivity };

QString converted(int tab, int from, int to, const QString &input)
{
    UnitConverter converter([=](int) { return UnitPair{from, to}; });
    return converter.keyReleased(tab, input);
}

} // namespace

class UnitConverterTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unitsAgreeWithPhysics_data();
    void unitsAgreeWithPhysics();
    void everyConversionComesBack_data();
    void everyConversionComesBack();
    void textsThatAreNoNumber_data();
    void textsThatAreNoNumber();
    void theSameUnitGivesTheTextBackOnlyWithoutFactors();
    void aResultBeyondTheNumbersIsEmpty();
    void theModeFollowsTabsAndKeys();
    void aListConvertsByItselfOrByTheMode();
    void bracketTextTakesTheSymbol();
    void aLengthWithoutABracketStopsTheSwitchAfterTheMode();
    void unitsHaveTheNamesInTheirSlots();
    void theLocaleOfTheDesktop();
    void theSameInOtherLocales();
};

// Values from the definitions of the units, not from the factors. The US measures and the ounce are rounded
// here as they are in shops: "about".
void UnitConverterTest::unitsAgreeWithPhysics_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("input");
    QTest::addColumn<double>("result");
    QTest::addColumn<double>("tolerance"); // relative
    const auto row = [](const char *name, int tab, int from, int to, const char *input, double result,
                        double tolerance = 1E-14) {
        QTest::newRow(name) << tab << from << to << QString(input) << result << tolerance;
    };
    row("kilometre", Length, 0, 3, "1", 1000);
    row("mile", Length, 12, 3, "1", 1609.344);
    row("feet in a yard", Length, 11, 10, "1", 3);
    row("inches in a foot", Length, 10, 9, "1", 12);
    row("ångström-sized", Length, 8, 7, "0.1", 1E-4);
    row("hectare", Surface, 7, 3, "1", 1E4);
    row("ares in a square kilometre", Surface, 0, 8, "1", 1E4);
    row("gallon in litres", Volume, 10, 2, "1", 3.785411784, 2E-4);
    row("fluid ounces in a pint", Volume, 8, 7, "1", 16, 1E-14);
    row("pints in a quart", Volume, 9, 8, "1", 2);
    row("microlitres in a litre", Volume, 2, 6, "1", 1E6);
    row("ton", Mass, 0, 2, "1", 1000);
    row("ounces in a pound", Mass, 11, 10, "1", 16);
    row("ounce in grams", Mass, 10, 5, "1", 28.349523125, 2E-2);
    row("atomic mass unit", Mass, 12, 5, "1", 1.66053906892E-24, 5E-4);
    row("atmosphere in bar", Pressure, 6, 4, "1", 1.01325);
    row("atmosphere in mmHg", Pressure, 6, 8, "1", 760, 1E-8);
    row("millibar is hectopascal", Pressure, 5, 2, "1013.25", 1013.25);
    row("technical atmosphere", Pressure, 7, 3, "1", 98066.5, 1E-4);
    row("pound per square inch", Pressure, 10, 3, "1", 6894.757293168, 1E-6);
    row("curie", Radioactivity, 2, 0, "1", 3.7E10);
    row("millicuries in a curie", Radioactivity, 2, 3, "1", 1000);
    row("calorie", Energy, 1, 0, "1", 4.184);
    row("food calorie", Energy, 2, 0, "1", 4184);
    row("kilocalorie in calories", Energy, 2, 1, "1", 1000);
    row("electronvolt", Energy, 3, 0, "1", 1.602176634E-19, 1E-6);
    row("bond energy per molecule", Energy, 3, 2, "4.336411E-2", 1.66053906E-24, 1E-6);
    row("boiling water", Temperature, 0, 1, "100", 212);
    row("where both scales meet", Temperature, 1, 0, "-40", -40);
    row("absolute zero", Temperature, 0, 2, "-273.15", 0);
    row("absolute zero in Fahrenheit", Temperature, 2, 1, "0", -459.67);
    row("freezing in kelvin", Temperature, 1, 2, "32", 273.15);
    row("below absolute zero nothing is refused", Temperature, 2, 0, "-1", -274.15);
}

void UnitConverterTest::unitsAgreeWithPhysics()
{
    QFETCH(int, tab);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QString, input);
    QFETCH(double, result);
    QFETCH(double, tolerance);
    const double got = converted(tab, from, to, input).toDouble();
    QVERIFY2(std::abs(got - result) <= std::abs(result) * tolerance,
             qPrintable(QString::number(got, 'g', 17)));
}

void UnitConverterTest::everyConversionComesBack_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<int>("units");
    QTest::newRow("length") << int(Length) << 13;
    QTest::newRow("surface") << int(Surface) << 9;
    QTest::newRow("volume") << int(Volume) << 11;
    QTest::newRow("mass") << int(Mass) << 13;
    QTest::newRow("temperature") << int(Temperature) << 3;
    QTest::newRow("pressure") << int(Pressure) << 11;
    QTest::newRow("energy") << int(Energy) << 4;
    QTest::newRow("radioactivity") << int(Radioactivity) << 4;
}

void UnitConverterTest::everyConversionComesBack()
{
    QFETCH(int, tab);
    QFETCH(int, units);
    for (int from = 0; from < units; ++from) {
        for (int to = 0; to < units; ++to) {
            const QString there = converted(tab, from, to, QStringLiteral("123.25"));
            const double back = converted(tab, to, from, there).toDouble();
            QVERIFY2(std::abs(back / 123.25 - 1) < 1E-13, qPrintable(there));
        }
    }
}

void UnitConverterTest::textsThatAreNoNumber_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("byFactors");
    QTest::addColumn<QString>("byFormula");
    QTest::newRow("empty") << ""
                           << "0"
                           << "0";
    QTest::newRow("sign alone") << "-"
                                << "0"
                                << "";
    QTest::newRow("word") << "abc"
                          << ""
                          << "";
}

void UnitConverterTest::textsThatAreNoNumber()
{
    QFETCH(QString, input);
    QFETCH(QString, byFactors);
    QFETCH(QString, byFormula);
    for (const int tab : {Length, Surface, Volume, Mass, Pressure, Radioactivity})
        QCOMPARE(converted(tab, 0, 1, input), byFactors);
    for (const int tab : {Energy, Length, Temperature}) { // no unit selected in one of the lists
        QCOMPARE(converted(tab, -1, 0, QStringLiteral("1")), QString());
        QCOMPARE(converted(tab, 0, -1, QStringLiteral("1")), QString());
    }
    for (const int tab : {Energy, Temperature})
        QCOMPARE(converted(tab, 0, 1, input), byFormula);
}

void UnitConverterTest::theSameUnitGivesTheTextBackOnlyWithoutFactors()
{
    QCOMPARE(converted(Energy, 0, 0, QStringLiteral("1.50")), QStringLiteral("1.50"));
    QCOMPARE(converted(Temperature, 2, 2, QStringLiteral("007")), QStringLiteral("007"));
    QCOMPARE(converted(Length, 3, 3, QStringLiteral("1.50")), QStringLiteral("1.5"));
}

void UnitConverterTest::aResultBeyondTheNumbersIsEmpty()
{
    QCOMPARE(converted(Radioactivity, 2, 0, QStringLiteral("1E300")), QString());
    QCOMPARE(converted(Energy, 0, 3, QStringLiteral("1E300")), QString());
    QCOMPARE(converted(Length, -1, 0, QStringLiteral("1")), QString());
}

void UnitConverterTest::theModeFollowsTabsAndKeys()
{
    UnitConverter converter([](int) { return UnitPair{0, 1}; });
    QCOMPARE(converter.ConversionMode(), QString());

    QStringList byTab;
    QStringList byKey;
    for (int tab = Length; tab <= Radioactivity; ++tab) {
        converter.selectTab(tab, QStringLiteral("meter (m)"), QStringLiteral("foot (ft)"));
        byTab << converter.ConversionMode();
        converter.keyReleased(tab, QStringLiteral("1"));
        byKey << converter.ConversionMode();
    }
    QCOMPARE(byTab.join(u' '), QStringLiteral("longueur surface volume masse temperature press nrj radio"));
    QCOMPARE(byKey.join(u' '),
             QStringLiteral("longueur surface volume masse temperature press temperature radio"));
}

void UnitConverterTest::aListConvertsByItselfOrByTheMode()
{
    UnitPair pair{0, 3};
    UnitConverter converter([&](int) { return pair; });
    converter.selectTab(Mass, {}, {});
    QCOMPARE(converter.listClicked(9, QString()), std::nullopt);
    QCOMPARE(converter.listClicked(9, QStringLiteral("2")), QStringLiteral("20000"));
    pair = {0, 2};
    QCOMPARE(converter.listClicked(10, QStringLiteral("2")), QStringLiteral("2000"));
    QCOMPARE(converter.listClicked(8, QStringLiteral("2")), QStringLiteral("275.15"));
    QCOMPARE(converter.listClicked(5, QStringLiteral("4184")), QStringLiteral("1"));
}

void UnitConverterTest::bracketTextTakesTheSymbol()
{
    QCOMPARE(BracketText(QStringLiteral("meter (m)"), u'(', u')'), QStringLiteral("m"));
    QCOMPARE(BracketText(QStringLiteral("pressure (kgf/cm²) [old] (x)"), u'(', u')'),
             QStringLiteral("kgf/cm²"));
    QCOMPARE(BracketText(QStringLiteral("open (m"), u'(', u')'), QStringLiteral("m"));
    QVERIFY_THROWS_EXCEPTION(RuntimeError, BracketText(QStringLiteral("meter"), u'(', u')'));
}

void UnitConverterTest::aLengthWithoutABracketStopsTheSwitchAfterTheMode()
{
    UnitConverter converter([](int) { return UnitPair{0, 1}; });
    converter.selectTab(Mass, QStringLiteral("gram"), QStringLiteral("ton"));
    QVERIFY_THROWS_EXCEPTION(
        RuntimeError, converter.selectTab(Length, QStringLiteral("meter (m)"), QStringLiteral("foot")));
    QCOMPARE(converter.ConversionMode(), QStringLiteral("longueur"));
}

void UnitConverterTest::unitsHaveTheNamesInTheirSlots()
{
    OptionSlots slots;
    for (int slot = 0; slot <= OptionSlots::LastIndex; ++slot)
        slots(slot) = slot;
    QStringList ends;
    for (const Quantity &each : Units::quantities())
        ends << Units::names(each, slots).first() + u'-' + Units::names(each, slots).last();
    QCOMPARE(ends.join(u' '), QStringLiteral("1-13 44-52 14-24 31-43 28-30 63-73 25-87 59-62"));
    QCOMPARE(Units::names(Units::quantity(Energy), OptionSlots()),
             QStringList(4, QString())); // positions stay
    QCOMPARE(Units::count(), 68);
}

void UnitConverterTest::theLocaleOfTheDesktop()
{
    if (!isRunAgain())
        return;
    QCOMPARE(converted(Length, 12, 3, QStringLiteral("1,5")), QStringLiteral("2414,016"));
    QCOMPARE(converted(Length, 0, 3, QStringLiteral("1234")), QStringLiteral("1234000"));
    QCOMPARE(converted(Temperature, 0, 2, QStringLiteral("-0,5")), QStringLiteral("272,65"));
    QCOMPARE(converted(Energy, 3, 0, QStringLiteral("2")), QStringLiteral("3,204353E-19"));
}

void UnitConverterTest::theSameInOtherLocales()
{
    QCOMPARE(runAgainIn("fr_FR.UTF-8"), 0);
    QCOMPARE(runAgainIn("de_DE.UTF-8"), 0);
}

QTEST_GUILESS_MAIN(UnitConverterTest)
#include "unitconverter_test.moc"
