#pragma once

#include "store/memorytables.h"

#include <QStringList>
#include <optional>

/// Look-up of the genetic code in both directions. The table has a name and up to six codons in each row.
namespace GeneticCode {

using Table = decltype(MemoryTables::GeneticCodeData);

inline constexpr int LetterCount = 3;
inline constexpr int CodonCount = 6;

/// Name of the amino acid with @p codon, compared exactly; the last row of several.
///
/// The sixth codon of a row is not searched: a codon that is only there has no name.
std::optional<QString> aminoAcid(const Table &table, const QString &codon);

/// The six codon cells of @p row, from 0; cells without a codon are empty. RuntimeError 9 outside the table.
QStringList codons(const Table &table, int row);

} // namespace GeneticCode
