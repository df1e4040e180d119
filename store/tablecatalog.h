#pragma once

#include "store/rowlists.h"
#include "store/tablerow.h"

#include <QList>
#include <QString>
#include <QStringList>

struct DataStore;
class RowSource;

/// The 35 steps that load the database: the statement of each and where its rows go. The schema is defined
/// nowhere else.
///
/// Rows come in the stored order of the table. Tables are split into groups by row number alone; the rows
/// themselves carry no group.
namespace TableCatalog {

inline constexpr int FirstStep = 1;
inline constexpr int LastStepAtStart = 31; ///< the others are run when the user asks for their tables
inline constexpr int LastStep = 35;

/// Consecutive rows of a table, and the list that takes them.
struct Group
{
    RowList &(*list)(RowLists &); ///< null: the step's handler alone takes the rows
    int rows = 0;                 ///< 0: the table has any number of rows, and this is its only group
    QList<int> fields = {};       ///< for the row's text and its sub-items; empty: all columns in their order
};

/// Where the rows after the last group go.
enum class Surplus {
    ToFirstGroup,
    StartsOver, ///< through all groups again
    Unread,
};

struct Step
{
    const char *statement; ///< sent as is: `for` and `group` are unquoted column names
    QList<Group> groups;
    Surplus surplus = Surplus::ToFirstGroup;
    void (*handler)(const RowSource &rows, DataStore &data, int row) = nullptr; ///< @p row counts from 0
};

/// @p step counts from 1, in the order of loading; any other number is RuntimeError 9, here and below.
const Step &at(int step);

QString statement(int step);

/// The table and the columns that the statement names, in its order.
QString table(int step);
QStringList columns(int step);

/// The number of rows that the groups need; 0 for any number.
int rowCount(int step);

/// The row of the table that row @p row of @p list came from, both from 0. No table for a list that no step
/// fills. RuntimeError 9 if the list has no such row.
TableRow rowOf(const RowList &list, int row);

/// Row @p row of the table of @p step, for what is kept in no list. @p texts are those of the first columns.
TableRow rowOf(int step, int row, const QStringList &texts);

} // namespace TableCatalog
