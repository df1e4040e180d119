#pragma once

#include "search/places.h"

#include <QHash>
#include <QList>

/// Rows of other lists about the same compound: a solvent among NMR shifts and mass spectra, an amino acid
/// among its codons, an indicator among the acid/base couples.
///
/// Two names are the same compound if they differ in case only, or if they have the same CAS number in the
/// properties of the solvents or in data/synonyms.tsv.
class SameCompound final
{
public:
    /// Of the rows that @p lists have now: make a new one when they change. @p lists outlives it.
    explicit SameCompound(const RowLists &lists);

    /// The first row in each other list, in the order of Places. None if @p place is not a compound's row.
    QList<Place> of(const Place &place) const;

private:
    void readSynonyms();
    void readCasNumbers();
    void findPlaces();
    QString identity(const QString &name) const;

    const RowLists &m_lists;
    QHash<QString, QString> m_identities;  ///< of names: a CAS number, or the name of the compound
    QHash<QString, QList<Place>> m_places; ///< of an identity: its first row in each list
};
