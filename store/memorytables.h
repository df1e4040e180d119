#pragma once

#include "core/runtimeerror.h"

#include <QString>
#include <array>

/// A table of texts with fixed bounds, rows and columns from 0. A cell outside is RuntimeError 9.
template<int Rows, int Columns>
class TextTable final
{
public:
    QString &operator()(int row, int column)
    {
        using namespace Qt::StringLiterals;
        if (row < 0 || row >= Rows || column < 0 || column >= Columns)
            throw RuntimeError(ErrorNumber::Subscript, u"(%1, %2)"_s.arg(row).arg(column));
        return m_cells[size_t(row) * Columns + size_t(column)];
    }
    const QString &operator()(int row, int column) const
    {
        return const_cast<TextTable &>(*this)(row, column);
    }

    static constexpr int rowCount() { return Rows; }

private:
    std::array<QString, size_t(Rows) * Columns> m_cells;
};

/// Columns of `ElementData`, in the order of the table `Elements`. Column 30 is always empty and ends the
/// loop over the isotopes.
namespace ElementColumn {
inline constexpr int Name = 0;
inline constexpr int Symbol = 1;
inline constexpr int AtomicNumber = 2;
inline constexpr int AtomicMass = 3; ///< in u; "[97]" without a stable isotope
inline constexpr int CrystalStructure = 14;
inline constexpr int FirstIsotope = 15; ///< then half-life and decay modes; five such groups
} // namespace ElementColumn

/// The tables that are read by row and column.
struct MemoryTables final
{
    TextTable<121, 31> ElementData;      ///< row = atomic number - 1
    TextTable<23, 8> GeneticCodeData;    ///< amino acid, then up to six codons
    TextTable<51, 2> NmrReferenceData;   ///< from row 1: abbreviation, journal
    TextTable<101, 2> IrGroupData;       ///< from row 1: chart item, chart number
    TextTable<13, 8> ResistorColourData; ///< stays empty in a normal run
};
