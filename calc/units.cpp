#include "calc/units.h"

#include "core/optionslots.h"

namespace {

// Do not round the fractions: their quotients are the intended numbers. If a factor is not today's definition
// of the unit, the name in the delivered options file says how much one is.

constexpr UnitByFactor Lengths[]{
    {1, 1000},            // kilometre
    {2, 100},             // hectometre
    {3, 10},              // decametre
    {4, 1},               // metre
    {5, 0.1},             // decimetre
    {6, 0.01},            // centimetre
    {7, 0.001},           // millimetre
    {8, 0.000001},        // micrometre
    {9, 0.000000001},     // nanometre
    {10, 2.54 / 100},     // inch
    {11, 30.48 / 100},    // foot
    {12, 91.44 / 100},    // yard
    {13, 160934.4 / 100}, // mile
};

constexpr UnitByFactor Surfaces[]{
    {44, 1000000},  // square kilometre
    {45, 10000},    // square hectometre
    {46, 100},      // square decametre
    {47, 1},        // square metre
    {48, 0.01},     // square decimetre
    {49, 0.0001},   // square centimetre
    {50, 0.000001}, // square millimetre
    {51, 10000},    // hectare
    {52, 100},      // are
};

constexpr UnitByFactor Volumes[]{
    {14, 100},            // hectolitre
    {15, 10},             // decalitre
    {16, 1},              // litre
    {17, 0.1},            // decilitre
    {18, 0.01},           // centilitre
    {19, 0.001},          // millilitre
    {20, 0.000001},       // microlitre
    {21, 29.57 / 1000},   // US fluid ounce, rounded; the next three are 16, 32 and 128 of it
    {22, 473.12 / 1000},  // US pint
    {23, 946.24 / 1000},  // US quart
    {24, 3784.96 / 1000}, // US gallon
};

constexpr UnitByFactor Masses[]{
    {31, 1000000},  // metric ton
    {32, 100000},   // quintal
    {33, 1000},     // kilogram
    {34, 100},      // hectogram
    {35, 10},       // decagram
    {36, 1},        // gram
    {37, 0.1},      // decigram
    {38, 0.01},     // centigram
    {39, 0.001},    // milligram
    {40, 0.000001}, // microgram
    {41, 28},       // ounce, rounded
    {42, 448},      // pound: 16 of these ounces
    {43, 1.66E-24}, // atomic mass unit, rounded
};

constexpr UnitByCode Temperatures[]{
    {28, 0}, // degree Celsius
    {29, 1}, // degree Fahrenheit
    {30, 3}, // kelvin
};

constexpr UnitByFactor Pressures[]{
    {63, 1000000},         // megapascal
    {64, 1000},            // kilopascal
    {65, 100},             // hectopascal
    {66, 1},               // pascal
    {67, 100000},          // bar
    {68, 100},             // millibar
    {69, 101325},          // standard atmosphere
    {70, 1 / 0.000010197}, // kilogram-force per square centimetre, rounded
    {71, 133.322368},      // millimetre of mercury: the torr, not the slightly larger conventional one
    {72, 133.322368},      // torr, rounded
    {73, 6894.76},         // pound per square inch, rounded
};

constexpr UnitByCode Energies[]{
    {25, 0}, // joule
    {26, 1}, // calorie
    {27, 3}, // kilocalorie
    {87, 7}, // electronvolt
};

constexpr UnitByFactor Radioactivities[]{
    {59, 1},           // becquerel
    {60, 1000000},     // megabecquerel
    {61, 37000000000}, // curie
    {62, 37000000},    // millicurie
};

const Quantity Quantities[]{
    {"Length", "longueur", 1, 2, 0, 3, Lengths},
    {"Surface", "surface", 11, 12, 0, 3, Surfaces},
    {"Volume", "volume", 3, 4, 2, 5, Volumes},
    {"Mass", "masse", 9, 10, 2, 5, Masses},
    {"Temperature", "temperature", 7, 8, 0, 1, Temperatures},
    {"Pressure", "press", 15, 16, 3, 4, Pressures},
    {"Energy", "nrj", 5, 6, 0, 1, Energies},
    {"Radioactivity", "radio", 13, 14, 0, 2, Radioactivities},
};

} // namespace

std::span<const Quantity> Units::quantities()
{
    return Quantities;
}

const Quantity &Units::quantity(int tab)
{
    return Quantities[tab - 1];
}

QStringList Units::names(const Quantity &quantity, const OptionSlots &slots)
{
    QStringList names;
    const auto addNames = [&](const auto &units) {
        for (const auto &unit : units)
            names << slots(unit.slot).toText();
    };
    std::visit(addNames, quantity.units);
    return names;
}

int Units::count()
{
    int count = 0;
    for (const Quantity &quantity : Quantities)
        count += std::visit([](const auto &units) { return int(units.size()); }, quantity.units);
    return count;
}
