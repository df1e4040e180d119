#pragma once

#include "store/tablerow.h"

#include <optional>

/// What is known about the delivered rows and their sources apart from the tables. The build makes it from
/// data/sources.tsv, the tables and their notes.
namespace RowRemarks {

struct Document
{
    QString text;    ///< what it is and where to find it
    QString licence; ///< as seen; "-" where none applies
    QString clause;  ///< what the licence asks for, or "general", "unnamed", "own": see data/sources.tsv
};

/// The document of the @p key of a `source` cell.
std::optional<Document> document(const QString &key);

/// Whether no value of the row has a document. False for a row that was added or changed.
bool isGeneralKnowledge(const TableRow &row);

/// Why the row is in doubt; empty if it is not, or if it was added or changed.
QString doubt(const TableRow &row);

} // namespace RowRemarks
