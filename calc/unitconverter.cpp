#include "calc/unitconverter.h"

#include "core/numbers.h"
#include "core/runtimeerror.h"

#include <QStringList>
#include <cmath>

using namespace Qt::StringLiterals;

using namespace Units;

namespace {

/// A conversion between two units whose codes, input minus result, have this difference.
struct Formula
{
    int difference;
    double (*convert)(double);
};

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

// Temperatures below absolute zero are accepted.
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
    return text == u"-";
}

QString written(double result)
{
    return std::isfinite(result) ? Numbers::formatLocal(result) : QString();
}

bool isPosition(int position, size_t count)
{
    return position >= 0 && size_t(position) < count;
}

QString convertByFormula(const QString &input, UnitPair pair, Tab tab, std::span<const Formula> formulas)
{
    if (input.isEmpty())
        return u"0"_s;
    // With factors a lone sign gives "0" instead.
    if (isLoneMinus(input))
        return {};
    const auto &units = std::get<std::span<const UnitByCode>>(quantity(tab).units);
    if (!isPosition(pair.from, units.size()) || !isPosition(pair.to, units.size()))
        return {};
    const int difference = units[size_t(pair.from)].code - units[size_t(pair.to)].code;
    if (difference == 0)
        return input; // character for character
    const std::optional<double> number = Numbers::parseLocal(input);
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

void UnitConverter::selectTab(int tab, const QString &inputUnit, const QString &resultUnit)
{
    m_mode = quantity(tab).mode;
    // The symbols are not used, but a length without one fails here.
    if (tab == Length) {
        for (const QString &unit : {inputUnit, resultUnit})
            BracketText(unit, u'(', u')');
    }
}

QString UnitConverter::keyReleased(int tab, const QString &input)
{
    // Energy sets the mode of temperature; its formulas do not need the mode.
    m_mode = quantity(tab == Energy ? int(Temperature) : tab).mode;
    return convert(tab, input);
}

std::optional<QString> UnitConverter::listClicked(int list, const QString &input)
{
    if (input.isEmpty())
        return std::nullopt;
    int tab = Length;
    while (quantity(tab).inputList != list && quantity(tab).resultList != list)
        ++tab;
    return convert(tab, input);
}

QString UnitConverter::convert(int tab, const QString &input)
{
    if (tab == Energy)
        return convertByFormula(input, m_selection(Energy), Energy, EnergyFormulas);
    if (tab == Temperature)
        return convertByFormula(input, m_selection(Temperature), Temperature, TemperatureFormulas);
    return convertByFactors(input);
}

QString UnitConverter::convertByFactors(const QString &input)
{
    // A mode without factors keeps the units and positions of the last conversion.
    for (int tab = Length; tab <= Radioactivity; ++tab) {
        const auto *factors = std::get_if<std::span<const UnitByFactor>>(&quantity(tab).units);
        if (factors && m_mode == quantity(tab).mode) {
            m_factors = *factors;
            m_pair = m_selection(tab);
        }
    }
    if (input.isEmpty() || isLoneMinus(input))
        return u"0"_s;
    const std::optional<double> number = Numbers::parseLocal(input);
    if (!number || !isPosition(m_pair.from, m_factors.size()) || !isPosition(m_pair.to, m_factors.size()))
        return {};
    return written((*number * m_factors[size_t(m_pair.from)].factor) / m_factors[size_t(m_pair.to)].factor);
}
