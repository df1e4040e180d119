#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// The 35 statements by which the program knows its database; there is no other definition of the schema.
///
/// A step is 1 to 35, in the order of loading; another number is a mistake in the program. Rows come in the
/// stored order of the table, and several lists are cut into groups by row number alone, so the tables that
/// have a row count must hold just that many rows.
namespace TableCatalog {

inline constexpr int FirstStep = 1;
inline constexpr int LastStep = 35;

/// What is sent to the database, blanks included.
QString statement(int step);

/// Table and columns that the statement names, in its order.
QString table(int step);
QStringList columns(int step);

/// Number of rows of the delivered table, where the program depends on it.
std::optional<int> rowCount(int step);

} // namespace TableCatalog
