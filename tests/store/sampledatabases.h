#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

class QRandomGenerator;

/// Small databases for tests of damage, and the damage.
namespace SampleDatabases {

/// Everything that the delivered file lacks: fixed columns, long texts, moved and deleted rows, packed texts
/// of both widths, a bitmap page. Two tables, "one" and "two", of 30 rows each; without a password.
QByteArray varied();

/// What a user has done to one table in a program of his own.
struct Edit
{
    QString table;
    int rows = 0;             ///< instead of those of the other tables
    QSet<int> deleted = {};   ///< rows, from 0
    bool extraColumn = false; ///< "remarks", in front of the others
    bool asNumbers = false;   ///< columns of the type Double
};

/// All tables of the catalogue, with @p rows rows of short texts each, "2.1" in row 2 and column 1; with the
/// program's password. Rows and columns count from 0, an extra column not at all.
QByteArray catalogued(int rows, const Edit &edit = {});

/// Spoils @p bytes by chance: cuts it, changes bytes, bits or numbers anywhere, or lets two pages change
/// places.
void damage(QByteArray *bytes, QRandomGenerator *random);

/// Spoils the bytes that lead on: the first ones of pages, where slots and definitions are.
void damageHeads(QByteArray *bytes, QRandomGenerator *random);

} // namespace SampleDatabases
