#pragma once

#include "reports/savedialog.h"

/// Saves a copy of the working database and restores the original. Neither changes the data in memory.
///
/// Lives as long as the options window: after Restore, the questions of a later Save have another style.
class DatabaseMaintenance final
{
public:
    DatabaseMaintenance(Module1 &module, Desktop &desktop);

    /// "Data/Database_uk.mdb" in the program folder.
    QString databasePath() const;

    /// Opens the database in the desktop's default application.
    void open() const;

    /// Asks for a file and copies the database there. Reports a file that is in use (as the database itself
    /// counts) or not writable; cancelling and any other failure are silent.
    void DatabaseSaveCopy();

    /// Replaces the working database by the original, after a question. True if done; a failure changes
    /// nothing.
    bool restore();

private:
    void saveCopy();
    void copyOriginal() const;
    void warn(const QString &text) const;

    Module1 &m_module;
    Desktop &m_desktop;
    SaveDialog CommonDialog1;
    int m_mark = 0; ///< 32 after the first Restore
};
