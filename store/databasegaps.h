#pragma once

#include <QStringList>

class JetFile;

/// What the load steps do not find in a database of another release, worded for a message.
namespace DatabaseGaps {

/// Missing tables and columns: their lists stay empty.
QStringList missing(const JetFile &database);

/// Tables that are cut into groups by row number and have a different number of rows, so that some rows are
/// in the list of a neighbouring group.
QStringList otherRowCounts(const JetFile &database);

} // namespace DatabaseGaps
