#include "search/samecompound.h"

SameCompound::SameCompound(const RowLists &lists) : m_lists(lists), m_names(lists.ListView1)
{
    for (const ListPlace &each : Places::all()) {
        if (each.content != ListPlace::Compounds)
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
    if (!own || own->content != ListPlace::Compounds || place.row < 0 ||
        place.row >= own->rows(m_lists).rowCount())
        return {};
    QList<Place> found = m_places.value(m_names.identity(own->rows(m_lists).text(place.row)));
    found.removeIf([&](const Place &each) { return each.list == place.list; });
    return found;
}
