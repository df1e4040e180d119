#include "calc/glassware.h"

#include "core/numbers.h"

#include <cmath>
#include <span>

using namespace Qt::StringLiterals;

namespace {

/// How amounts below a limit are measured and written.
struct Step
{
    double below;    ///< in mL or g
    double rounding; ///< in mL or g
    double unit;     ///< in mL or g
    const char *name;
};

constexpr double Endless = HUGE_VAL;

constexpr Step Volumes[]{
    {0.01, 0.00001, 0.001, "µL"}, // pipettes
    {0.1, 0.0001, 0.001, "µL"},   {1, 0.001, 0.001, "µL"},
    {10, 0.01, 1, "mL"},          {100, 0.1, 1, "mL"},      // burettes, graduated pipettes
    {1000, 1, 1, "mL"},           {Endless, 10, 1000, "L"}, // measuring cylinders
};

constexpr Step Masses[]{
    {1, 0.0001, 0.001, "mg"},
    {10, 0.001, 1, "g"}, // balances
    {1000, 0.01, 1, "g"},
    {Endless, 1, 1000, "kg"},
};

const Step &stepFor(double amount, std::span<const Step> steps)
{
    size_t i = 0;
    // What rounds up to the limit belongs to the next step: 0.9999 mL is "1 mL".
    while (std::round(amount / steps[i].rounding) * steps[i].rounding >= steps[i].below)
        ++i;
    return steps[i];
}

QString rounded(double amount, std::span<const Step> steps)
{
    const Step &step = stepFor(amount, steps);
    const double times = step.unit / step.rounding; // whole, so that no binary remainder shows
    return Numbers::formatLocal(std::round(amount / step.rounding) / times) + u' ' +
           QString::fromUtf8(step.name);
}

QString exact(double amount, std::span<const Step> steps)
{
    const Step &step = stepFor(amount, steps);
    return Numbers::formatLocal(amount / step.unit, 4) + u' ' + QString::fromUtf8(step.name);
}

} // namespace

QString Glassware::volume(double millilitres)
{
    return rounded(millilitres, Volumes);
}

QString Glassware::mass(double grams)
{
    return rounded(grams, Masses);
}

QString Glassware::exactVolume(double millilitres)
{
    return exact(millilitres, Volumes);
}

QString Glassware::exactMass(double grams)
{
    return exact(grams, Masses);
}
