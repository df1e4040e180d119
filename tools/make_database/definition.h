#pragma once

#include "store/jet/jetformat.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// The contents of a definition page: columns, indexes and the places of the usage maps.
struct TableLayout
{
    struct Column
    {
        QString name;
        Jet::Type type;
        quint16 number;
        quint16 variableIndex; ///< of a fixed column: number of variable columns before it
        quint16 fixedOffset;
        quint8 flags;
        quint8 extendedFlags;
        quint16 length; ///< in bytes, 0 for a Boolean's and a long value's
    };

    struct Index
    {
        QList<int> columns; ///< column numbers, all ascending
        quint8 flags;
        quint32 rootPage;
        quint32 usageMap;
        quint32 distinctKeys = 0;
    };

    struct IndexName
    {
        QString name;
        int number; ///< of the name and of its index in `indexes`
        bool isPrimaryKey;
    };

    struct LongColumn
    {
        quint16 number;
        quint32 ownedPages;
        quint32 freePages;
    };

    quint8 kind = 'N'; ///< 'N' a user's table, 'S' a system table
    quint32 rowCount = 0;
    quint32 ownedPages = 0; ///< row pointer of a usage map, like the others below
    quint32 freePages = 0;
    QList<Column> columns; ///< in the order of the entries
    QList<Index> indexes;
    QList<IndexName> indexNames;
    QList<LongColumn> longColumns;

    /// A table of text columns without an index, so that rows keep their stored order.
    static TableLayout ofTexts(const QStringList &columns, quint32 rowCount, quint32 usageMapPage);

    /// BuildError if the definition needs more than this one page.
    QByteArray page() const;
};
