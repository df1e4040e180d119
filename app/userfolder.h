#pragma once

#include <QString>

/// The folder of a user's own files, where it is not the folder of the executable: options, database and the
/// original of the database.
namespace UserFolder {

/// Copies what @p folder lacks from @p shippedFolder. A database that is still the original that came with it
/// follows a new original; one that the user changed stays. Each file is replaced whole or stays as it was,
/// so an interrupted call is completed by the next.
///
/// True if there is a new original and the changed database stayed. RuntimeError of copyFileOver.
bool renew(const QString &folder, const QString &shippedFolder);

/// Puts the original in the place of the database in @p folder, which stays beside it as Database_uk_old.mdb
/// or, where there is one, as Database_uk_old2.mdb and so on. RuntimeError of copyFileOver.
void replaceDatabase(const QString &folder);

} // namespace UserFolder
