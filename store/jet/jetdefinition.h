#pragma once

#include "store/jet/jetpages.h"

#include <QList>
#include <QString>

struct JetColumn
{
    QString name;
    Jet::Type type = Jet::Type::Text;
    int number = 0;        ///< its bit in the null mask of a row
    bool isFixed = false;  ///< whether the value is in the fixed part of a row, whatever the type
    int variableIndex = 0; ///< of a variable column
    int fixedOffset = 0;   ///< of a fixed column, byte offset after the row's column count
    int length = 0;        ///< of a fixed column, in bytes
    bool mayBePacked = false;
    int scale = 0; ///< of a Decimal: number of decimals
};

/// A table, as read from its definition page.
struct JetDefinition
{
    quint32 page = 0;
    quint32 rowCount = 0;
    int columnsEver = 0; ///< including removed ones: a row has at most that many
    bool hasVariablePart = false;
    QList<JetColumn> columns;
    JetRowPointer ownedPages = 0; ///< usage map of the data pages

    /// RuntimeError DatabaseFailure if @p page is not a valid definition.
    static JetDefinition read(const JetPages &pages, quint32 page);

    /// The column of that name, ignoring case, or nullptr.
    const JetColumn *find(const QString &name) const;
};
