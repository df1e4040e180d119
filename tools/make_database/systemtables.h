#pragma once

#include "tools/make_database/definition.h"

#include <QByteArray>
#include <QString>

/// The four system tables of every database: their fixed layout, pages and rows.
namespace SystemTables {

/// Definition pages.
inline constexpr quint32 Objects = 2;
inline constexpr quint32 Permissions = 3;
inline constexpr quint32 Queries = 4;
inline constexpr quint32 Relationships = 5;

/// The page with the usage maps of the four tables, and their number.
inline constexpr quint32 UsageMapPage = 6;
inline constexpr int UsageMapCount = 31;

// Index leaves.
inline constexpr quint32 ObjectsByNamePage = 7;
inline constexpr quint32 ObjectsByIdPage = 8;
inline constexpr quint32 PermissionsPage = 9;
inline constexpr quint32 QueriesPage = 10;
inline constexpr quint32 FirstRelationshipsPage = 11;
inline constexpr quint32 LastRelationshipsPage = 13;

/// The first page after the fixed ones.
inline constexpr quint32 FirstFreePage = 14;

/// Layouts of the four tables, with their numbers of rows.
TableLayout objectsLayout(quint32 rows);
TableLayout permissionsLayout(quint32 rows, quint32 objects);
TableLayout queriesLayout();
TableLayout relationshipsLayout();

/// The catalogue entry of a table, a folder of the catalogue or the database itself.
struct Object
{
    quint32 id;
    quint32 parent;
    QString name;
    quint16 type;
    quint32 flags;
    bool ownedByAdmin; ///< else by the engine

    /// The entry of a user's table with that definition page.
    static Object table(const QString &name, quint32 definitionPage);

    QByteArray row() const;
};

/// The eight objects that come first in every database.
QList<Object> fixedObjects();

struct Permission
{
    quint32 object;
    quint16 account;
    quint32 rights;
    bool inherited;

    QByteArray row() const;
};

/// The 16 permissions of the fixed objects.
QList<Permission> fixedPermissions();

/// What Access grants to the administrator and to all users on a new table.
QList<Permission> tablePermissions(quint32 definitionPage);

/// Bytes of the creation date, 2015-11-21 22:40:31. It is the same for every build: the account numbers of
/// the tables are masked with it, and equal builds give equal bytes.
inline constexpr char CreationDate[] = "\x3E\x85\xD3\x3B\x3E\xAB\xE4\x40";

} // namespace SystemTables
