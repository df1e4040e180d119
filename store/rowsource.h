#pragma once

#include <QStringView>

/// Rows that are read one after another, forward only.
class RowSource
{
public:
    virtual ~RowSource() = default;

    virtual bool atEnd() const = 0;

    /// Field @p index of the current row, from 0, as text. Valid until moveNext(). RuntimeError 3021 past the
    /// last row, 94 for a Null field.
    virtual QStringView field(int index) const = 0;

    /// RuntimeError 3021 past the last row.
    virtual void moveNext() = 0;
};
