// The time to gather the hits of a search against comparing the rows, and how it grows with them.

#include "bench/measure.h"
#include "bench/programdata.h"
#include "search/find.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr double GatherTarget = 1.3;
constexpr double GrowthTarget = 1.1;
constexpr int Solvents = 1; // load step

} // namespace

int main()
{
    return measureAll([](Measure &measure) {
        const auto data = ProgramData::load(ProgramData::database(), Solvents, Solvents);
        const QString key = u"ACE"_s;
        std::array<RowList, 3> lists;
        RowList hits;
        QList<Measure::Size> sizes;
        int times = 1;
        for (RowList &list : lists) {
            ProgramData::multiply(data->lists.ListView1, times, 0, list);
            sizes << Measure::Size{list.rowCount(), [&list, &key, &hits] {
                                       Find::gather(list, list.rowCount(), key, Qt::CaseInsensitive, hits);
                                   }};
            times *= 10;
        }
        int found = 0;
        const auto bare = [&] {
            for (int row = 0; row < lists[0].rowCount(); ++row)
                found += lists[0].cell(row, 0).contains(key, Qt::CaseInsensitive) ? 1 : 0;
        };
        measure.compare(u"gathering of hits / comparison"_s, bare, sizes[0].action, GatherTarget);
        if (found == 0)
            throw std::runtime_error("nothing was found");
        measure.growth(u"search"_s, sizes, GrowthTarget);
    });
}
