#include "reports/reportpage.h"
#include "reports/reports.h"
#include "reports/reporttable.h"
#include "store/datastore.h"

namespace {

const QList<ReportSection> &biomolecules()
{
    static const ReportTable bases{{{15, "Name"},
                                    {10, "Formula "},
                                    {13, "Molar mass (g/mol) "},
                                    {6, "pK1"},
                                    {6, "pK2"},
                                    {6, "pK3"},
                                    {13, "Solubility (g/kg)"}}};
    static const QList<ReportSection> list{
        {"Biomolecules - Natural amino acids",
         ListView3<9>,
         {{{10, "Name"},
           {7, "Code "},
           {10, "Formula "},
           {13, "Molar mass (g/mol) "},
           {10, "Melting point (°C)"},
           {7, "pKa"},
           {7, "pKb"},
           {7, "pKc"},
           {13, "Isoelectric point"},
           {13, "Solubility (g/kg)"}}}},
        {"Biomolecules - Synthetic amino acids",
         ListView3<10>,
         {{{15, "Name"},
           {10, "Formula "},
           {13, "Molar mass (g/mol) "},
           {10, "Melting point (°C)"},
           {6, "pKa"},
           {6, "pKb"},
           {6, "pKc"},
           {6, "pKd"},
           {13, "Isoelectric point"},
           {13, "Solubility (g/kg)"}}}},
        {"Biomolecules - Nitrogen bases (Pyrimidines)", ListView3<11>, bases},
        {"Biomolecules - Nitrogen bases (Purines)", ListView3<13>, bases},
        {"Biomolecules - Carbohydrates",
         ListView3<14>,
         {{{13, "Name"}, {8, "Symbol "}, {20, "Systematic name"}}}},
        {"Biomolecules - Fatty acids",
         ListView3<12>,
         {{{13, "Name"},
           {20, "Systematic name"},
           {8, "Formula"},
           {12, "Molar mass (g/mol)"},
           {7, "Melting point (°C)"},
           {10, "Solubility (%)"}}}},
    };
    return list;
}

// Rows without values are titles of recipes; the others are ingredients and indented. The last resolving gel
// is titled 10 % like the third. Intended.
QList<ReportSection> sdsPage(ReportTheme theme)
{
    static const ReportTable staining{
        {{40, "Composition"}, {30, "Final concentration"}, {30, "Quantity"}}, lacksText, lacks<1, 2>};
    const char *proteins = theme == ReportTheme::Colors ? "Proteines" : "Proteins";
    return {
        {"SDS-PAGE - Separation domain",
         ListView3<17>,
         {{{40, "Separation domain (kDa)"}, {40, "% Acrylamide (resolving gel)"}}}},
        {"SDS-PAGE - Protein standards",
         ListView3<18>,
         {{{40, "Kit"}, {40, proteins}, {20, "MW (kDa)"}}, lacks<2>}},
        {"SDS-PAGE - Stock solutions",
         ListView3<21>,
         {{{50, "Name"}, {30, "Final concentration"}, {30, "Quantity"}}, lacksText, lacks<1, 2>}},
        {"SDS-PAGE - Resolving gel",
         ListView3<22>,
         {{{25, "Composition"}, {15, "5 %"}, {15, "7.5 %"}, {15, "10 %"}, {15, "12.5 %"}, {15, "10 %"}},
          lacksText,
          lacks<1, 2>}},
        {"SDS-PAGE - Stacking gel", ListView3<23>, {{{40, "Composition"}, {40, "4 %"}}, lacksText, lacks<1>}},
        {"SDS-PAGE - Staining (Coomassie blue)", ListView3<19>, staining},
        {"SDS-PAGE - Staining (Silver)", ListView3<20>, staining},
    };
}

} // namespace

void Reports::Biochemistry(ReportPage &page, const DataStore &data)
{
    page.ReportPreamble("Biochemistry", "Biochemistry");
    for (const ReportSection &section : biomolecules())
        writeSection(page, data.lists, section);
    if (page.isOn(Slot::ReportSdsPage)) {
        for (const ReportSection &section : sdsPage(page.theme()))
            writeSection(page, data.lists, section);
    }
    if (page.isOn(Slot::ReportGeneticCode)) {
        const QString wheel = page.byTheme(R"(\Data\img\gene_c.jpg)", R"(\Data\img\gene_ng.jpg)");
        page.line(R"(<br><div align="center"><img src=)" + page.imageSource(wheel) + "><br><br>");
        page.line(R"(<hr width="100%" noshade size="1"></div>)");
    }
    page.end();
}
