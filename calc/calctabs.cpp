#include "calc/calctabs.h"

#include "calc/calculation.h"
#include "calc/plainanswer.h"
#include "core/numbers.h"
#include "core/optionslots.h"

#include <algorithm>

using namespace Qt::StringLiterals;

using namespace CalcFields;

namespace {

constexpr FieldSet ThreeFields{TextBoxM3, TextBoxM4, TextBoxM5};
constexpr FieldSet FractionFields{Xn1, Xn2, Xm1, Xm2, M1, M2};

// A click on tab 4, 5 or 6 empties only the fields of tab 5: those of 4 and 6 survive a visit to other tabs.
constexpr CalcTab Tabs[]{
    {"Amount of substance",
     "n = m / M",
     ThreeFields,
     ThreeFields,
     AmountSolver,
     {"n (mol)", "m (g)", "M (g/mol)"},
     false,
     nullptr,
     {TextBoxM5}},
    {"Concentration",
     "C = n / V",
     ThreeFields,
     ThreeFields,
     AmountSolver,
     {"C (mol/L)", "n (mol)", "V (L)"},
     false,
     PlainAnswer::concentration},
    {"Volumic mass",
     "m = rau . V",
     ThreeFields,
     ThreeFields,
     VolumicMassSolver,
     {"m (g)", "rau (g/cm3)", "V (mL)"}},
    {"Dilution",
     "Ci . Vi = Cf . Vf  et  T = Cf / Ci = Vi / Vf",
     {Ci, Vi, Cf, Vf, T},
     FractionFields,
     DilutionSolver,
     {},
     false,
     PlainAnswer::dilution},
    {"Massic / molar fraction",
     "Xm1 = (Xn1 . M1) / [Xn1 . M1 + (1 - Xn1) . M2]",
     FractionFields,
     FractionFields,
     FractionSolver,
     {},
     false,
     PlainAnswer::fractions,
     {M1, M2}},
    {"Temperature / Pressure",
     "P = P* . exp [ - (   vap H / R) . (1 / T - 1 / T*) ]     * = atmospheric",
     {Tc, P, TcStar, PStar},
     FractionFields,
     VapourPressureSolver,
     {},
     true},
};

constexpr CalcLabel Labels[]{
    {TextBoxM3, 0, "n (mol)", 0, 0},
    {TextBoxM4, 1, "m (g)", 0, 1},
    {TextBoxM5, 2, "M (g/mol)", 0, 2},
    {Ci, 4, "Ci (mol/L)", 0, 0},
    {Vi, 5, "Vi (L)", 0, 1},
    {Cf, 6, "Cf (mol/L)", 1, 0},
    {Vf, 7, "Vf (L)", 1, 1},
    {T, 13, "T", 1, 2},
    {Xn1, 11, "Xn1", 0, 0},
    {Xn2, 10, "Xn2", 0, 1},
    {M1, 12, "M1 (g/mol)", 0, 2},
    {Xm1, 9, "Xm1", 1, 0},
    {Xm2, 3, "Xm2", 1, 1},
    {M2, 8, "M2 (g/mol)", 1, 2},
    {Tc, 15, "T (°C)", 0, 0},
    {P, 14, "P (mbar, mmHg...)", 0, 1},
    {TcStar, 16, "T* (°C)", 1, 0},
    {PStar, 17, "P* (mbar, mmHg...)", 1, 1},
};

} // namespace

std::span<const CalcTab> CalcTabs::tabs()
{
    return Tabs;
}

std::span<const CalcLabel> CalcTabs::labels()
{
    return Labels;
}

std::span<const Liquid> CalcTabs::liquids()
{
    static constexpr Liquid Liquids[]{{3, "Others", 85}, {2, "Methane", 73}, {1, "Water", 109}};
    return Liquids;
}

QString CalcTabs::name(Field field)
{
    return field < TextBoxM7Count ? u"TextBoxM7(%1)"_s.arg(int(field))
                                  : u"TextBoxM%1"_s.arg(field - TextBoxM3 + 3);
}

int CalcTabs::decimals(const OptionSlots &slots)
{
    constexpr double Most = 99; // more than any field accepts
    return Numbers::roundHalfToEven(std::clamp(slots(Slot::Decimals).toNumber(), 0.0, Most));
}
