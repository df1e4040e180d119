#pragma once

#include "store/tablerow.h"

/// What the user's database says of where a row comes from: its column `source`.
struct RecordedSource final
{
    enum class Kind {
        Recorded,
        None,       ///< the table has no such column, or its cell is empty
        OtherRow,   ///< the file has another row in this place than the program has read
        Unreadable, ///< the file is missing or damaged
    };

    Kind kind = Kind::None;
    QString source; ///< the cell, keys of RowRemarks::document()

    /// The row is not in the original database, or is different there.
    bool changed = false;

    /// Reads it from the files in @p appFolder and closes them.
    static RecordedSource of(const TableRow &row, const QString &appFolder);
};
