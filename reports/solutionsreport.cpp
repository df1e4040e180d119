#include "reports/reportpage.h"
#include "reports/reports.h"
#include "reports/reporttable.h"
#include "store/datastore.h"

namespace {

const QList<ReportSection> &sections()
{
    static const ReportTable couples{
        {{30, "Acid/Base"}, {15, "Formula"}, {10, "pKa1"}, {10, "pKa2"}, {10, "pKa3"}, {10, "pKa4"}}};
    static const ReportTable indicators{{{30, "Name"}, {15, "pH"}, {30, "Colors"}}};
    static const QList<ReportSection> list{
        {"Couples - Acid/Base (inorganic)", ListView3<2>, couples},
        {"Couples - Acid/Base (organic)", ListView3<3>, couples},
        {"Couples - RedOx", ListView3<4>, {{{30, "Reaction"}, {20, "E° (V)"}}}},
        {"Colored indicators - Acid/Base (Merck)", ListView3<0>, indicators},
        {"Colored indicators - Acid/Base (Riedel deHaën)", ListView3<1>, indicators},
        {"Colored indicators - Fluorescence", ListView3<6>, indicators},
        {"Constants - Solubility of salts", ListView3<24>, {{{20, "Name"}, {20, "Formula"}, {15, "Ks"}}}},
        {"Constants - Formation of complexes", ListView3<25>, {{{20, "Equilibrium"}, {20, "Kd"}}}},
    };
    return list;
}

const QList<ReportSection> &fluorochromes()
{
    static const ReportTable table{{{40, "Name"}, {20, "lambda ex (nm)"}, {20, "lambda em (nm)"}}};
    static const QList<ReportSection> list{
        {"Fluorochroms (Carl-Zeiss)", ListView3<7>, table},
        {"Fluorochroms (Olympus)", ListView3<8>, table},
    };
    return list;
}

} // namespace

void Reports::Solutions(ReportPage &page, const DataStore &data)
{
    page.ReportPreamble("Solutions", "Solutions");
    for (const ReportSection &section : sections())
        writeSection(page, data.lists, section);
    if (page.isOn(Slot::ReportFluorochromes)) {
        for (const ReportSection &section : fluorochromes())
            writeSection(page, data.lists, section);
    }
    page.end();
}
