#pragma once

struct RowLists;

/// Shows or hides the grid lines of all lists.
///
/// Showing skips the list of infrared charts, `ListView3(5)`; hiding includes it. The asymmetry is intended.
void ApplyGridLines(RowLists &lists, bool on);
