#include "reports/reportpage.h"
#include "reports/reports.h"
#include "reports/reporttable.h"
#include "store/datastore.h"

namespace {

using HeadingBreak = ReportPage::HeadingBreak;

struct Section
{
    const char *heading;
    int list; ///< of `ListView2` or `ListView7`
    HeadingBreak lineBreak = HeadingBreak::GrayscaleOnly;
};

constexpr Section Constants[] = {
    {"Universal constants", 0, HeadingBreak::Always},
    {"Electromagnetic constants", 1, HeadingBreak::Always},
    {"Atomic / nuclear constants", 2},
    {"Physico-chemical constants", 3},
    {"Mathematical constants", 4},
};

constexpr Section Units[] = {
    {"SI units", 0},         {"Space / Time", 1},      {"Mecanical", 2},  {"Temperature / Heat", 3},
    {"Electromagnetism", 4}, {"Molecular physics", 5}, {"Radiations", 6},
};

} // namespace

void Reports::ConstantsAndUnits(ReportPage &page, const DataStore &data)
{
    const ReportTable constants{{{15, "Name"}, {15, "Symbol "}, {7, "Value "}, {13, "Units "}}};
    const ReportTable units{
        {{15, "Name"}, {15, "Unit "}, {7, "Symbol "}, {13, "Dimension "}, {13, "Dimension SI units "}}};
    page.ReportPreamble("Alembra - Constants and Units", "Constants and Units");
    for (const Section &section : Constants) {
        page.sectionHeading(section.heading, section.lineBreak);
        writeTable(page, data.lists.ListView2[section.list], constants);
    }
    for (const Section &section : Units) {
        page.sectionHeading(section.heading, section.lineBreak);
        writeTable(page, data.lists.ListView7[section.list], units);
    }
    page.end();
}
