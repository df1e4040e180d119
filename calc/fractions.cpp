#include "calc/calculation.h"

using namespace CalcFields;

namespace {

void solveMolarFractions(Calculation &c)
{
    const Checked first = c[Xm1] / c[M1];
    c.write(Xn1, first / (first + (1 - c[Xm1]) / c[M2]));
    c.write(Xn2, 1 - c[Xn1]); // from the text just written
}

void solveMassicFractions(Calculation &c)
{
    const Checked first = c[M1] * c[Xn1];
    c.write(Xm1, first / (first + c[M2] * (1 - c[Xn1])));
    c.write(Xm2, 1 - c[Xm1]);
}

void solveM2(Calculation &c)
{
    c.write(M2, (c[M1] * c[Xn1] - c[M1] * (c[Xn1] * c[Xm1])) / (c[Xm1] * (1 - c[Xn1])));
}

void solveM1(Calculation &c)
{
    c.write(M1, ((1 - c[Xn1]) * (c[M2] * c[Xm1])) / (c[Xn1] * (1 - c[Xm1])));
}

constexpr Pattern FractionPatterns[]{
    {{Xm2, Xm1, M2, M1}, {Xn2, Xn1}, solveMolarFractions},
    {{Xn2, Xn1, M2, M1}, {Xm2, Xm1}, solveMassicFractions},
    {{}, {M2, M1}, "Please fill in M1 or M2 field to perform calculation"},
    {{Xm2, Xm1, Xn2, Xn1, M1}, {M2}, solveM2},
    {{Xm2, Xm1, Xn2, Xn1, M2}, {M1}, solveM1},
    {{Xm2, Xm1, Xn2, Xn1, M1, M2}, {}, "Please leave at least 1 empty field to perform calculation"},
};

} // namespace

const TabSolver FractionSolver{{Xn1, Xn2, Xm1, Xm2, M1, M2},
                               4,
                               "Please fill in at least 4 fields to perform calculation",
                               nullptr,
                               FractionPatterns};
