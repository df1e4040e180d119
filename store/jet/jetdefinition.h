#pragma once

#include "store/jet/jetpages.h"

#include <QList>
#include <QString>

struct JetColumn
{
    QString name;
    Jet::Type type = Jet::Type::Text;
    int number = 0;        ///< its bit in the null mask of a row
    bool isFixed = false;  ///< decides where the value stands in a row, whatever the type
    int variableIndex = 0; ///< of a variable column
    int fixedOffset = 0;   ///< of a fixed column, in bytes behind the column count of a row
    int length = 0;        ///< of a fixed column, in bytes
    bool mayBePacked = false;
    int scale = 0; ///< of a Decimal: digits behind the point
};

/// A table as its definition page tells.
struct JetDefinition
{
    quint32 page = 0;
    quint32 rowCount = 0;
    int columnsEver = 0; ///< with those that were removed: an upper bound of the columns in a row
    bool hasVariablePart = false;
    QList<JetColumn> columns;
    JetRowPointer ownedPages = 0; ///< usage map of the data pages

    /// RuntimeError DatabaseFailure if @p page is no sound definition.
    static JetDefinition read(const JetPages &pages, quint32 page);

    /// The column of that name, compared without case, or nullptr.
    const JetColumn *find(const QString &name) const;
};
