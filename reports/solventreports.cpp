#include "reports/reportpage.h"
#include "reports/reports.h"
#include "reports/reporttable.h"
#include "store/datastore.h"

namespace {

constexpr const char *Solvents = "Solvents - ";
constexpr const char *Nowrap = " nowrap";

QString structureCell(const ReportPage &page, const QString &solvent)
{
    static const QStringList mixtures{"Petroleum ether (60-80 °C)", "Petroleum ether (30-40 °C)",
                                      "Petroleum ether (50-70 °C)", "Petroleum ether (40-60 °C)"};
    if (mixtures.contains(solvent))
        return R"(<td bgcolor="#FFFFFF" align=center><font color=black><b>Image unavailable</b></font></td>)";
    return R"(<td bgcolor="#FFFFFF"><div align="center"><img src=)" +
           page.imageSource(R"(\Data\chemicals\)" + solvent + ".bmp") + "></div></td>";
}

// The shift columns are the same for both nuclei.
QStringList shiftTitles(const QList<ReportColumn> &first)
{
    return titleCells(first) + titleCells({{10, "Chloroform "},
                                           {10, "Acetone "},
                                           {10, "DMSO "},
                                           {10, "Benzene "},
                                           {10, "Acetonitrile "},
                                           {10, "Methanol "},
                                           {10, "Water "}});
}

} // namespace

void Reports::Properties(ReportPage &page, const DataStore &data)
{
    const RowList &list = data.lists.ListView1;
    const bool structures = page.isOn(Slot::ReportStructures);
    QStringList head = titleCells({{15, "Name"}, {12, "Molar mass (g/mol) "}});
    head << titleCell({12, "Volumic mass (kg/L) "}, Nowrap);
    head << titleCells({{14, "Melting point (°C) "},
                        {14, "Boiling point (°C) "},
                        {11, "Reractive index "},
                        {12, "CAS number"}});
    if (structures)
        head << R"(<td width="11%"><div align="center"><b>Chemical structure</b></div></td>)";

    page.ReportPreamble("Alembra - Solvents - Properties", Solvents, "Properties");
    page.openTable(head);
    for (int row = 0; row < list.rowCount(); ++row) {
        page.startRow();
        page.cell(list.cell(row, 0));
        page.cell(list.cell(row, 1));
        page.line("<td nowrap>" + list.subItem(row, 2) + "</td>");
        for (int number = 3; number <= 6; ++number)
            page.cell(list.cell(row, number));
        if (structures)
            page.line(structureCell(page, list.text(row)));
        page.endRow();
    }
    page.closeTable();
    page.end();
}

void Reports::Miscibility(ReportPage &page, const DataStore &data)
{
    QStringList head = titleCells({{12, "Name"}, {12, "Polarity index "}});
    head << titleCell({12, "Miscibility in water (wt%/%) "}, Nowrap) << titleCell({12, "Non-miscible "});
    page.ReportPreamble("Alembra - Solvents - Miscibility and Polarity", Solvents,
                        "Miscibility and Polarity");
    writeTable(page, data.lists.ListView6, {head, 3, lacks<3>});
    if (page.isOn(Slot::ReportPolarityChart)) {
        const QString chart = page.byTheme(R"(\Data\img\polarite_c.jpg)", R"(\Data\img\polarite_ng.jpg)");
        page.line(R"(<div align="center"><img src=)" + page.imageSource(chart) +
                  R"( width="313" height="441"><br>)");
        page.line(R"(<hr width="100%" noshade size="1"></div>)");
    }
    page.end();
}

// Two words are French in Grayscale. Intended.
void Reports::Nmr(ReportPage &page, const DataStore &data)
{
    const bool colours = page.theme() == ReportTheme::Colors;
    page.ReportPreamble("Alembra - Solvents - NMR", Solvents, "1H and 13C NMR");
    page.sectionHeading("1H NMR");
    writeTable(page, data.lists.ListView4,
               {shiftTitles({{15, "Name"}, {8, "Proton "}, {8, "Peak "}}), 9, lacks<1>});
    page.sectionHeading(colours ? "13C NMR" : "13C RMN");
    writeTable(page, data.lists.ListView5,
               {shiftTitles({{15, colours ? "Name" : "Nom"}, {8, "Carbon "}}), 8, lacks<1>});
    page.end();
}

void Reports::MassSpectrometry(ReportPage &page, const DataStore &data)
{
    const QStringList head{titleCell({20, "Name"}),
                           R"(<td colspan="10" align=center><b>e/m (intensity)</b></td>)"};
    page.ReportPreamble("Alembra - Solvents - Mass spectrometry", Solvents, "Mass spectrometry");
    page.emptySectionHeading();
    writeTable(page, data.lists.ListView3[26], {head, 10, lacks<1>});
    page.end();
}

void Reports::Drying(ReportPage &page, const DataStore &data)
{
    page.ReportPreamble("Alembra - Solvents - Drying", Solvents, "Drying");
    writeTable(page, data.lists.ListView8, {{{50, "Name"}, {50, "Drying agent "}}, lacks<1>});
    page.end();
}

void Reports::CoolingMixtures(ReportPage &page, const DataStore &data)
{
    page.ReportPreamble("Alembra - Solvents - Cooling mixtures", Solvents, "Cooling mixtures");
    writeTable(page, data.lists.ListView9, {{{50, "Mixture"}, {50, "Temperature (°C) "}}, lacks<1>});
    page.end();
}

void Reports::IrTable(ReportPage &page, const DataStore &data)
{
    page.ReportPreamble("Alembra - IR - Table", "IR - ", "Table");
    writeTable(page, data.lists.ListView3[27],
               {{{30, "Functional group"}, {35, "Bond  "}, {35, "Frequency (cm-1)"}}, lacks<1>});
    page.end();
}
