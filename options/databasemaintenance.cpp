#include "options/databasemaintenance.h"

#include "core/filecopy.h"
#include "core/fileerrors.h"
#include "core/filelock.h"
#include "core/module1.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

void refuseIfInUse(const QString &path)
{
    if (FileLock::forbids(FileLock::Access::Write, path))
        throw RuntimeError(ErrorNumber::PermissionDenied, path);
}

/// Makes the file writable for its owner.
void clearAttributes(const QString &path)
{
    QFile file(path);
    if (!file.exists())
        throw RuntimeError(ErrorNumber::FileNotFound, path);
    if (!file.setPermissions(file.permissions() | QFile::WriteOwner | QFile::WriteUser))
        throw RuntimeError(ErrorNumber::PathAccess, path);
}

} // namespace

DatabaseMaintenance::DatabaseMaintenance(Module1 &module, Desktop &desktop)
    : m_module(module), m_desktop(desktop),
      CommonDialog1({u"Microsoft Access database"_s, {u"*.mdb"_s}}, module, desktop)
{}

QString DatabaseMaintenance::databasePath() const
{
    return m_module.AppFolder + u"/Data/Database_uk.mdb"_s;
}

void DatabaseMaintenance::open() const
{
    m_desktop.openTarget(databasePath());
}

void DatabaseMaintenance::DatabaseSaveCopy()
{
    try {
        saveCopy();
    } catch (const RuntimeError &error) {
        const QString path = CommonDialog1.FileName();
        if (error.number() == ErrorNumber::PermissionDenied)
            warn(u"Impossible to save, the file '%1' is in use."_s.arg(path));
        else if (error.number() == ErrorNumber::PathAccess)
            warn(SaveDialog::readOnlyMessage(path) + FileErrors::reasonNotWritable(path));
        // Any other failure is silent: only the message of success is missing.
    }
}

void DatabaseMaintenance::saveCopy()
{
    CommonDialog1.choose([] { return u"Database_uk_copy"_s; }, m_mark + SaveDialog::QuestionStyle);
    const QString path = CommonDialog1.FileName();
    if (QFileInfo(path) == QFileInfo(databasePath()))
        throw RuntimeError(ErrorNumber::PermissionDenied, path);
    refuseIfInUse(databasePath());
    FileErrors::refuseSpecialFile(path);
    refuseIfInUse(path);
    copyFileOver(databasePath(), path);
    m_desktop.messageBox(u"The database was successfully saved!"_s, Desktop::Information);
}

bool DatabaseMaintenance::restore()
{
    m_mark = Desktop::Question;
    // The mark is a second question icon, and the sum an information icon: style 68.
    const int style = m_mark + Desktop::YesNo + Desktop::Question;
    if (m_desktop.messageBox(u"Do you really want to restore the original database?"_s, style) !=
        Desktop::Yes)
        return false;
    try {
        copyOriginal();
        return true;
    } catch (const RuntimeError &error) {
        // The path in this text is fixed.
        if (error.number() == ErrorNumber::PermissionDenied || error.number() == ErrorNumber::PathAccess)
            warn(u"Impossible to save, the file 'Alembra/Data/Database_uk.mdb' is in use."_s);
        else if (error.number() == ErrorNumber::FileNotFound)
            warn(u"Impossible to save, the database file does not exist."_s);
        return false; // any other failure is silent
    }
}

void DatabaseMaintenance::copyOriginal() const
{
    clearAttributes(databasePath());
    refuseIfInUse(databasePath());
    copyFileOver(m_module.AppFolder + u"/Backup/Database_uk_origin.rbk"_s, databasePath());
    m_desktop.messageBox(u"The original database was successfully reinstalled! Changes will be "
                         "effective after restating the program."_s,
                         Desktop::Information);
}

void DatabaseMaintenance::warn(const QString &text) const
{
    m_desktop.messageBox(text, Desktop::Warning);
}
