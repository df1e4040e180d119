#pragma once

#include "reports/savedialog.h"

/// Copies of the working database, out and in. Neither touches the data in memory.
///
/// It lives as long as the options window: Restore leaves a mark that the questions of a later Save add to
/// their style.
class DatabaseMaintenance final
{
public:
    DatabaseMaintenance(Module1 &module, Desktop &desktop);

    /// "Data/Database_uk.mdb" in the program folder.
    QString databasePath() const;

    /// Hands the database to the program that the desktop has for it.
    void open() const;

    /// Asks for a place and copies the database there. Cancelling is silent, and so is every failure but a
    /// file that is in use or may not be written. A copy of the database onto itself counts as in use.
    void DatabaseSaveCopy();

    /// Puts the delivered database in the place of the working one, after a question. True if it was done. A
    /// failure leaves the working one as it was.
    bool restore();

private:
    void saveCopy();
    void copyOriginal() const;
    void warn(const QString &text) const;

    Module1 &m_module;
    Desktop &m_desktop;
    SaveDialog CommonDialog1;
    int m_mark = 0; ///< 32 once Restore was pressed
};
