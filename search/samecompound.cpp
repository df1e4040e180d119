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

QString identity(const QHash<QString, QString> &known, const QString &name)
{
    const QString folded = name.toCaseFolded();
    return known.value(folded, folded);
}

int firstRow(const RowList &list, const QHash<QString, QString> &known, const QString &compound)
{
    for (int row = 0; row < list.rowCount(); ++row) {
        if (identity(known, list.text(row)) == compound)
            return row;
    }
    return -1;
}

} // namespace

SameCompound::SameCompound(const RowLists &lists) : m_lists(lists)
{
    registerResource();
    QFile file(u":/synonyms.tsv"_s);
    file.open(QIODevice::ReadOnly);
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines.sliced(1)) {
        const QStringList cells = line.split(u'\t'); // compound, CAS number, other names, reason
        const QString compound = cells[1].isEmpty() ? cells[0].toCaseFolded() : cells[1];
        for (const QString &name : QStringList(cells[0]) + cells[2].split(u"; "_s))
            m_synonyms.insert(name.toCaseFolded(), compound);
    }
}

SameCompound::Identities SameCompound::withSolvents() const
{
    constexpr int CasNumber = 6;
    Identities known = m_synonyms;
    const RowList &solvents = m_lists.ListView1;
    for (int row = 0; row < solvents.rowCount(); ++row) {
        const QString cas = solvents.subItem(row, CasNumber);
        if (!cas.isEmpty())
            known.insert(solvents.text(row).toCaseFolded(), cas);
    }
    return known;
}

QList<Place> SameCompound::of(const Place &place) const
{
    const ListPlace *own = Places::find(place.list);
    if (!own || !isOfCompounds(*own) || place.row < 0 || place.row >= own->rows(m_lists).rowCount())
        return {};
    const Identities known = withSolvents();
    const QString compound = identity(known, own->rows(m_lists).text(place.row));
    QList<Place> found;
    for (const ListPlace &each : Places::all()) {
        if (&each == own || !isOfCompounds(each))
            continue;
        const int row = firstRow(each.rows(m_lists), known, compound);
        if (row >= 0)
            found.append({each.list, row});
    }
    return found;
}
