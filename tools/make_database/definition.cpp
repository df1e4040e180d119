#include "tools/make_database/definition.h"

#include "tools/make_database/bytewriter.h"
#include "tools/make_database/rows.h"
#include "tools/tables/builderror.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Constants that the engine writes everywhere.
constexpr quint32 TableMark = 1625;
constexpr quint32 IndexMark = 1923;
constexpr quint16 Collation = 0x0409;
constexpr quint16 Unused = 0xFFFF;
constexpr int IndexColumns = 10;
constexpr quint16 LongestText = 510;

void addName(ByteWriter &page, const QString &name)
{
    const QByteArray bytes = Rows::plainText(name);
    page.u16(quint16(bytes.size())).bytes(bytes);
}

void addColumn(ByteWriter &page, const TableLayout::Column &column, bool ofSystem)
{
    page.u8(quint8(column.type)).u32(TableMark).u16(column.number).u16(column.variableIndex);
    page.u16(ofSystem ? 0 : column.number).u16(Collation).u16(0);
    page.u8(column.flags).u8(column.extendedFlags).u32(0).u16(column.fixedOffset).u16(column.length);
}

void addIndex(ByteWriter &page, const TableLayout::Index &index)
{
    page.u32(IndexMark);
    for (qsizetype i = 0; i < IndexColumns; ++i) {
        const bool used = i < index.columns.size();
        page.u16(used ? quint16(index.columns[i]) : Unused).u8(used ? 1 : 0);
    }
    page.u32(index.usageMap).u32(index.rootPage).u32(0).u8(index.flags).zeros(5);
}

void addIndexName(ByteWriter &page, const TableLayout::IndexName &name)
{
    const auto number = quint32(name.number);
    page.u32(TableMark).u32(number).u32(number).u8(0).u32(0xFFFFFFFF).u32(0).u8(4).u8(4);
    page.u8(name.isPrimaryKey ? 1 : 0).u32(0);
}

} // namespace

TableLayout TableLayout::ofTexts(const QStringList &columns, quint32 rowCount, quint32 usageMapPage)
{
    TableLayout layout;
    layout.rowCount = rowCount;
    layout.ownedPages = usageMapPage << 8;
    layout.freePages = usageMapPage << 8 | 1;
    for (const QString &name : columns) {
        const auto number = quint16(layout.columns.size());
        layout.columns.append(
            {name, Jet::Type::Text, number, number, 0, Jet::Nullable, Jet::PackedText, LongestText});
    }
    return layout;
}

QByteArray TableLayout::page() const
{
    const auto variable = std::count_if(columns.begin(), columns.end(), [](const Column &column) {
        return (column.flags & Jet::FixedLength) == 0;
    });
    const auto count = quint16(columns.size());
    ByteWriter page;
    page.u32(TableMark).u32(rowCount).u32(0).u32(1).zeros(12).u8(kind);
    page.u16(count).u16(quint16(variable)).u16(count);
    page.u32(quint32(indexNames.size())).u32(quint32(indexes.size())).u32(ownedPages).u32(freePages);
    for (const Index &index : indexes)
        page.u32(0).u32(index.distinctKeys).u32(0);
    for (const Column &column : columns)
        addColumn(page, column, kind == 'S');
    for (const Column &column : columns)
        addName(page, column.name);
    for (const Index &index : indexes)
        addIndex(page, index);
    for (const IndexName &name : indexNames)
        addIndexName(page, name);
    for (const IndexName &name : indexNames)
        addName(page, name.name);
    for (const LongColumn &column : longColumns)
        page.u16(column.number).u32(column.ownedPages).u32(column.freePages);
    page.u16(0xFFFF);

    constexpr qsizetype HeadSize = 12;
    const qsizetype end = HeadSize + page.size();
    const qsizetype free = Jet::PageSize - 8 - end;
    if (free < 0)
        throw BuildError(u"the definition of a table does not fit on one page"_s);
    ByteWriter whole;
    whole.u8(Jet::DefinitionPage).u8(1).u16(quint16(free)).u32(0).u32(quint32(end)).bytes(page.data());
    return whole.zeros(Jet::PageSize - end).data();
}
