// write_reports <program folder> <folder>: every report of the delivered database with all options on, in
// both themes, as "<report>-colors.htm" and "<report>-grayscale.htm".

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
#include <QDir>
#include <cstdio>

namespace {

struct Named
{
    const char *name;
    void (*write)(ReportPage &, const DataStore &);
};

constexpr Named All[] = {
    {"properties", Reports::Properties},
    {"miscibility", Reports::Miscibility},
    {"nmr", Reports::Nmr},
    {"masses", Reports::MassSpectrometry},
    {"drying", Reports::Drying},
    {"cooling", Reports::CoolingMixtures},
    {"ir", Reports::IrTable},
    {"elements", Reports::Elements},
    {"solutions", Reports::Solutions},
    {"biochemistry", Reports::Biochemistry},
    {"constants", Reports::ConstantsAndUnits},
};

void load(const QString &folder, DataStore &data)
{
    DatabaseConnection connection;
    connection.Open(folder + "/Data/Database_uk.mdb", "Admin", DatabasePassword);
    TableLoader loader(
        data, [&](const QString &statement) { return std::make_unique<Recordset>(statement, connection); },
        [] { throw RuntimeError(ErrorNumber::TableNotFound); });
    for (loader.LoadCounter = TableCatalog::FirstStep; loader.LoadCounter <= 31; ++loader.LoadCounter)
        loader.LoadTable(TableCatalog::statement(loader.LoadCounter));
    connection.Close();
}

void write(const QString &folder, const QString &to)
{
    DataStore data;
    load(folder, data);
    Module1 module;
    module.AppFolder = folder;
    for (const Slot slot :
         {Slot::ReportStructures, Slot::ReportElementPictures, Slot::ReportPolarityChart,
          Slot::ReportIsotopes, Slot::ReportGeneticCode, Slot::ReportSdsPage, Slot::ReportFluorochromes})
        module.OptionSlots(slot) = 1;
    for (const Named &report : All) {
        for (const int colours : {1, 0}) {
            module.OptionSlots(Slot::ReportColours) = colours;
            ReportPage page(module);
            report.write(page, data);
            QFile file(QStringLiteral("%1/%2-%3.htm").arg(to, report.name, colours ? "colors" : "grayscale"));
            if (!file.open(QIODevice::WriteOnly) || file.write(page.bytes()) != page.bytes().size())
                throw RuntimeError(ErrorNumber::PathAccess, file.fileName());
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: write_reports <program folder> <folder>\n", stderr);
        return 2;
    }
    try {
        write(arguments[1], arguments[2]);
    } catch (const RuntimeError &error) {
        std::fputs(qUtf8Printable(error.report() + '\n'), stderr);
        return 1;
    }
    return 0;
}
