// The time to load the tables into memory against making the same texts from their bytes, and how it grows
// with the rows of a table.

#include "bench/measure.h"
#include "bench/programdata.h"
#include "tools/make_database/databasefile.h"
#include "tools/make_database/tablefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr double LoadTarget = 1.5; // pages, rows and cells are each read once on the way
constexpr double GrowthTarget = 1.1;
constexpr int ImpurityShifts = 2; // the step of `RMN1H`: ten columns, all rows in one list

/// All cells of the loaded tables, with one byte for each character as in the file.
QList<QList<QByteArray>> cells()
{
    QList<QList<QByteArray>> rows;
    DatabaseConnection connection;
    connection.Open(ProgramData::database(), u"Admin"_s, DatabasePassword);
    for (int step = TableCatalog::FirstStep; step <= ProgramData::LastLoaded; ++step) {
        const qsizetype columns = TableCatalog::columns(step).size();
        for (Recordset records(TableCatalog::statement(step), connection); !records.atEnd();
             records.moveNext()) {
            rows.append(QList<QByteArray>());
            for (int column = 0; column < columns; ++column)
                rows.last() << records.field(column).toLatin1();
        }
    }
    connection.Close();
    return rows;
}

/// The minimum: reads the file and makes a text for each cell.
qsizetype bareDecode(const QList<QList<QByteArray>> &cells)
{
    QFile file(ProgramData::database());
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(file.errorString().toStdString());
    const QByteArray bytes = file.readAll();
    QList<QStringList> rows;
    for (const QList<QByteArray> &row : cells) {
        rows.append(QStringList());
        for (const QByteArray &cell : row)
            rows.last() << QString::fromLatin1(cell);
    }
    return bytes.size() + rows.size();
}

/// Makes a database in @p folder with the rows of @p table, @p times over.
QString makeDatabase(const QTemporaryDir &folder, TableData table, int times)
{
    const QList<QStringList> rows = table.rows;
    for (int time = 1; time < times; ++time)
        table.rows += rows;
    QFile file(folder.filePath(u"%1.mdb"_s.arg(times)));
    const QByteArray bytes = DatabaseFile::make({table}, DatabasePassword);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error(file.errorString().toStdString());
    return file.fileName();
}

void growth(Measure &measure)
{
    const QTemporaryDir folder;
    TableRules rules;
    rules.name = TableCatalog::table(ImpurityShifts);
    rules.columns = TableCatalog::columns(ImpurityShifts) + QStringList{u"source"_s};
    const TableData table =
        TableFile::read(QStringLiteral(ALEMBRA_SOURCE "/data/tables/%1.tsv").arg(rules.name), rules);
    QList<Measure::Size> sizes;
    for (const int times : {1, 10, 100}) {
        const QString database = makeDatabase(folder, table, times);
        const int rows = times * int(table.rows.size());
        sizes << Measure::Size{rows, [=] {
                                   const auto data =
                                       ProgramData::load(database, ImpurityShifts, ImpurityShifts);
                                   if (data->lists.ListView4.rowCount() != rows)
                                       throw std::runtime_error("rows got lost");
                               }};
    }
    measure.growth(u"load of a table"_s, sizes, GrowthTarget);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return measureAll([](Measure &measure) {
        const auto rows = cells();
        measure.compare(
            u"load of the database / file and its texts"_s, [&] { bareDecode(rows); },
            [] { ProgramData::load(ProgramData::database()); }, LoadTarget);
        growth(measure);
    });
}
