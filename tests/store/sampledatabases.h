#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

/// Small databases for tests of damage.
namespace SampleDatabases {

/// Everything that the delivered file lacks: fixed columns, long texts, moved and deleted rows, packed texts
/// of both widths, a bitmap page. Two tables, "one" and "two", of 30 rows each; without a password.
QByteArray varied();

/// What a user has done to one table in a program of his own.
struct Edit
{
    QString table;
    int rows = 0;           ///< instead of those of the other tables
    QSet<int> deleted = {}; ///< rows, from 0
};

/// All tables of the catalogue, with @p rows rows of short texts each, "2.1" in row 2 and column 1; with the
/// program's password. Rows and columns count from 0.
QByteArray catalogued(int rows, const Edit &edit = {});

} // namespace SampleDatabases
