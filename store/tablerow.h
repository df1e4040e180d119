#pragma once

#include <QString>
#include <QStringList>

/// A row of a table of the database, as the program shows it.
struct TableRow final
{
    QString table; ///< empty for what is in no table
    int row = 0;   ///< from 0
    QStringList columns;
    QStringList texts; ///< of these columns
};
