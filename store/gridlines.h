#pragma once

struct RowLists;

/// Grid lines of all lists, on or off.
///
/// Switching on leaves the list of infrared charts, `ListView3(5)`, as it was; switching off includes it. The
/// asymmetry is meant.
void ApplyGridLines(RowLists &lists, bool on);
