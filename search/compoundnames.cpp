#include "search/compoundnames.h"

#include "store/rowlist.h"

#include <QFile>

using namespace Qt::StringLiterals;

static void registerResource()
{
    Q_INIT_RESOURCE(synonyms);
}

CompoundNames::CompoundNames(const RowList &solvents)
{
    constexpr int CasNumber = 6;
    readSynonyms();
    for (int row = 0; row < solvents.rowCount(); ++row) {
        const QString cas = solvents.subItem(row, CasNumber);
        if (!cas.isEmpty())
            m_identities.insert(solvents.text(row).toCaseFolded(), cas);
    }
}

void CompoundNames::readSynonyms()
{
    registerResource();
    QFile file(u":/synonyms.tsv"_s);
    file.open(QIODevice::ReadOnly);
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines.sliced(1)) {
        // compound, CAS number, names in other tables, names in no table, reason
        const QStringList cells = line.split(u'\t');
        const QString compound = cells[1].isEmpty() ? cells[0].toCaseFolded() : cells[1];
        const QStringList names = QStringList(cells[0]) + cells[2].split(u"; "_s, Qt::SkipEmptyParts);
        for (const QString &name : names)
            m_identities.insert(name.toCaseFolded(), compound);
        m_synonyms.insert(compound, names + cells[3].split(u"; "_s, Qt::SkipEmptyParts));
    }
}

QString CompoundNames::identity(const QString &name) const
{
    const QString folded = name.toCaseFolded();
    return m_identities.value(folded, folded);
}
