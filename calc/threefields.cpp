// Amount of substance, concentration and volumic mass: a relation between three fields each.

#include "calc/calculation.h"

using namespace CalcFields;

namespace {

constexpr const char *AllFilled = "Please leave 1 empty field to perform calculation";
constexpr const char *TooFew = "Please fill in 2 fields to perform calculation";

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
    {{TextBoxM3, TextBoxM4, TextBoxM5}, {}, AllFilled},
    {{}, {}, TooFew},
};

// m = rau . V, in g, g/cm3 and mL: no factor. Unlike the other two tabs, silent with a single field filled.
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
    {{TextBoxM3, TextBoxM4, TextBoxM5}, {}, AllFilled},
    {{}, {TextBoxM3, TextBoxM4, TextBoxM5}, TooFew},
};

} // namespace

const TabSolver AmountSolver{{}, 0, nullptr, nullptr, AmountPatterns};
const TabSolver VolumicMassSolver{{}, 0, nullptr, nullptr, VolumicMassPatterns};
