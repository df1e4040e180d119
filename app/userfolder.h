#pragma once

#include <QString>

/// The folder of a user's own files if it is not the folder of the executable: options, database and the
/// original of the database.
namespace UserFolder {

/// Copies missing files from @p shippedFolder to @p folder. An unchanged database is replaced with a new
/// original; one that the user changed stays. Each file is replaced as a whole, so the next call completes an
/// interrupted one.
///
/// True if there is a new original and a changed database stayed. RuntimeError as for copyFileOver.
bool renew(const QString &folder, const QString &shippedFolder);

/// Puts the original in the place of the database in @p folder, which stays beside it as Database_uk_old.mdb
/// or, where there is one, as Database_uk_old2.mdb and so on. RuntimeError of copyFileOver.
void replaceDatabase(const QString &folder);

} // namespace UserFolder
