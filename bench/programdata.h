#pragma once

#include "store/databaseconnection.h"
#include "store/databasepassword.h"
#include "store/datastore.h"
#include "store/loadtable.h"
#include "store/recordset.h"
#include "store/tablecatalog.h"

#include <stdexcept>

/// The data of the program, for measurements without its windows.
namespace ProgramData {

inline constexpr int LastLoaded = 31; ///< the last step that a start runs

inline QString database()
{
    return QStringLiteral(ALEMBRA_FOLDER "/Data/Database_uk.mdb");
}

/// Loads a database as the start of the program does.
inline std::unique_ptr<DataStore> load(const QString &database, int firstStep = TableCatalog::FirstStep,
                                       int lastStep = LastLoaded)
{
    DatabaseConnection connection;
    using namespace Qt::StringLiterals;
    connection.Open(database, u"Admin"_s, DatabasePassword);
    auto data = std::make_unique<DataStore>();
    TableLoader loader(
        *data, [&](const QString &statement) { return std::make_unique<Recordset>(statement, connection); },
        [] { throw std::runtime_error("a table is missing"); });
    for (loader.LoadCounter = firstStep; loader.LoadCounter <= lastStep; ++loader.LoadCounter)
        loader.LoadTable(TableCatalog::statement(loader.LoadCounter));
    connection.Close();
    return data;
}

/// Appends the rows of @p from to @p to, @p times over, with @p subItems sub-items each.
inline void multiply(const RowList &from, int times, int subItems, RowList &to)
{
    for (int row = 0; row < from.rowCount() * times; ++row) {
        to.append(from.text(row % from.rowCount()));
        for (int number = 1; number <= subItems; ++number)
            to.appendSubItem(from.subItem(row % from.rowCount(), number));
    }
}

} // namespace ProgramData
