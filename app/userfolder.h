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

} // namespace UserFolder
