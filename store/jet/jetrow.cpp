#include "store/jet/jetrow.h"

namespace {

// Layout of a row: number of columns, fixed part, variable part, end of the variable part, offsets of the
// variable columns (last one first), their number, null mask. Without variable columns there is only the
// fixed part in between.
constexpr int FixedAt = 2;

} // namespace

JetRow::JetRow(JetBytes bytes, const JetDefinition &definition) : m_bytes(bytes), m_columns(bytes.u16(0))
{
    if (m_columns == 0 || m_columns > definition.columnsEver)
        jetDamage("a row has an impossible number of columns");
    m_maskAt = int(bytes.size()) - (m_columns + 7) / 8;
    m_fixedEnd = m_maskAt;
    if (definition.hasVariablePart) {
        m_offsetsEnd = m_maskAt - 2;
        m_variable = bytes.u16(m_offsetsEnd);
        const int offsetsAt = m_offsetsEnd - 2 * (m_variable + 1);
        int before = FixedAt;
        for (int i = 0; i <= m_variable; ++i) {
            const int offset = bytes.u16(m_offsetsEnd - 2 - 2 * i);
            if (offset < before || offset > offsetsAt)
                jetDamage("the values of a row overlap");
            before = offset;
        }
        m_fixedEnd = bytes.u16(m_offsetsEnd - 2);
    }
    if (m_fixedEnd < FixedAt)
        jetDamage("a row is too short");
}

bool JetRow::bit(const JetColumn &column) const
{
    if (column.number >= m_columns)
        return false;
    return (m_bytes.u8(m_maskAt + column.number / 8) >> (column.number % 8) & 1) != 0;
}

std::optional<JetBytes> JetRow::cell(const JetColumn &column) const
{
    if (!bit(column))
        return std::nullopt;
    if (column.isFixed) {
        const int at = FixedAt + column.fixedOffset;
        if (at + column.length > m_fixedEnd)
            jetDamage("a value is outside the fixed part of its row");
        return m_bytes.mid(at, column.length);
    }
    if (column.variableIndex >= m_variable)
        jetDamage("a row lacks a value that it announces");
    const int start = m_bytes.u16(m_offsetsEnd - 2 - 2 * column.variableIndex);
    return m_bytes.mid(start, variableEnd(column.variableIndex) - start);
}

int JetRow::variableEnd(int index) const
{
    return m_bytes.u16(m_offsetsEnd - 4 - 2 * index);
}
