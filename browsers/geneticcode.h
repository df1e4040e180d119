#pragma once

#include "store/memorytables.h"

#include <QStringList>
#include <optional>

/// The look-up of the genetic code in both directions, in a table of names and up to six codons each.
namespace GeneticCode {

using Table = decltype(MemoryTables::GeneticCodeData);

inline constexpr int LetterCount = 3;
inline constexpr int CodonCount = 6;

/// Name of the amino acid that has @p codon, compared exactly. If several rows have it, the last one counts.
///
/// The sixth codon of a row is not looked at: a codon that stands there alone has no name.
std::optional<QString> aminoAcid(const Table &table, const QString &codon);

/// The six codon cells of @p row, from 0; cells without a codon are empty. RuntimeError 9 outside the table.
QStringList codons(const Table &table, int row);

} // namespace GeneticCode
