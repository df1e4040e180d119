// Clausius-Clapeyron. The enthalpy of vaporisation is the boiling temperature times an entropy that is about
// the same for all liquids of a kind.

#include "calc/calculation.h"

using namespace CalcFields;

namespace {

constexpr double R = 8.314;        // J/(mol K)
constexpr double Celsius = 273.15; // 0 degrees Celsius in kelvin

// One step at a time: the first that fails decides between a message and silence.

void solveTemperature(Calculation &c, Checked K)
{
    const Checked TkStar = c[TcStar] + Celsius;
    const Checked inverse = 1 / TkStar;
    const Checked logarithm = log(c[P] / c[PStar]);
    c.write(Tc, 1 / (inverse + logarithm / -((TkStar * K) / R)) - Celsius);
}

Checked pressureFactor(Calculation &c, Checked K)
{
    const Checked Tk = c[Tc] + Celsius;
    const Checked TkStar = c[TcStar] + Celsius;
    return exp(-(((TkStar * K) / R) * (1 / Tk - 1 / TkStar)));
}

void solvePressure(Calculation &c, Checked K)
{
    c.write(P, c[PStar] * pressureFactor(c, K));
}

void solveBoilingTemperature(Calculation &c, Checked K)
{
    const Checked Tk = c[Tc] + Celsius;
    const Checked logarithm = log(c[P] / c[PStar]);
    c.write(TcStar, Tk * (1 - (R / K) * logarithm) - Celsius);
}

void solveBoilingPressure(Calculation &c, Checked K)
{
    c.write(PStar, c[P] / pressureFactor(c, K));
}

template<void (*Solve)(Calculation &, Checked)>
void withEntropy(Calculation &c)
{
    if (const std::optional<Checked> K = c.vaporisationEntropy())
        Solve(c, *K);
}

constexpr Pattern VapourPressurePatterns[]{
    {{}, {Tc}, withEntropy<solveTemperature>},
    {{}, {P}, withEntropy<solvePressure>},
    {{}, {TcStar}, withEntropy<solveBoilingTemperature>},
    {{}, {PStar}, withEntropy<solveBoilingPressure>},
    {{}, {}, "Please leave at least 1 empty field to perform calculation"},
};

} // namespace

const TabSolver VapourPressureSolver{{Tc, P, TcStar, PStar},
                                     3,
                                     "Please fill in at least 3 fields to perform calculation",
                                     nullptr,
                                     VapourPressurePatterns};
