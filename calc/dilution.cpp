#include "calc/calculation.h"

using namespace CalcFields;

namespace {

// Compared as text, not as numbers: "9" is above "10".
void refuseRisingConcentration(Calculation &c)
{
    const QString &initialText = c.text(Ci);
    const QString &finalText = c.text(Cf);
    if (!initialText.isEmpty() && !finalText.isEmpty() && finalText >= initialText)
        c.refuse("The initial concentration must be higher than the final one");
}

/// Refuses data whose two relations disagree.
bool agree(Calculation &c, Checked a, Checked b)
{
    if (!(a == b))
        c.refuse("Impossible to perform calculation due to inconsistent data");
    return a == b;
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
    if (agree(c, c[Vf] * c[Cf], c[Vi] * c[Ci]))
        c.write(T, c[Cf] / c[Ci]);
}

void solveFinalState(Calculation &c)
{
    c.write(Cf, c[T] * c[Ci]);
    c.write(Vf, c[Vi] / c[T]);
}

// Here and in solveCi, Ci is T x Cf, although the formula shown gives T = Cf / Ci. Intended.
void solveInitialState(Calculation &c)
{
    c.write(Ci, c[T] * c[Cf]);
    c.write(Vi, c[T] * c[Vf]);
}

void solveVi(Calculation &c)
{
    if (agree(c, c[Vf] * c[Cf] / c[Ci], c[Vf] * c[T]))
        c.write(Vi, c[T] * c[Vf]);
}

// Checks with one relation and calculates Ci with the other.
void solveCi(Calculation &c)
{
    if (agree(c, c[Vf] * c[Cf] / c[Vi], c[Cf] / c[T]))
        c.write(Ci, c[T] * c[Cf]);
}

void solveCf(Calculation &c)
{
    if (agree(c, c[Vi] * c[Ci] / c[Vf], c[T] * c[Ci]))
        c.write(Cf, c[Vi] * c[Ci] / c[Vf]);
}

void solveVf(Calculation &c)
{
    if (agree(c, c[Vi] * c[Ci] / c[Cf], c[Vi] / c[T]))
        c.write(Vf, c[Vi] / c[T]);
}

// {Vi, Cf, T} and {Ci, Vf, T} match no pattern: nothing happens.
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
    {{T, Vf, Vi}, {Cf, Ci}, "Not enough data to perform calculation"},
    {{T, Cf, Ci}, {Vf, Vi}, "Not enough data to perform calculation"},
    {{Ci, Vi, Cf, Vf, T}, {}, "Please leave 1 empty field to perform calculation"},
};

} // namespace

const TabSolver DilutionSolver{{Ci, Vi, Cf, Vf, T},
                               3,
                               "Please fill in at least 3 fields to perform calculation",
                               refuseRisingConcentration,
                               DilutionPatterns};
