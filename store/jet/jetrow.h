#pragma once

#include "store/jet/jetdefinition.h"

#include <optional>

/// The stored bytes of one row, cell by cell. RuntimeError DatabaseFailure if they do not match the
/// definition.
class JetRow final
{
public:
    JetRow(JetBytes bytes, const JetDefinition &definition);

    /// The bytes of a cell; nothing if it is Null. A Boolean has no bytes: see bit().
    std::optional<JetBytes> cell(const JetColumn &column) const;

    /// The bit of the column in the null mask. For a Boolean it is the value.
    bool bit(const JetColumn &column) const;

private:
    int variableEnd(int index) const;

    JetBytes m_bytes;
    int m_columns = 0;    ///< columns that existed when the row was written
    int m_maskAt = 0;     ///< the null mask
    int m_variable = 0;   ///< number of variable columns
    int m_offsetsEnd = 0; ///< end of the offsets; that of variable column 0 is the last
    int m_fixedEnd = 0;   ///< the fixed part ends here at the latest
};
