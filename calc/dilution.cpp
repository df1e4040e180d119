#include "calc/calculation.h"

using namespace CalcFields;

namespace {

// Compared as texts, code by code, not as numbers: "9" is above "10".
void refuseRisingConcentration(Calculation &c)
{
    const QString &initialText = c.text(Ci);
    const QString &finalText = c.text(Cf);
    if (!initialText.isEmpty() && !finalText.isEmpty() && finalText >= initialText)
        c.refuse("The initial concentration must be higher than the final one");
}

void refuseInconsistentData(Calculation &c)
{
    c.refuse("Impossible to perform calculation due to inconsistent data");
}

void refuseTooLittleData(Calculation &c)
{
    c.refuse("Not enough data to perform calculation");
}

void solveCiAndRatio(Calculation &c)
{
    c.write(Ci, c[Vf] * c[Cf] / c[Vi]);
    c.write(T, c[Vi] / c[Vf]);
}

void solveViAndRatio(Calculation &c)
{
    c.write(Vi, c[Vf] * c[Cf] / c[Ci]);
    c.write(T, c[Cf] / c[Ci]);
}

void solveCfAndRatio(Calculation &c)
{
    c.write(Cf, c[Vi] * c[Ci] / c[Vf]);
    c.write(T, c[Vi] / c[Vf]);
}

void solveVfAndRatio(Calculation &c)
{
    c.write(Vf, c[Vi] * c[Ci] / c[Cf]);
    c.write(T, c[Cf] / c[Ci]);
}

void solveRatio(Calculation &c)
{
    if (c[Vf] * c[Cf] == c[Vi] * c[Ci])
        c.write(T, c[Cf] / c[Ci]);
    else
        refuseInconsistentData(c);
}

void solveFinalState(Calculation &c)
{
    c.write(Cf, c[T] * c[Ci]);
    c.write(Vf, c[Vi] / c[T]);
}

// Ci is T x Cf here and in solveCi, although the formula line gives T = Cf / Ci: that is how this tab
// answers.
void solveInitialState(Calculation &c)
{
    c.write(Ci, c[T] * c[Cf]);
    c.write(Vi, c[T] * c[Vf]);
}

void solveVi(Calculation &c)
{
    if (c[Vf] * c[Cf] / c[Ci] == c[Vf] * c[T])
        c.write(Vi, c[T] * c[Vf]);
    else
        refuseInconsistentData(c);
}

// So the data are accepted by one relation, and Ci comes from the other.
void solveCi(Calculation &c)
{
    if (c[Vf] * c[Cf] / c[Vi] == c[Cf] / c[T])
        c.write(Ci, c[T] * c[Cf]);
    else
        refuseInconsistentData(c);
}

void solveCf(Calculation &c)
{
    if (c[Vi] * c[Ci] / c[Vf] == c[T] * c[Ci])
        c.write(Cf, c[Vi] * c[Ci] / c[Vf]);
    else
        refuseInconsistentData(c);
}

void solveVf(Calculation &c)
{
    if (c[Vi] * c[Ci] / c[Cf] == c[Vi] / c[T])
        c.write(Vf, c[Vi] / c[T]);
    else
        refuseInconsistentData(c);
}

// With T, one concentration and the volume of the other state nothing fits, and nothing is said.
constexpr Pattern DilutionPatterns[]{
    {{Vf, Cf, Vi}, {Ci, T}, solveCiAndRatio},
    {{Vf, Cf, Ci}, {Vi, T}, solveViAndRatio},
    {{Vf, Vi, Ci}, {Cf, T}, solveCfAndRatio},
    {{Cf, Vi, Ci}, {Vf, T}, solveVfAndRatio},
    {{Vf, Cf, Vi, Ci}, {T}, solveRatio},
    {{Vi, Ci, T}, {Vf, Cf}, solveFinalState},
    {{Vf, Cf, T}, {Vi, Ci}, solveInitialState},
    {{Vf, Cf, Ci, T}, {Vi}, solveVi},
    {{Vf, Cf, Vi, T}, {Ci}, solveCi},
    {{Vf, Vi, Ci, T}, {Cf}, solveCf},
    {{Cf, Vi, Ci, T}, {Vf}, solveVf},
    {{T, Vf, Vi}, {Cf, Ci}, refuseTooLittleData},
    {{T, Cf, Ci}, {Vf, Vi}, refuseTooLittleData},
    {{Ci, Vi, Cf, Vf, T},
     {},
     [](Calculation &c) { c.refuse("Please leave 1 empty field to perform calculation"); }},
};

} // namespace

const TabSolver DilutionSolver{{Ci, Vi, Cf, Vf, T},
                               3,
                               "Please fill in at least 3 fields to perform calculation",
                               refuseRisingConcentration,
                               DilutionPatterns};
