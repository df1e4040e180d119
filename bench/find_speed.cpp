// Prints what a key press in the Find bar costs as the list grows. Exits with 1 if
// a key press over 200 rows takes a millisecond, or if the time grows faster than the rows.

#include "search/find.h"
#include "store/rowlist.h"

#include <QElapsedTimer>
#include <cstdio>

namespace {

/// Nanoseconds of one call of @p work, the best of some runs.
template<class Work>
double bestTime(Work work)
{
    double best = 1E18;
    for (int run = 0; run < 7; ++run) {
        QElapsedTimer timer;
        timer.start();
        work();
        best = std::min(best, double(timer.nsecsElapsed()));
    }
    return best;
}

/// Names of which every tenth holds the text that is looked for.
void fill(RowList &list, int rows)
{
    for (int row = 0; row < rows; ++row) {
        const char *stem = row % 10 == 0 ? "acetyl compound no. %1" : "chlorinated solvent no. %1";
        list.append(QString::fromLatin1(stem).arg(row));
    }
}

double keyPress(int rows)
{
    RowList list;
    fill(list, rows);
    RowList hits;
    return bestTime([&] { Find::gather(list, rows, QStringLiteral("ACE"), Qt::CaseInsensitive, hits); });
}

} // namespace

int main()
{
    constexpr double Millisecond = 1E6;
    constexpr double Tolerance = 3; // of a straight line, for caches and noise
    const double first = keyPress(200);
    bool good = first < Millisecond;
    for (const int rows : {200, 1000, 10000, 100000}) {
        const double time = keyPress(rows);
        const double perRow = time / rows / (first / 200);
        std::printf("%7d rows  %9.4f ms a key press, %.2f of the time a row that 200 rows take\n", rows,
                    time / Millisecond, perRow);
        good = good && perRow < Tolerance;
    }
    return good ? 0 : 1;
}
