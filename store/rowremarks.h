#pragma once

#include "store/tablerow.h"

#include <optional>

/// What is known of the delivered rows and their sources beside the tables: made by the build from
/// data/sources.tsv, the tables and their notes.
namespace RowRemarks {

struct Document
{
    QString text;    ///< what it is and where to find it
    QString licence; ///< as seen; "-" where none applies
    QString clause;  ///< what the licence asks for, or "general", "unnamed", "own": see data/sources.tsv
};

/// The document that @p key of a `source` cell stands for.
std::optional<Document> document(const QString &key);

/// Whether no value of the row has a document. False for a row that is not as delivered, here and below.
bool isGeneralKnowledge(const TableRow &row);

/// Why somebody doubts the row; empty where nobody does.
QString doubt(const TableRow &row);

} // namespace RowRemarks
