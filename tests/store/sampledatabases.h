#pragma once

#include <QByteArray>

class QRandomGenerator;

/// Small databases for tests of damage, and the damage.
namespace SampleDatabases {

/// Everything that the delivered file lacks: fixed columns, long texts, moved and deleted rows, packed texts
/// of both widths, a bitmap page. Two tables, "one" and "two", of 30 rows each; without a password.
QByteArray varied();

/// All tables of the catalogue, with @p rows rows of short texts each; with the program's password.
QByteArray catalogued(int rows);

/// Spoils @p bytes by chance: cuts it, changes bytes, bits or numbers anywhere, or lets two pages change
/// places.
void damage(QByteArray *bytes, QRandomGenerator *random);

/// Spoils the bytes that lead on: the first ones of pages, where slots and definitions are.
void damageHeads(QByteArray *bytes, QRandomGenerator *random);

} // namespace SampleDatabases
