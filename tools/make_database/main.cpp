// Makes the database that the program ships from the reviewable table files:
//   make_database <folder of the table files> <database>
// A table file is "<table>.tsv"; its columns are those of the schema and, last, `source`. In case of an
// error, nothing is written, "<file>:<line>: <message>" goes to standard error, and the status is 1.

#include "store/databasepassword.h"
#include "store/tablecatalog.h"
#include "tools/make_database/databasefile.h"
#include "tools/make_database/tablefile.h"
#include "tools/tables/builderror.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

// Reports are in Windows-1252; chart names are the only texts that no report prints.
bool isNeverPrinted(const QString &table)
{
    return table == "RMN1Hspectro"_L1 || table == "RMN13Cspectro"_L1;
}

QList<TableData> readTables(const QDir &folder)
{
    QList<TableData> tables;
    QStringList files;
    for (int step = TableCatalog::FirstStep; step <= TableCatalog::LastStep; ++step) {
        TableRules rules;
        rules.name = TableCatalog::table(step);
        rules.columns = TableCatalog::columns(step) + QStringList{u"source"_s};
        rules.rows = TableCatalog::rowCount(step);
        rules.anyCharacters = isNeverPrinted(rules.name);
        files.append(rules.name + u".tsv"_s);
        tables.append(TableFile::read(folder.filePath(files.last()), rules));
    }
    // Catches misspelt file names.
    for (const QString &file : folder.entryList(QDir::Files)) {
        if (!files.contains(file))
            throw BuildError(folder.filePath(file), 1, u"no table of the program"_s);
    }
    return tables;
}

void write(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw BuildError(u"%1: %2"_s.arg(path, file.errorString()));
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream errors(stderr);
    if (arguments.size() != 3) {
        errors << "usage: make_database <folder of the table files> <database>\n";
        return 2;
    }
    try {
        write(arguments[2], DatabaseFile::make(readTables(QDir(arguments[1])), DatabasePassword));
    } catch (const BuildError &error) {
        errors << error.what() << '\n';
        return 1;
    }
    return 0;
}
