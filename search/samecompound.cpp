#include "search/samecompound.h"

#include <QFile>
#include <QStringList>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

static void registerResource()
{
    Q_INIT_RESOURCE(synonyms);
}

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

SameCompound::SameCompound(const RowLists &lists) : m_lists(lists)
{
    readSynonyms();
    readCasNumbers();
    findPlaces();
}

void SameCompound::readSynonyms()
{
    registerResource();
    QFile file(u":/synonyms.tsv"_s);
    file.open(QIODevice::ReadOnly);
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines.sliced(1)) {
        const QStringList cells = line.split(u'\t'); // compound, CAS number, other names, reason
        const QString compound = cells[1].isEmpty() ? cells[0].toCaseFolded() : cells[1];
        for (const QString &name : QStringList(cells[0]) + cells[2].split(u"; "_s))
            m_identities.insert(name.toCaseFolded(), compound);
    }
}

void SameCompound::readCasNumbers()
{
    constexpr int CasNumber = 6;
    const RowList &solvents = m_lists.ListView1;
    for (int row = 0; row < solvents.rowCount(); ++row) {
        const QString cas = solvents.subItem(row, CasNumber);
        if (!cas.isEmpty())
            m_identities.insert(solvents.text(row).toCaseFolded(), cas);
    }
}

void SameCompound::findPlaces()
{
    for (const ListPlace &each : Places::all()) {
        if (!isOfCompounds(each))
            continue;
        const RowList &list = each.rows(m_lists);
        for (int row = 0; row < list.rowCount(); ++row) {
            QList<Place> &places = m_places[identity(list.text(row))];
            if (places.isEmpty() || places.constLast().list != QLatin1StringView(each.list))
                places.append({each.list, row});
        }
    }
}

QString SameCompound::identity(const QString &name) const
{
    const QString folded = name.toCaseFolded();
    return m_identities.value(folded, folded);
}

QList<Place> SameCompound::of(const Place &place) const
{
    const ListPlace *own = Places::find(place.list);
    if (!own || !isOfCompounds(*own) || place.row < 0 || place.row >= own->rows(m_lists).rowCount())
        return {};
    QList<Place> found = m_places.value(identity(own->rows(m_lists).text(place.row)));
    found.removeIf([&](const Place &each) { return each.list == place.list; });
    return found;
}
