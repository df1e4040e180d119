#include "search/samecompound.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// The lists whose rows begin with the name of a compound.
constexpr std::array OfCompounds{"ListView1",     "ListView4",     "ListView5",     "ListView6",
                                 "ListView8",     "ListView3(0)",  "ListView3(1)",  "ListView3(2)",
                                 "ListView3(3)",  "ListView3(6)",  "ListView3(7)",  "ListView3(8)",
                                 "ListView3(9)",  "ListView3(10)", "ListView3(11)", "ListView3(12)",
                                 "ListView3(13)", "ListView3(14)", "ListView3(26)", "Comb2"};

bool isOfCompounds(const ListPlace &place)
{
    return std::ranges::any_of(OfCompounds, [&](const char *each) { return qstrcmp(each, place.list) == 0; });
}

} // namespace

SameCompound::SameCompound(const RowLists &lists) : m_lists(lists), m_names(lists.ListView1)
{
    findPlaces();
}

void SameCompound::findPlaces()
{
    for (const ListPlace &each : Places::all()) {
        if (!isOfCompounds(each))
            continue;
        const RowList &list = each.rows(m_lists);
        for (int row = 0; row < list.rowCount(); ++row) {
            QList<Place> &places = m_places[m_names.identity(list.text(row))];
            if (places.isEmpty() || places.constLast().list != QLatin1StringView(each.list))
                places.append({each.list, row});
        }
    }
}

QList<Place> SameCompound::of(const Place &place) const
{
    const ListPlace *own = Places::find(place.list);
    if (!own || !isOfCompounds(*own) || place.row < 0 || place.row >= own->rows(m_lists).rowCount())
        return {};
    QList<Place> found = m_places.value(m_names.identity(own->rows(m_lists).text(place.row)));
    found.removeIf([&](const Place &each) { return each.list == place.list; });
    return found;
}
