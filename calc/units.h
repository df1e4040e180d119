#pragma once

#include <QStringList>
#include <span>
#include <variant>

class OptionSlots;

/// A unit that converts by its factor.
struct UnitByFactor
{
    int slot;      ///< option slot of its name
    double factor; ///< base units in one of it
};

/// A unit that converts by formulas, selected by the difference of two codes.
struct UnitByCode
{
    int slot; ///< option slot of its name
    int code;
};

/// A tab of `TabStrip3` with its pair of unit lists.
struct Quantity
{
    const char *caption;
    const char *mode; ///< its `ConversionMode`
    int inputList;    ///< number n of `Listn`
    int resultList;
    int startInput; ///< positions selected at start, from 0
    int startResult;
    std::variant<std::span<const UnitByFactor>, std::span<const UnitByCode>> units; ///< in list order
};

/// The quantities and units of the conversions. The names of the units are in the options file.
namespace Units {

/// Numbers of the tabs.
enum Tab { Length = 1, Surface, Volume, Mass, Temperature, Pressure, Energy, Radioactivity };

/// In the order of the tabs.
std::span<const Quantity> quantities();

const Quantity &quantity(int tab);

/// The names of its units, in list order. An empty slot is an empty name, so positions keep their meaning.
QStringList names(const Quantity &quantity, const OptionSlots &slots);

/// Number of units of all quantities.
int count();

} // namespace Units
