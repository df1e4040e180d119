#pragma once

#include <QString>
#include <QStringList>

/// One table, as it goes into the database.
struct TableData
{
    QString name;
    QString file; ///< for messages
    QStringList columns;
    QList<QStringList> rows; ///< each as long as the columns; row i is line i + 2 of the file
};

/// What a table file must look like.
struct TableRules
{
    QString name;
    QStringList columns;        ///< in this order
    int rows = 0;               ///< 0: any number
    bool anyCharacters = false; ///< else only those of Windows-1252, because reports print the table
};

namespace TableFile {

/// BuildError at the first thing that breaks the rules, a cell of more than 255 characters among them.
TableData read(const QString &path, const TableRules &rules);

} // namespace TableFile
