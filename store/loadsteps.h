#pragma once

#include "store/datastore.h"
#include "store/rowsource.h"

/// Moves the rows of one table into the lists and tables in memory, by the load step's number.
namespace LoadSteps {

inline constexpr int First = 1;
inline constexpr int Last = 35;

/// Runs step @p step over @p rows. Whatever fails ends the step as a RuntimeError; what was filled by then
/// stays. A table with fewer rows than the step's groups ask for fails so at the read past its end, and so
/// does one with more rows in the steps whose groups stand inside the loop over the table.
void run(int step, RowSource &rows, DataStore &data);

} // namespace LoadSteps
