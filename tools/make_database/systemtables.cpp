#include "tools/make_database/systemtables.h"

#include "tools/make_database/bytewriter.h"
#include "tools/make_database/rows.h"

#include <span>

using namespace Qt::StringLiterals;

namespace {

using Jet::Type;

// Account numbers, masked with the creation date.
constexpr quint16 Admin = 0x8B64;
constexpr quint16 Users = 0x8B65;
constexpr quint16 Creator = 0x8E65;
constexpr quint16 Engine = 0x8965;

constexpr quint32 RootFolder = 0x0F000000;
constexpr quint32 TablesFolder = 0x0F000001;
constexpr quint32 DatabasesFolder = 0x0F000002;
constexpr quint32 RelationshipsFolder = 0x0F000003;
constexpr quint32 Database = 0x10000000;

struct Column
{
    const char *name;
    Type type;
    quint16 number;
    quint16 variableIndex;
    quint16 fixedOffset;
    quint8 flags;
};

// Flags of a column.
constexpr quint8 Variable = 18;
constexpr quint8 Fixed = 19;
constexpr quint8 Account = 50; // variable too

// Sorted by name, as the engine stores them.
constexpr Column ObjectsColumns[] = {
    {"Connect", Type::Memo, 9, 3, 0, Variable},
    {"Database", Type::Memo, 8, 2, 0, Variable},
    {"DateCreate", Type::Date, 4, 1, 10, Fixed},
    {"DateUpdate", Type::Date, 5, 1, 18, Fixed},
    {"Flags", Type::Int32, 7, 2, 26, Fixed},
    {"ForeignName", Type::Text, 10, 4, 0, Variable},
    {"Id", Type::Int32, 0, 0, 0, Fixed},
    {"Lv", Type::Ole, 13, 7, 0, Variable},
    {"LvExtra", Type::Ole, 16, 10, 0, Variable},
    {"LvModule", Type::Ole, 15, 9, 0, Variable},
    {"LvProp", Type::Ole, 14, 8, 0, Variable},
    {"Name", Type::Text, 2, 0, 0, Variable},
    {"Owner", Type::Binary, 6, 1, 0, Account},
    {"ParentId", Type::Int32, 1, 0, 4, Fixed},
    {"RmtInfoLong", Type::Ole, 12, 6, 0, Variable},
    {"RmtInfoShort", Type::Binary, 11, 5, 0, Variable},
    {"Type", Type::Int16, 3, 1, 8, Fixed},
};

constexpr Column PermissionsColumns[] = {
    {"ACM", Type::Int32, 2, 1, 4, Fixed},
    {"FInheritable", Type::Boolean, 3, 1, 0, Fixed},
    {"ObjectId", Type::Int32, 0, 0, 0, Fixed},
    {"SID", Type::Binary, 1, 0, 0, Account},
};

constexpr Column QueriesColumns[] = {
    {"Attribute", Type::Byte, 1, 0, 4, Fixed}, {"Expression", Type::Memo, 5, 3, 0, Variable},
    {"Flag", Type::Int16, 6, 4, 5, Fixed},     {"LvExtra", Type::Int32, 7, 4, 7, Fixed},
    {"Name1", Type::Text, 3, 1, 0, Variable},  {"Name2", Type::Text, 4, 2, 0, Variable},
    {"ObjectId", Type::Int32, 0, 0, 0, Fixed}, {"Order", Type::Binary, 2, 0, 0, Variable},
};

constexpr Column RelationshipsColumns[] = {
    {"ccolumn", Type::Int32, 2, 1, 4, Fixed},
    {"grbit", Type::Int32, 1, 1, 0, Fixed},
    {"icolumn", Type::Int32, 3, 1, 8, Fixed},
    {"szColumn", Type::Text, 5, 2, 0, Variable},
    {"szObject", Type::Text, 4, 1, 0, Variable},
    {"szReferencedColumn", Type::Text, 7, 4, 0, Variable},
    {"szReferencedObject", Type::Text, 6, 3, 0, Variable},
    {"szRelationship", Type::Text, 0, 0, 0, Variable},
};

quint16 lengthOf(Type type)
{
    switch (type) {
    case Type::Boolean:
    case Type::Byte:
        return 1;
    case Type::Int16:
        return 2;
    case Type::Int32:
        return 4;
    case Type::Date:
        return 8;
    case Type::Text:
    case Type::Binary:
        return 510;
    default:
        return 0;
    }
}

constexpr quint32 mapAt(quint32 row)
{
    return SystemTables::UsageMapPage << 8 | row;
}

TableLayout layoutOf(std::span<const Column> columns, quint32 firstMap)
{
    TableLayout layout;
    layout.kind = 'S';
    layout.ownedPages = mapAt(firstMap);
    layout.freePages = mapAt(firstMap + 1);
    for (const Column &column : columns) {
        layout.columns.append({QString::fromLatin1(column.name), column.type, column.number,
                               column.variableIndex, column.fixedOffset, column.flags, 0,
                               lengthOf(column.type)});
    }
    return layout;
}

TableLayout::LongColumn longColumn(quint16 number, quint32 firstMap)
{
    return {number, mapAt(firstMap), mapAt(firstMap + 1)};
}

QByteArray sid(quint16 number)
{
    return ByteWriter().u16(number).data();
}

} // namespace

TableLayout SystemTables::objectsLayout(quint32 rows)
{
    TableLayout layout = layoutOf(ObjectsColumns, 0x00);
    layout.rowCount = rows;
    layout.indexes = {{{1, 2}, 0x81, ObjectsByNamePage, mapAt(0x10), rows},
                      {{0}, 0x81, ObjectsByIdPage, mapAt(0x11), rows}};
    layout.indexNames = {{u"Id"_s, 1, true}, {u"ParentIdName"_s, 0, false}};
    layout.longColumns = {longColumn(9, 0x04),  longColumn(8, 0x02),  longColumn(13, 0x08),
                          longColumn(16, 0x0E), longColumn(15, 0x0C), longColumn(14, 0x0A),
                          longColumn(12, 0x06)};
    return layout;
}

TableLayout SystemTables::permissionsLayout(quint32 rows, quint32 objects)
{
    TableLayout layout = layoutOf(PermissionsColumns, 0x12);
    layout.rowCount = rows;
    layout.indexes = {{{0}, 0x88, PermissionsPage, mapAt(0x14), objects}};
    layout.indexNames = {{u"ObjectId"_s, 0, false}};
    return layout;
}

TableLayout SystemTables::queriesLayout()
{
    TableLayout layout = layoutOf(QueriesColumns, 0x15);
    layout.indexes = {{{0, 1, 2}, 0x81, QueriesPage, mapAt(0x19)}};
    layout.indexNames = {{u"ObjectIdAttribute"_s, 0, true}};
    layout.longColumns = {longColumn(5, 0x17)};
    return layout;
}

TableLayout SystemTables::relationshipsLayout()
{
    TableLayout layout = layoutOf(RelationshipsColumns, 0x1A);
    layout.indexes = {{{0}, 0x82, FirstRelationshipsPage, mapAt(0x1C)},
                      {{4}, 0x82, FirstRelationshipsPage + 1, mapAt(0x1D)},
                      {{6}, 0x82, LastRelationshipsPage, mapAt(0x1E)}};
    layout.indexNames = {
        {u"szObject"_s, 1, false}, {u"szReferencedObject"_s, 2, false}, {u"szRelationship"_s, 0, false}};
    return layout;
}

SystemTables::Object SystemTables::Object::table(const QString &name, quint32 definitionPage)
{
    return {definitionPage, TablesFolder, name, 1, 0, true};
}

QByteArray SystemTables::Object::row() const
{
    Rows::Parts parts;
    parts.columns = std::size(ObjectsColumns);
    ByteWriter fixed;
    fixed.u32(id).u32(parent).u16(type);
    fixed.bytes(CreationDate).bytes(CreationDate).u32(flags);
    parts.fixed = fixed.data();
    parts.variable.resize(11);
    parts.variable[0] = Rows::plainText(name);
    parts.variable[1] = sid(ownedByAdmin ? Admin : Engine);
    parts.nullMask = Rows::nullMask(parts.columns, {0, 1, 2, 3, 4, 5, 6, 7});
    return Rows::encode(parts);
}

QList<SystemTables::Object> SystemTables::fixedObjects()
{
    constexpr quint32 System = 0x80000000;
    return {
        {TablesFolder, RootFolder, u"Tables"_s, 3, System, false},
        {DatabasesFolder, RootFolder, u"Databases"_s, 3, System, false},
        {RelationshipsFolder, RootFolder, u"Relationships"_s, 3, System, false},
        {Database, DatabasesFolder, u"MSysDb"_s, 2, System, true},
        {Objects, TablesFolder, u"MSysObjects"_s, 1, System, false},
        {Permissions, TablesFolder, u"MSysACEs"_s, 1, System, false},
        {Queries, TablesFolder, u"MSysQueries"_s, 1, System, false},
        {Relationships, TablesFolder, u"MSysRelationships"_s, 1, System, false},
    };
}

QByteArray SystemTables::Permission::row() const
{
    Rows::Parts parts;
    parts.columns = std::size(PermissionsColumns);
    parts.fixed = ByteWriter().u32(object).u32(rights).data();
    parts.variable = {sid(account)};
    QList<int> present{0, 1, 2};
    if (inherited)
        present.append(3); // FInheritable, a Boolean: its value is its bit in the null mask
    parts.nullMask = Rows::nullMask(parts.columns, present);
    return Rows::encode(parts);
}

QList<SystemTables::Permission> SystemTables::fixedPermissions()
{
    return {
        {Objects, Admin, 0x60000, false},
        {Permissions, Admin, 0x60000, false},
        {Queries, Admin, 0x60000, false},
        {Relationships, Admin, 0xE0000, false},
        {TablesFolder, Creator, 0xF00FE, true},
        {TablesFolder, Admin, 0x60001, false},
        {RelationshipsFolder, Creator, 0xF00FE, true},
        {RelationshipsFolder, Admin, 0x60001, false},
        {DatabasesFolder, Admin, 0x60000, false},
        {Database, Admin, 0x6000E, false},
        {Database, Users, 0xE, false},
        {Queries, Users, 0x14, false},
        {Relationships, Users, 0x14, false},
        {Objects, Users, 0x14, false},
        {TablesFolder, Users, 0xFFEFF, true},
        {RelationshipsFolder, Users, 0xFFFFF, true},
    };
}

QList<SystemTables::Permission> SystemTables::tablePermissions(quint32 definitionPage)
{
    return {{definitionPage, Admin, 0xFFEFF, false}, {definitionPage, Users, 0xFFEFF, false}};
}
