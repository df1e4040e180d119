#pragma once

#include <QStringView>

/// Rows that come one after another, as a recordset gives them.
class RowSource
{
public:
    virtual ~RowSource() = default;

    virtual bool atEnd() const = 0;

    /// Field @p index of the current row, from 0, as text, until moveNext(). RuntimeError 3021 past the last
    /// row, 94 for a field without a value.
    virtual QStringView field(int index) const = 0;

    /// RuntimeError 3021 past the last row.
    virtual void moveNext() = 0;
};
