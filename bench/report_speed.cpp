// How fast the largest report is made and saved, beside saving its bytes alone, and whether the time for a
// row grows with the report:
//   report_speed <database of the program>
// Writes the report of the solutions from the program's own database, then from its rows a hundred times
// over.

#include "core/module1.h"
#include "reports/reportpage.h"
#include "reports/reports.h"
#include "store/databaseconnection.h"
#include "store/databasepassword.h"
#include "store/datastore.h"
#include "store/loadtable.h"
#include "store/recordset.h"
#include "store/tablecatalog.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <functional>
#include <memory>
#include <stdexcept>

namespace {

constexpr int Runs = 15;
constexpr int LastLoaded = 31; // the program's start loads no further
constexpr int Times = 100;
constexpr int Lists[] = {0, 1, 2, 3, 4, 6, 7, 8, 24, 25}; // of `ListView3`, those of the report
constexpr int SubItems = 5;

void load(const QString &database, DataStore &data)
{
    DatabaseConnection connection;
    connection.Open(database, QStringLiteral("Admin"), DatabasePassword);
    TableLoader loader(
        data, [&](const QString &statement) { return std::make_unique<Recordset>(statement, connection); },
        [] { throw std::runtime_error("a table is missing"); });
    for (loader.LoadCounter = TableCatalog::FirstStep; loader.LoadCounter <= LastLoaded; ++loader.LoadCounter)
        loader.LoadTable(TableCatalog::statement(loader.LoadCounter));
    connection.Close();
}

/// Fills the lists of the report with the rows of @p data @p times over. The number of rows.
int multiply(const DataStore &data, int times, DataStore &to)
{
    int rows = 0;
    for (const int index : Lists) {
        const RowList &from = data.lists.ListView3[index];
        RowList &list = to.lists.ListView3[index];
        for (int row = 0; row < from.rowCount() * times; ++row, ++rows) {
            list.append(from.text(row % from.rowCount()));
            for (int number = 1; number <= SubItems; ++number)
                list.appendSubItem(from.subItem(row % from.rowCount(), number));
        }
    }
    return rows;
}

QByteArray report(const DataStore &data)
{
    Module1 module;
    module.OptionSlots(Slot::ReportFluorochromes) = 1;
    ReportPage page(module);
    Reports::Solutions(page, data);
    return page.bytes();
}

void save(const QByteArray &bytes, const QTemporaryDir &folder)
{
    QFile file(folder.filePath(QStringLiteral("report.htm")));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        throw std::runtime_error(file.errorString().toStdString());
}

/// Seconds, the median of the runs.
double median(const std::function<void()> &step)
{
    QList<double> seconds;
    step(); // warms the caches
    for (int run = 0; run < Runs; ++run) {
        QElapsedTimer timer;
        timer.start();
        step();
        seconds.append(double(timer.nsecsElapsed()) / 1e9);
    }
    std::sort(seconds.begin(), seconds.end());
    return seconds[Runs / 2];
}

/// Seconds for a row.
double measure(QTextStream &out, const DataStore &data, int times)
{
    const QTemporaryDir folder;
    DataStore multiplied;
    const int rows = multiply(data, times, multiplied);
    const QByteArray bytes = report(multiplied);
    const double whole = median([&] { save(report(multiplied), folder); });
    const double alone = median([&] { save(bytes, folder); });
    out << QStringLiteral("report of %1 rows, %2 kB: %3 ms, %4 MB/s; its bytes alone %5 ms, ratio %6\n")
               .arg(rows)
               .arg(bytes.size() / 1000)
               .arg(whole * 1e3, 0, 'f', 2)
               .arg(double(bytes.size()) / whole / 1e6, 0, 'f', 0)
               .arg(alone * 1e3, 0, 'f', 2)
               .arg(whole / alone, 0, 'f', 1);
    return whole / rows;
}

void run(const QString &database)
{
    QTextStream out(stdout);
    const auto data = std::make_unique<DataStore>();
    load(database, *data);
    const double once = measure(out, *data, 1);
    const double often = measure(out, *data, Times);
    out << QStringLiteral("time for a row at x %1 to that at x 1: %2\n")
               .arg(Times)
               .arg(often / once, 0, 'f', 2);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() != 2) {
        errors << "usage: report_speed <database of the program>\n";
        return 2;
    }
    try {
        run(arguments[1]);
    } catch (const std::exception &error) {
        errors << error.what() << '\n';
        return 1;
    }
    return 0;
}
