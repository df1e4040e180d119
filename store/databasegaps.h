#pragma once

#include <QStringList>

class JetFile;

/// What the load steps miss in a database of another release, in words for a message.
namespace DatabaseGaps {

/// Tables and columns that are not there: their lists stay empty.
QStringList missing(const JetFile &database);

/// Tables that are cut into groups by row number and have another number of rows: some rows are then in the
/// list of a neighbouring group.
QStringList otherRowCounts(const JetFile &database);

} // namespace DatabaseGaps
