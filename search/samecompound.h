#pragma once

#include "search/compoundnames.h"
#include "search/places.h"

#include <QHash>
#include <QList>

/// Rows of other lists about the same compound: a solvent among NMR shifts and mass spectra, an amino acid
/// among its codons, an indicator among the acid/base couples. CompoundNames says which names are one
/// compound.
class SameCompound final
{
public:
    /// Of the rows that @p lists have now: make a new one when they change. @p lists outlives it.
    explicit SameCompound(const RowLists &lists);

    /// The first row in each other list, in the order of Places. None if @p place is not a compound's row.
    QList<Place> of(const Place &place) const;

private:
    const RowLists &m_lists;
    CompoundNames m_names;
    QHash<QString, QList<Place>> m_places; ///< of an identity: its first row in each list
};
