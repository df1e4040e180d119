#include "app/userfolder.h"

#include "core/filecopy.h"
#include "core/fileerrors.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto Options = "/options_uk.ini"_L1;
constexpr auto Original = "/Backup/Database_uk_origin.rbk"_L1;
constexpr auto Database = "/Data/Database_uk.mdb"_L1;

bool isSame(const QString &file, const QString &other)
{
    return QFileInfo::exists(file) && FileErrors::readWhole(file) == FileErrors::readWhole(other);
}

} // namespace

bool UserFolder::renew(const QString &folder, const QString &shippedFolder)
{
    const QString database = folder + Database;
    for (const QString &file : {folder + Original, database}) {
        const QString below = QFileInfo(file).path();
        if (!QDir().mkpath(below))
            throw RuntimeError(ErrorNumber::PathAccess, below);
    }
    if (!QFileInfo::exists(folder + Options))
        copyFileOver(shippedFolder + Options, folder + Options);

    const bool newOriginal = !isSame(folder + Original, shippedFolder + Original);
    bool keptChanged = false;
    if (!QFileInfo::exists(database) || (newOriginal && isSame(folder + Original, database)))
        copyFileOver(shippedFolder + Original, database);
    else
        keptChanged = newOriginal && !isSame(database, shippedFolder + Original);
    // Last: until then it shows whether the database was changed.
    if (newOriginal)
        copyFileOver(shippedFolder + Original, folder + Original);
    return keptChanged;
}

void UserFolder::replaceDatabase(const QString &folder)
{
    QString kept = u"/Data/Database_uk_old.mdb"_s;
    for (int number = 2; QFileInfo::exists(folder + kept); ++number)
        kept = u"/Data/Database_uk_old%1.mdb"_s.arg(number);
    copyFileOver(folder + Database, folder + kept);
    copyFileOver(folder + Original, folder + Database);
}
