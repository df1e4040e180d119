#include "app/userfolder.h"

#include "core/filecopy.h"
#include "core/fileerrors.h"

namespace {

bool isSame(const QString &file, const QString &other)
{
    return QFileInfo::exists(file) && FileErrors::readWhole(file) == FileErrors::readWhole(other);
}

} // namespace

bool UserFolder::renew(const QString &folder, const QString &shippedFolder)
{
    const QString options = QStringLiteral("/options_uk.ini");
    const QString original = QStringLiteral("/Backup/Database_uk_origin.rbk");
    const QString database = folder + QStringLiteral("/Data/Database_uk.mdb");
    for (const QString &file : {folder + original, database}) {
        const QString below = QFileInfo(file).path();
        if (!QDir().mkpath(below))
            throw RuntimeError(ErrorNumber::PathAccess, below);
    }
    if (!QFileInfo::exists(folder + options))
        copyFileOver(shippedFolder + options, folder + options);

    const bool newOriginal = !isSame(folder + original, shippedFolder + original);
    bool keptChanged = false;
    if (!QFileInfo::exists(database) || (newOriginal && isSame(folder + original, database)))
        copyFileOver(shippedFolder + original, database);
    else
        keptChanged = newOriginal && !isSame(database, shippedFolder + original);
    // Last: until then it tells whether the database was changed.
    if (newOriginal)
        copyFileOver(shippedFolder + original, folder + original);
    return keptChanged;
}
