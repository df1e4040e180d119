// How fast tables come from the database into memory, and whether the time for a row grows with the table:
//   database_load <database of the program> <folder of the table files>
// Loads the program's own database, then a database of one table with its rows once and a hundred times,
// which is near the largest that the build can make.

#include "store/databaseconnection.h"
#include "store/databasepassword.h"
#include "store/datastore.h"
#include "store/loadtable.h"
#include "store/recordset.h"
#include "store/tablecatalog.h"
#include "tools/make_database/databasefile.h"
#include "tools/make_database/tablefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <memory>
#include <numeric>
#include <stdexcept>

namespace {

constexpr int Runs = 15;
constexpr int LastLoaded = 31;    // the program's start loads no further
constexpr int ImpurityShifts = 2; // the step of `RMN1H`: ten columns, every row goes to one list
constexpr int Times = 100;

struct Load
{
    int rows = 0;
    double seconds = 0;
};

/// From the closed file to the rows in memory, as the start of the program does it.
Load load(const QString &database, int firstStep, int lastStep)
{
    QElapsedTimer timer;
    timer.start();
    DatabaseConnection connection;
    connection.Open(database, QStringLiteral("Admin"), DatabasePassword);
    const auto data = std::make_unique<DataStore>();
    TableLoader loader(
        *data, [&](const QString &statement) { return std::make_unique<Recordset>(statement, connection); },
        [] { throw std::runtime_error("a table is missing"); });
    for (loader.LoadCounter = firstStep; loader.LoadCounter <= lastStep; ++loader.LoadCounter)
        loader.LoadTable(TableCatalog::statement(loader.LoadCounter));
    connection.Close();
    const auto &rows = data->tallies.rows;
    return {std::accumulate(rows.cbegin(), rows.cend(), 0), double(timer.nsecsElapsed()) / 1e9};
}

/// The run with the median time.
Load median(const QString &database, int firstStep, int lastStep)
{
    QList<Load> runs;
    load(database, firstStep, lastStep); // warms the caches
    for (int run = 0; run < Runs; ++run)
        runs.append(load(database, firstStep, lastStep));
    std::sort(runs.begin(), runs.end(), [](const Load &a, const Load &b) { return a.seconds < b.seconds; });
    return runs[Runs / 2];
}

TableData readTable(const QDir &folder)
{
    TableRules rules;
    rules.name = TableCatalog::table(ImpurityShifts);
    rules.columns = TableCatalog::columns(ImpurityShifts) + QStringList{QStringLiteral("source")};
    return TableFile::read(folder.filePath(rules.name + QStringLiteral(".tsv")), rules);
}

/// A database in @p folder that holds the rows of @p table @p times over.
QString makeDatabase(const QTemporaryDir &folder, TableData table, int times)
{
    const QList<QStringList> rows = table.rows;
    for (int time = 1; time < times; ++time)
        table.rows += rows;
    QFile file(folder.filePath(QStringLiteral("%1.mdb").arg(times)));
    const QByteArray bytes = DatabaseFile::make({table}, DatabasePassword);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error(file.errorString().toStdString());
    return file.fileName();
}

void print(QTextStream &out, const QString &what, const Load &load)
{
    out << QStringLiteral("%1 %2 rows %3 ms %4 rows/s\n")
               .arg(what, -28)
               .arg(load.rows, 7)
               .arg(load.seconds * 1e3, 9, 'f', 2)
               .arg(load.rows / load.seconds, 9, 'f', 0);
}

void run(const QString &database, const QDir &tables)
{
    QTextStream out(stdout);
    const QTemporaryDir folder;
    const TableData table = readTable(tables);
    const Load whole = median(database, TableCatalog::FirstStep, LastLoaded);
    const Load once = median(makeDatabase(folder, table, 1), ImpurityShifts, ImpurityShifts);
    const Load often = median(makeDatabase(folder, table, Times), ImpurityShifts, ImpurityShifts);
    if (once.rows != table.rows.size() || often.rows != Times * once.rows)
        throw std::runtime_error("rows got lost");
    print(out, QStringLiteral("the program's database"), whole);
    print(out, table.name, once);
    print(out, table.name + QStringLiteral(", rows x %1").arg(Times), often);
    out << QStringLiteral("time for a row at x %1 to that at x 1: %2\n")
               .arg(Times)
               .arg(often.seconds / often.rows / (once.seconds / once.rows), 0, 'f', 2);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() != 3) {
        errors << "usage: database_load <database of the program> <folder of the table files>\n";
        return 2;
    }
    try {
        run(arguments[1], QDir(arguments[2]));
    } catch (const std::exception &error) {
        errors << error.what() << '\n';
        return 1;
    }
    return 0;
}
