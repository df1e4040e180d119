// Prints what one key press in the conversions and one click on "Calculate" cost, as shares of a frame of
// 1/60 s. Exits with 1 if either takes more than a hundredth of one.

#include "calc/solver.h"
#include "calc/unitconverter.h"

#include <QElapsedTimer>
#include <cstdio>

using namespace CalcFields;

namespace {

constexpr double FrameNanoseconds = 1E9 / 60;
constexpr double Limit = 0.01;

/// Share of a frame that one call of @p work takes, the best of some runs.
template<class Work>
double shareOfFrame(const char *name, Work work)
{
    constexpr int Calls = 20000;
    double best = FrameNanoseconds;
    for (int run = 0; run < 5; ++run) {
        QElapsedTimer timer;
        timer.start();
        for (int call = 0; call < Calls; ++call)
            work(call);
        best = std::min(best, double(timer.nsecsElapsed()) / Calls);
    }
    std::printf("%-12s %8.0f a second, %.4f %% of a frame each\n", name, 1E9 / best,
                100 * best / FrameNanoseconds);
    return best / FrameNanoseconds;
}

} // namespace

int main()
{
    const QString input = QStringLiteral("123.456");
    qsizetype letters = 0; // so that nothing is optimised away

    UnitConverter converter([](int) { return UnitPair{1, 2}; });
    const auto tabs = int(UnitConverter::quantities().size());
    const double conversion = shareOfFrame(
        "conversions", [&](int call) { letters += converter.keyReleased(call % tabs + 1, input).size(); });

    FieldTexts dilution;
    dilution[Ci] = dilution[Vi] = dilution[Vf] = input;
    FieldTexts pressure;
    pressure[Tc] = pressure[TcStar] = pressure[PStar] = input;
    const double click = shareOfFrame("clicks", [&](int call) {
        const Outcome outcome = call % 2 ? Solver::solve(4, dilution) : Solver::solve(6, pressure, 85);
        letters += outcome.changes.size();
    });

    return letters > 0 && conversion < Limit && click < Limit ? 0 : 1;
}
