// The time to compute after a key in the conversions and a click on "Calculate", against reading and writing
// the same numbers.

#include "bench/measure.h"
#include "calc/solver.h"
#include "calc/unitconverter.h"
#include "core/numbers.h"

using namespace Qt::StringLiterals;

using namespace CalcFields;

namespace {

constexpr double ConversionTarget = 1.5;
constexpr double SolverTarget = 2;

// Created before anything is measured.
const QString Input = u"123.456"_s; // clazy:exclude=non-pod-global-static
constexpr double Result = 123.456 / 7;

void bareNumbers(int read, int written)
{
    for (; read > 0; --read)
        Numbers::parseLocal(Input);
    for (; written > 0; --written)
        Numbers::formatLocal(Result);
}

void conversions(Measure &measure)
{
    UnitConverter converter([](int) { return UnitPair{1, 2}; });
    const auto tabs = int(Units::quantities().size());
    measure.compare(
        u"conversion of a number on each tab / reading, writing"_s, [tabs] { bareNumbers(tabs, tabs); },
        [&] {
            for (int tab = 1; tab <= tabs; ++tab)
                converter.keyReleased(tab, Input);
        },
        ConversionTarget);
}

void clicks(Measure &measure)
{
    FieldTexts dilution;
    dilution[Ci] = dilution[Vi] = dilution[Vf] = Input;
    const auto changes = int(Solver::solve(4, dilution).changes.size());
    if (changes == 0)
        throw std::runtime_error("no dilution was calculated");
    measure.compare(
        u"calculation of a dilution / reading, writing"_s, [=] { bareNumbers(3, changes); },
        [&] { Solver::solve(4, dilution); }, SolverTarget);
}

} // namespace

int main()
{
    return measureAll([](Measure &measure) {
        conversions(measure);
        clicks(measure);
    });
}
