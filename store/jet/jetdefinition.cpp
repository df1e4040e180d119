#include "store/jet/jetdefinition.h"

#include <algorithm>

using namespace Jet;

namespace {

constexpr int MaxColumns = 255;
constexpr int MaxPages = 64; // far more than the columns and indexes of a table can fill
constexpr int MaxNameBytes = 128;
constexpr int RowCountAt = 16;
constexpr int ColumnsEverAt = 41;
constexpr int VariableColumnsAt = 43;
constexpr int ColumnCountAt = 45;
constexpr int RealIndexCountAt = 51;
constexpr int OwnedPagesAt = 55;
constexpr int HeaderSize = 63;
constexpr int RealIndexHeaderSize = 12;
constexpr int ColumnEntrySize = 25;

// A long definition continues on further pages, after a header of 8 bytes on each.
QByteArray joined(const JetPages &pages, quint32 first)
{
    JetBytes page = pages.page(first, DefinitionPage);
    QByteArray data = page.view().toByteArray();
    quint32 next = page.u32(4);
    for (int count = 1; next != 0; ++count) {
        if (count == MaxPages)
            jetDamage("the definition of a table runs in a circle");
        page = pages.page(next, DefinitionPage);
        data += page.from(8).view();
        next = page.u32(4);
    }
    return data;
}

// Size of a value of that type in bytes; 0 if the column states it.
int fixedSize(Type type)
{
    switch (type) {
    case Type::Byte:
        return 1;
    case Type::Int16:
        return 2;
    case Type::Int32:
    case Type::Single:
        return 4;
    case Type::Currency:
    case Type::Double:
    case Type::Date:
        return 8;
    case Type::Guid:
        return 16;
    case Type::Decimal:
        return 17;
    default:
        return 0;
    }
}

JetColumn columnFrom(JetBytes entry)
{
    JetColumn column;
    column.type = Type(entry.u8(0));
    column.number = entry.u16(5);
    column.variableIndex = entry.u16(7);
    column.scale = entry.u8(12);
    column.isFixed = (entry.u8(15) & FixedLength) != 0;
    column.mayBePacked = (entry.u8(16) & PackedText) != 0;
    column.fixedOffset = entry.u16(21);
    column.length = entry.u16(23);
    if (const int size = fixedSize(column.type); size != 0)
        column.length = size;
    return column;
}

// Two columns never have the same name or place.
void checkApart(const QList<JetColumn> &columns)
{
    for (qsizetype i = 0; i < columns.size(); ++i) {
        const JetColumn &one = columns[i];
        for (qsizetype j = 0; j < i; ++j) {
            const JetColumn &other = columns[j];
            if (one.number == other.number || one.name.compare(other.name, Qt::CaseInsensitive) == 0)
                jetDamage("two columns of a table are the same");
            if (!one.isFixed && !other.isFixed && one.variableIndex == other.variableIndex)
                jetDamage("two columns of a table have the same place");
        }
    }
}

} // namespace

JetDefinition JetDefinition::read(const JetPages &pages, quint32 page)
{
    const QByteArray data = joined(pages, page);
    const JetBytes bytes(data);
    JetDefinition definition;
    definition.page = page;
    definition.rowCount = bytes.u32(RowCountAt);
    definition.columnsEver = bytes.u16(ColumnsEverAt);
    definition.hasVariablePart = bytes.u16(VariableColumnsAt) > 0;
    definition.ownedPages = bytes.u32(OwnedPagesAt);
    const int count = bytes.u16(ColumnCountAt);
    if (count == 0 || count > MaxColumns || count > definition.columnsEver)
        jetDamage("a table has an impossible number of columns");

    // The product fits in 64 bits, whatever the file says.
    qint64 at = HeaderSize + qint64(bytes.u32(RealIndexCountAt)) * RealIndexHeaderSize;
    for (int i = 0; i < count; ++i, at += ColumnEntrySize) {
        definition.columns.append(columnFrom(bytes.mid(at, ColumnEntrySize)));
        if (definition.columns.last().number >= definition.columnsEver)
            jetDamage("a column has an impossible number");
    }
    for (JetColumn &column : definition.columns) {
        const int size = bytes.u16(at);
        if (size == 0 || size > MaxNameBytes || size % 2 != 0)
            jetDamage("a column has an impossible name");
        const JetBytes name = bytes.mid(at + 2, size);
        for (int i = 0; i < size; i += 2)
            column.name += QChar(name.u16(i));
        at += 2 + size;
    }
    checkApart(definition.columns);
    return definition;
}

const JetColumn *JetDefinition::find(const QString &name) const
{
    const auto found = std::find_if(columns.begin(), columns.end(), [&name](const JetColumn &column) {
        return column.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == columns.end() ? nullptr : &*found;
}
