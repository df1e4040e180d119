#pragma once

#include <QHash>
#include <QStringList>

class RowList;

/// Which names are one compound: those that differ in case only, and those that have the same CAS number in
/// the properties of the solvents or in data/synonyms.tsv.
class CompoundNames final
{
public:
    /// @p solvents: `ListView1`
    explicit CompoundNames(const RowList &solvents);

    /// The same for all names of a compound: its CAS number, or a name in small letters.
    QString identity(const QString &name) const;

    /// The names in data/synonyms.tsv for the compound @p name, abbreviations included.
    QStringList synonyms(const QString &name) const { return m_synonyms.value(identity(name)); }

private:
    void readSynonyms();

    QHash<QString, QString> m_identities;   ///< of names that have another identity than their small letters
    QHash<QString, QStringList> m_synonyms; ///< of an identity
};
