// The time to make and save the largest report against saving its bytes, and how it grows with the rows.

#include "bench/measure.h"
#include "bench/programdata.h"
#include "core/module1.h"
#include "reports/reportpage.h"
#include "reports/reports.h"

#include <QFile>
#include <QTemporaryDir>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr double SaveTarget = 4;
constexpr double GrowthTarget = 1.1;
constexpr int Lists[] = {0, 1, 2, 3, 4, 6, 7, 8, 24, 25}; // of `ListView3`, those of the report
constexpr int SubItems = 5;

int multiply(const DataStore &data, int times, DataStore &to)
{
    int rows = 0;
    for (const int index : Lists) {
        ProgramData::multiply(data.lists.ListView3[index], times, SubItems, to.lists.ListView3[index]);
        rows += to.lists.ListView3[index].rowCount();
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
    QFile file(folder.filePath(u"report.htm"_s));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        throw std::runtime_error(file.errorString().toStdString());
}

} // namespace

int main()
{
    return measureAll([](Measure &measure) {
        const auto data = ProgramData::load(ProgramData::database());
        const QTemporaryDir folder;
        std::array<DataStore, 3> stores;
        QList<Measure::Size> sizes;
        int times = 1;
        for (DataStore &store : stores) {
            const int rows = multiply(*data, times, store);
            sizes << Measure::Size{rows, [&store, &folder] { save(report(store), folder); }};
            times *= 10;
        }
        const QByteArray bytes = report(stores[0]);
        measure.compare(
            u"report of the solutions / saving its bytes"_s, [&] { save(bytes, folder); }, sizes[0].action,
            SaveTarget);
        measure.growth(u"report"_s, sizes, GrowthTarget);
    });
}
