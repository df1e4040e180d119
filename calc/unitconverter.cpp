#include "calc/unitconverter.h"

#include "core/numbers.h"
#include "core/runtimeerror.h"

#include <QStringList>
#include <cmath>

namespace {

enum Tab { Length = 1, Surface, Volume, Mass, Temperature, Pressure, Energy, Radioactivity };

constexpr Quantity Quantities[]{
    {"Length", "longueur", 1, 2, 0, 3},
    {"Surface", "surface", 11, 12, 0, 3},
    {"Volume", "volume", 3, 4, 2, 5},
    {"Mass", "masse", 9, 10, 2, 5},
    {"Temperature", "temperature", 7, 8, 0, 1},
    {"Pressure", "press", 15, 16, 3, 4},
    {"Energy", "nrj", 5, 6, 0, 1},
    {"Radioactivity", "radio", 13, 14, 0, 2},
};

struct FactorTable
{
    Tab tab;
    std::array<double, 16> factors;
};

// How many base units one unit of each position is: metre, square metre, litre, gram, pascal, becquerel. The
// fractions stay fractions: their quotients are the numbers that are meant. The US measures are multiples of
// 29.57 mL, the ounce is 28 g and the pound 16 of them.
constexpr FactorTable FactorTables[]{
    {Length,
     {1000, 100, 10, 1, 0.1, 0.01, 0.001, 0.000001, 0.000000001, 2.54 / 100, 30.48 / 100, 91.44 / 100,
      160934.4 / 100}},
    {Surface, {1000000, 10000, 100, 1, 0.01, 0.0001, 0.000001, 10000, 100}},
    {Volume,
     {100, 10, 1, 0.1, 0.01, 0.001, 0.000001, 29.57 / 1000, 473.12 / 1000, 946.24 / 1000, 3784.96 / 1000}},
    {Mass, {1000000, 100000, 1000, 100, 10, 1, 0.1, 0.01, 0.001, 0.000001, 28, 448, 1.66E-24}},
    {Radioactivity, {1, 1000000, 37000000000, 37000000}},
    {Pressure,
     {1000000, 1000, 100, 1, 100000, 100, 101325, 1 / 0.000010197, 133.322368, 133.322368, 6894.76}},
};

/// A conversion between two units, selected by the difference of their codes, input minus result.
struct Formula
{
    int difference;
    double (*convert)(double);
};

constexpr int SameUnit = 0;

// Joule, calorie, kilocalorie, electronvolt.
constexpr int EnergyCodes[]{0, 1, 3, 7};
constexpr Formula EnergyFormulas[]{
    {-7, [](double v) { return v / 1.6021765E-19; }},           // J to eV
    {-6, [](double v) { return (v * 4.184) / 1.6021765E-19; }}, // cal to eV
    {-4, [](double v) { return (v * 4184) / 1.6021765E-19; }},  // kcal to eV
    {-3, [](double v) { return (v / 4.184) / 1000; }},          // J to kcal
    {-2, [](double v) { return v / 1000; }},                    // cal to kcal
    {-1, [](double v) { return v / 4.184; }},                   // J to cal
    {1, [](double v) { return v * 4.184; }},                    // cal to J
    {2, [](double v) { return v * 1000; }},                     // kcal to cal
    {3, [](double v) { return (v * 1000) * 4.184; }},           // kcal to J
    {4, [](double v) { return (v * 1.6021765E-19) / 4184; }},   // eV to kcal
    {6, [](double v) { return (v * 1.6021765E-19) / 4.184; }},  // eV to cal
    {7, [](double v) { return v * 1.6021765E-19; }},            // eV to J
};

// Degrees Celsius, degrees Fahrenheit, kelvin. Nothing refuses a temperature below absolute zero.
constexpr int TemperatureCodes[]{0, 1, 3};
constexpr Formula TemperatureFormulas[]{
    {-3, [](double v) { return v + 273.15; }},                    // °C to K
    {-2, [](double v) { return (((v - 32) * 5) / 9) + 273.15; }}, // °F to K
    {-1, [](double v) { return ((v * 9) / 5) + 32; }},            // °C to °F
    {1, [](double v) { return ((v - 32) * 5) / 9; }},             // °F to °C
    {2, [](double v) { return (((v - 273.15) * 9) / 5) + 32; }},  // K to °F
    {3, [](double v) { return v - 273.15; }},                     // K to °C
};

bool isLoneMinus(const QString &text)
{
    return text == QLatin1String("-");
}

QString written(double result)
{
    return std::isfinite(result) ? Numbers::write(result) : QString();
}

QString convertByFormula(const QString &input, UnitPair pair, std::span<const int> codes,
                         std::span<const Formula> formulas)
{
    if (input.isEmpty())
        return QStringLiteral("0");
    // A sign alone empties the result here, while the factors make it "0".
    if (isLoneMinus(input))
        return {};
    const auto isPosition = [&](int position) { return position >= 0 && size_t(position) < codes.size(); };
    if (!isPosition(pair.from) || !isPosition(pair.to))
        return {};
    const int difference = codes[size_t(pair.from)] - codes[size_t(pair.to)];
    if (difference == SameUnit)
        return input; // character for character, without a way through the numbers
    const std::optional<double> number = Numbers::read(input);
    for (const Formula &formula : formulas) {
        if (number && formula.difference == difference)
            return written(formula.convert(*number));
    }
    return {};
}

} // namespace

QString BracketText(const QString &text, QChar open, QChar close)
{
    const QStringList parts = text.split(open);
    if (parts.size() < 2)
        throw RuntimeError(ErrorNumber::Subscript, text);
    return parts[1].split(close).constFirst();
}

std::span<const Quantity> UnitConverter::quantities()
{
    return Quantities;
}

void UnitConverter::selectTab(int tab, const QString &inputUnit, const QString &resultUnit)
{
    m_mode = QString::fromLatin1(Quantities[tab - 1].mode);
    if (tab == Length) {
        m_inputSymbol = BracketText(inputUnit, u'(', u')');
        m_resultSymbol = BracketText(resultUnit, u'(', u')');
    }
}

QString UnitConverter::keyReleased(int tab, const QString &input)
{
    // Energy goes by the mode of temperature too; its formulas do not ask for the mode.
    m_mode = QString::fromLatin1(Quantities[(tab == Energy ? Temperature : tab) - 1].mode);
    if (tab == Energy)
        return convertEnergy(input);
    return tab == Temperature ? convertTemperature(input) : convertByFactors(input);
}

std::optional<QString> UnitConverter::listClicked(int list, const QString &input)
{
    if (input.isEmpty())
        return std::nullopt;
    const auto belongsTo = [list](const Quantity &quantity) {
        return quantity.inputList == list || quantity.resultList == list;
    };
    if (belongsTo(Quantities[Energy - 1]))
        return convertEnergy(input);
    return belongsTo(Quantities[Temperature - 1]) ? convertTemperature(input) : convertByFactors(input);
}

QString UnitConverter::convertByFactors(const QString &input)
{
    // A mode without factors leaves table and positions as the last conversion had them.
    for (const FactorTable &table : FactorTables) {
        if (m_mode == QLatin1String(Quantities[table.tab - 1].mode)) {
            m_factors = table.factors;
            m_pair = m_selection(table.tab);
        }
    }
    if (input.isEmpty() || isLoneMinus(input))
        return QStringLiteral("0");
    const std::optional<double> number = Numbers::read(input);
    if (!number || m_pair.from < 0 || m_pair.to < 0)
        return {};
    return written((*number * m_factors.at(size_t(m_pair.from))) / m_factors.at(size_t(m_pair.to)));
}

QString UnitConverter::convertEnergy(const QString &input) const
{
    return convertByFormula(input, m_selection(Energy), EnergyCodes, EnergyFormulas);
}

QString UnitConverter::convertTemperature(const QString &input) const
{
    return convertByFormula(input, m_selection(Temperature), TemperatureCodes, TemperatureFormulas);
}
