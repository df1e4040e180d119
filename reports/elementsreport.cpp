#include "reports/reportpage.h"
#include "reports/reports.h"
#include "reports/reporttable.h"
#include "store/datastore.h"

namespace {

constexpr int LastElement = 117;         // always
constexpr int FirstWithoutPicture = 106; // elements from here on share its picture

struct ElementReportColumn
{
    ReportColumn title;
    int column; ///< of `ElementData`
};

constexpr ElementReportColumn Columns[] = {
    {{7, "Elements "}, 0},
    {{4, "Symbol "}, 1},
    {{7, "Atomic number "}, 2},
    {{7, "Atomic mass (ua) "}, 3},
    {{7, "Electronic configuration "}, 4},
    {{5, "Density "}, 5},
    {{7, "Electronegativity "}, 8},
    {{7, "Covalent / metallic / Van der Waals (A) radius"}, 10},
    {{7, "Oxydation number "}, 11},
    {{7, "1st Ionization potential (eV) "}, 9},
    {{7, "Melting point (°C) "}, 6},
    {{7, "Boiling point (°C) "}, 7},
    {{7, "Family "}, 13},
    {{5, "State "}, 12},
    {{7, "Crystal structure "}, 14},
};

/// A cell of an element; @p element is its atomic number.
const QString &cellOf(const DataStore &data, int element, int column)
{
    return data.tables.ElementData(element - 1, column);
}

QString picture(const DataStore &data, int element)
{
    const QString number = element < FirstWithoutPicture ? cellOf(data, element, ElementColumn::AtomicNumber)
                                                         : QString::number(FirstWithoutPicture);
    return R"(\Data\elements\)" + number + ".jpg";
}

void writeElements(ReportPage &page, const DataStore &data)
{
    const bool pictures = page.isOn(Slot::ReportElementPictures);
    QStringList head;
    for (const ElementReportColumn &column : Columns)
        head << titleCell(column.title);
    if (pictures)
        head << R"(<td width="7%"><div align="center"><b>Picture</b></div></td>)";
    page.openTable(head);
    for (int element = 1; element <= LastElement; ++element) {
        page.startRow();
        for (const ElementReportColumn &column : Columns)
            page.cell(cellOf(data, element, column.column));
        if (pictures)
            page.cell(R"(<div align="center"><img src=)" + page.imageSource(picture(data, element)) +
                      "></div>");
        page.endRow();
    }
    page.closeTable();
}

// Isotope, half-life and decay modes, the last with letters of the Symbol typeface.
void isotopeCells(ReportPage &page, const DataStore &data, int element, int column)
{
    page.cell(cellOf(data, element, column));
    page.cell(cellOf(data, element, column + 1));
    page.cell("<span style='font-family:Symbol'>" + cellOf(data, element, column + 2) + "</span>");
}

// The next row closes the first row of an element. An empty column always follows the last isotope.
void writeIsotopesOf(ReportPage &page, const DataStore &data, int element)
{
    int column = ElementColumn::FirstIsotope;
    if (cellOf(data, element, column).isEmpty())
        return;
    page.startRow();
    page.cell(cellOf(data, element, ElementColumn::Name));
    isotopeCells(page, data, element, column);
    for (column += 3; !cellOf(data, element, column).isEmpty(); column += 3) {
        page.startRow();
        page.cell({});
        isotopeCells(page, data, element, column);
        page.endRow();
    }
}

void writeIsotopes(ReportPage &page, const DataStore &data)
{
    page.line("<table border=0 cellspacing=0 cellpadding=5 width=99% align=Center>");
    page.headerRow(titleCells({{7, "Elements "},
                               {7, "Atomic number of the isotope "},
                               {7, "Half-life time "},
                               {7, "Decomposition mode(s) "}}));
    for (int element = 1; element <= LastElement; ++element)
        writeIsotopesOf(page, data, element);
    page.closeTable();
}

} // namespace

void Reports::Elements(ReportPage &page, const DataStore &data)
{
    page.ReportPreamble("Alembra - Elements", "Elements");
    writeElements(page, data);
    if (page.isOn(Slot::ReportIsotopes))
        writeIsotopes(page, data);
    page.end();
}
