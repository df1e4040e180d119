#include "calc/calctabs.h"

namespace {

constexpr FieldSet ThreeFields{TextBoxM3, TextBoxM4, TextBoxM5};
constexpr FieldSet FractionFields{Xn1, Xn2, Xm1, Xm2, M1, M2};

// A click on tab 4, 5 or 6 empties the fields of tab 5 and no others: what stands on 4 and 6 outlives a visit
// to other tabs.
constexpr CalcTab Tabs[]{
    {"Amount of substance", "n = m / M", {"n (mol)", "m (g)", "M (g/mol)"}, ThreeFields, ThreeFields, false},
    {"Concentration", "C = n / V", {"C (mol/L)", "n (mol)", "V (L)"}, ThreeFields, ThreeFields, false},
    {"Volumic mass", "m = rau . V", {"m (g)", "rau (g/cm3)", "V (mL)"}, ThreeFields, ThreeFields, false},
    {"Dilution",
     "Ci . Vi = Cf . Vf  et  T = Cf / Ci = Vi / Vf",
     {},
     {Ci, Vi, Cf, Vf, T},
     FractionFields,
     false},
    {"Massic / molar fraction",
     "Xm1 = (Xn1 . M1) / [Xn1 . M1 + (1 - Xn1) . M2]",
     {},
     FractionFields,
     FractionFields,
     false},
    {"Temperature / Pressure",
     "P = P* . exp [ - (   vap H / R) . (1 / T - 1 / T*) ]     * = atmospheric",
     {},
     {Tc, P, TcStar, PStar},
     FractionFields,
     true},
};

constexpr CalcLabel Labels[]{
    {TextBoxM3, 0, "n (mol)"},
    {TextBoxM4, 1, "m (g)"},
    {TextBoxM5, 2, "M (g/mol)"},
    {Ci, 4, "Ci (mol/L)"},
    {Vi, 5, "Vi (L)"},
    {Cf, 6, "Cf (mol/L)"},
    {Vf, 7, "Vf (L)"},
    {T, 13, "T"},
    {Xn1, 11, "Xn1"},
    {Xn2, 10, "Xn2"},
    {M1, 12, "M1 (g/mol)"},
    {Xm1, 9, "Xm1"},
    {Xm2, 3, "Xm2"},
    {M2, 8, "M2 (g/mol)"},
    {Tc, 15, "T (°C)"},
    {P, 14, "P (mbar, mmHg...)"},
    {TcStar, 16, "T* (°C)"},
    {PStar, 17, "P* (mbar, mmHg...)"},
};

constexpr Liquid Liquids[]{{3, "Others", 85}, {2, "Methane", 73}, {1, "Water", 109}};

constexpr Field ClearingOrder[]{TextBoxM3, TextBoxM4, TextBoxM5, Xn1, Xn2, Xm1, Xm2, M1,     M2,
                                Ci,        Vi,        Cf,        Vf,  T,   Tc,  P,   TcStar, PStar};

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
    return Liquids;
}

std::span<const Field> CalcTabs::clearingOrder()
{
    return ClearingOrder;
}

QString CalcTabs::name(Field field)
{
    return field < TextBoxM7Count ? QStringLiteral("TextBoxM7(%1)").arg(int(field))
                                  : QStringLiteral("TextBoxM%1").arg(field - TextBoxM3 + 3);
}
