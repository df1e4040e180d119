#include "options/databasemaintenance.h"

#include "core/filecopy.h"
#include "core/fileerrors.h"
#include "core/filelock.h"
#include "core/module1.h"

#include <QFile>
#include <QFileInfo>

namespace {

void refuseIfInUse(const QString &path)
{
    if (FileLock::forbids(FileLock::Access::Write, path))
        throw RuntimeError(ErrorNumber::PermissionDenied, path);
}

// Lets the owner write, whatever the file said.
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
      CommonDialog1({QStringLiteral("Microsoft Access database"), {QStringLiteral("*.mdb")}}, module, desktop)
{}

QString DatabaseMaintenance::databasePath() const
{
    return m_module.AppFolder + QStringLiteral("/Data/Database_uk.mdb");
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
            warn(QStringLiteral("Impossible to save, the file '%1' is in use.").arg(path));
        else if (error.number() == ErrorNumber::PathAccess)
            warn(QStringLiteral(
                     "Impossible to save '%1'. The file already exists and has a read-only attribute. "
                     "Save it with a different name or in different folder.")
                     .arg(path) +
                 FileErrors::reasonNotWritable(path));
        // Any other failure is silent: that no success is told is the only sign.
    }
}

void DatabaseMaintenance::saveCopy()
{
    CommonDialog1.choose([] { return QStringLiteral("Database_uk_copy"); },
                         m_mark + SaveDialog::QuestionStyle);
    const QString path = CommonDialog1.FileName();
    if (QFileInfo(path) == QFileInfo(databasePath()))
        throw RuntimeError(ErrorNumber::PermissionDenied, path);
    refuseIfInUse(databasePath());
    FileErrors::refuseSpecialFile(path);
    refuseIfInUse(path);
    copyFileOver(databasePath(), path);
    m_desktop.messageBox(QStringLiteral("The database was successfully saved!"), Desktop::Information);
}

bool DatabaseMaintenance::restore()
{
    m_mark = Desktop::Question;
    // The mark is added to the question icon as a number, which makes it the information icon: style 68.
    const int style = m_mark + Desktop::YesNo + Desktop::Question;
    const auto question = QStringLiteral("Do you really want to restore the original database?");
    if (m_desktop.messageBox(question, style) != Desktop::Yes)
        return false;
    try {
        copyOriginal();
        return true;
    } catch (const RuntimeError &error) {
        // The path in this text is fixed, wherever the program folder is.
        if (error.number() == ErrorNumber::PermissionDenied || error.number() == ErrorNumber::PathAccess)
            warn(QStringLiteral("Impossible to save, the file 'Alembra/Data/Database_uk.mdb' is in use."));
        else if (error.number() == ErrorNumber::FileNotFound)
            warn(QStringLiteral("Impossible to save, the database file does not exist."));
        return false; // any other failure is silent
    }
}

void DatabaseMaintenance::copyOriginal() const
{
    clearAttributes(databasePath());
    refuseIfInUse(databasePath());
    copyFileOver(m_module.AppFolder + QStringLiteral("/Backup/Database_uk_origin.rbk"), databasePath());
    m_desktop.messageBox(QStringLiteral("The original database was successfully reinstalled! Changes will be "
                                        "effective after restating the program."),
                         Desktop::Information);
}

void DatabaseMaintenance::warn(const QString &text) const
{
    m_desktop.messageBox(text, Desktop::Warning);
}
