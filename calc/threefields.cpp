// Amount of substance, concentration and volumic mass: one relation between three fields each.

#include "calc/calculation.h"

using namespace CalcFields;

namespace {

void refuseAllFilled(Calculation &c)
{
    c.refuse("Please leave 1 empty field to perform calculation");
}

void refuseTooFew(Calculation &c)
{
    c.refuse("Please fill in 2 fields to perform calculation");
}

// n = m / M and C = n / V: the first field is the quotient of the other two.
constexpr Pattern AmountPatterns[]{
    {{TextBoxM4, TextBoxM5},
     {TextBoxM3},
     [](Calculation &c) { c.write(TextBoxM3, c[TextBoxM4] / c[TextBoxM5]); }},
    {{TextBoxM3, TextBoxM5},
     {TextBoxM4},
     [](Calculation &c) { c.write(TextBoxM4, c[TextBoxM5] * c[TextBoxM3]); }},
    {{TextBoxM4, TextBoxM3},
     {TextBoxM5},
     [](Calculation &c) { c.write(TextBoxM5, c[TextBoxM4] / c[TextBoxM3]); }},
    {{TextBoxM3, TextBoxM4, TextBoxM5}, {}, refuseAllFilled},
    {{}, {}, refuseTooFew},
};

// m = rau . V. Grams from g/cm3 and mL, so no factor is needed. With a single field filled this tab, unlike
// the two before it, says nothing.
constexpr Pattern VolumicMassPatterns[]{
    {{TextBoxM4, TextBoxM5},
     {TextBoxM3},
     [](Calculation &c) { c.write(TextBoxM3, c[TextBoxM5] * c[TextBoxM4]); }},
    {{TextBoxM3, TextBoxM5},
     {TextBoxM4},
     [](Calculation &c) { c.write(TextBoxM4, c[TextBoxM3] / c[TextBoxM5]); }},
    {{TextBoxM4, TextBoxM3},
     {TextBoxM5},
     [](Calculation &c) { c.write(TextBoxM5, c[TextBoxM3] / c[TextBoxM4]); }},
    {{TextBoxM3, TextBoxM4, TextBoxM5}, {}, refuseAllFilled},
    {{}, {TextBoxM3, TextBoxM4, TextBoxM5}, refuseTooFew},
};

} // namespace

const TabSolver AmountSolver{{}, 0, nullptr, nullptr, AmountPatterns};
const TabSolver VolumicMassSolver{{}, 0, nullptr, nullptr, VolumicMassPatterns};
