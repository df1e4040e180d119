#include "writtenreport.h"

#include <QRegularExpression>
#include <QTest>

using namespace ExpectedPage;

/// The reports of elements, solutions, biochemistry, constants and units, each as a whole file.
class ReportsTest final : public WrittenReport
{
    Q_OBJECT

private Q_SLOTS:
    void init() { renew(); }
    void elementsWithIsotopes();
    void elementsAlone();
    void solutionsInColours();
    void solutionsWithoutFluorochromes();
    void biochemistryInColours();
    void biochemistryTheOtherWay();
    void constantsAndUnits_data();
    void constantsAndUnits();
    void rowClassRunsOnFromReportToReport();
    void charactersOutsideTheCodePageBecomeQuestionMarks();
};

// Hydrogen and element 117 are the ends of the report. Rows without data stand in it like any other.
void ReportsTest::elementsWithIsotopes()
{
    auto &table = m_data->tables.ElementData;
    for (int column = 0; column < 15; ++column)
        table(0, column) = QString("c%1").arg(column);
    for (int element = 1; element <= 118; ++element)
        table(element - 1, 2) = QString::number(element);
    const QStringList isotopes{"2", "stable", "-", "3", "12.3 y", "b-", "4", "",
                               "n", "5",      "",  "",  "6",      "x",  "y"};
    for (int i = 0; i < isotopes.size(); ++i)
        table(0, 15 + i) = isotopes[i];
    table(116, 15) = "294";
    table(117, 0) = "not written";
    table(117, 15) = "not written";
    turnOn(Slot::ReportColours);
    turnOn(Slot::ReportElementPictures);
    turnOn(Slot::ReportIsotopes);

    const auto pictured = [](int element, const QString &cells, const QString &picture) {
        QString lines = row(element % 2 ? "teven" : "tnoteven", cells + "|@");
        return lines.replace(
            "@", R"(<div align="center"><img src=file:////opt/my%20lab/Alembra%20uk\Data\elements\)" +
                     picture + ".jpg></div>");
    };
    QString rows = pictured(1, "c0|c1|1|c3|c4|c5|c8|c10|c11|c9|c6|c7|c13|c12|c14", "1");
    for (int element = 2; element <= 117; ++element)
        rows +=
            pictured(element, QString("||%1||||||||||||").arg(element), QString::number(qMin(element, 106)));

    COMPARE_PAGES(
        written(Reports::Elements),
        colors("Alembra - Elements", "Elements") +
            head("7 Elements |4 Symbol |7 Atomic number |7 Atomic mass (ua) |7 Electronic configuration |"
                 "5 Density |7 Electronegativity |7 Covalent / metallic / Van der Waals (A) radius|"
                 "7 Oxydation number |7 1st Ionization potential (eV) |7 Melting point (°C) |"
                 "7 Boiling point (°C) |7 Family |5 State |7 Crystal structure ") +
            "<td width=\"7%\"><div align=\"center\"><b>Picture</b></div></td>\n" + rows + TableEnd +
            R"(<table border=0 cellspacing=0 cellpadding=5 width=99% align=Center>
<tr class=theader>
<td width="7%"><b>Elements </b></td>
<td width="7%"><b>Atomic number of the isotope </b></td>
<td width="7%"><b>Half-life time </b></td>
<td width="7%"><b>Decomposition mode(s) </b></td>
</tr>
<tr class=tnoteven>
<td>c0</td>
<td>2</td>
<td>stable</td>
<td><span style='font-family:Symbol'>-</span></td>
</tr>
<tr class=teven>
<td></td>
<td>3</td>
<td>12.3 y</td>
<td><span style='font-family:Symbol'>b-</span></td>
</tr>
</tr>
<tr class=tnoteven>
<td></td>
<td>4</td>
<td></td>
<td><span style='font-family:Symbol'>n</span></td>
</tr>
</tr>
<tr class=teven>
<td></td>
<td>5</td>
<td></td>
<td><span style='font-family:Symbol'></span></td>
</tr>
</tr>
<tr class=tnoteven>
<td></td>
<td>6</td>
<td>x</td>
<td><span style='font-family:Symbol'>y</span></td>
</tr>
</tr>
<tr class=teven>
<td></td>
<td>294</td>
<td></td>
<td><span style='font-family:Symbol'></span></td>
</table>
<hr width="100%" noshade size="1">
</body></html>
)");
}

void ReportsTest::elementsAlone()
{
    const QByteArray page = written(Reports::Elements);
    QCOMPARE(page.count("<tr class=teven>") + page.count("<tr class=tnoteven>"), 117);
    QCOMPARE(page.count("<table class=tmaintable"), 1);
    QVERIFY(!page.contains("<img") && !page.contains("Picture") && !page.contains("Symbol'"));
    QVERIFY(page.endsWith("</table>\r\n<hr width=\"100%\" noshade size=\"1\">\r\n</body></html>\r\n"));
}

void ReportsTest::solutionsInColours()
{
    for (const int list : {0, 1, 2, 3, 4, 6, 7, 8, 24, 25})
        add(m_data->lists.ListView3[list], QString("L%1|1|2|3|4|5|6").arg(list));
    turnOn(Slot::ReportColours);
    turnOn(Slot::ReportFluorochromes);
    const QString couples = "30 Acid/Base|15 Formula|10 pKa1|10 pKa2|10 pKa3|10 pKa4";
    const QString indicators = "30 Name|15 pH|30 Colors";
    const QString fluorochromes = "40 Name|20 lambda ex (nm)|20 lambda em (nm)";

    QString page = colors("Solutions", "Solutions");
    page += section("Couples - Acid/Base (inorganic)", couples, row("teven", "L2|1|2|3|4|5"));
    page += section("Couples - Acid/Base (organic)", couples, row("tnoteven", "L3|1|2|3|4|5"));
    page += section("Couples - RedOx", "30 Reaction|20 E° (V)", row("teven", "L4|1"));
    page += section("Colored indicators - Acid/Base (Merck)", indicators, row("tnoteven", "L0|1|2"));
    page += section("Colored indicators - Acid/Base (Riedel deHaën)", indicators, row("teven", "L1|1|2"));
    page += section("Colored indicators - Fluorescence", indicators, row("tnoteven", "L6|1|2"));
    page += section("Constants - Solubility of salts", "20 Name|20 Formula|15 Ks", row("teven", "L24|1|2"));
    page += section("Constants - Formation of complexes", "20 Equilibrium|20 Kd", row("tnoteven", "L25|1"));
    page += section("Fluorochroms (Carl-Zeiss)", fluorochromes, row("teven", "L7|1|2"));
    page += section("Fluorochroms (Olympus)", fluorochromes, row("tnoteven", "L8|1|2"));
    COMPARE_PAGES(written(Reports::Solutions), page + End);
}

void ReportsTest::solutionsWithoutFluorochromes()
{
    const QByteArray page = written(Reports::Solutions);
    QVERIFY(page.endsWith(file(grayHeading("Constants - Formation of complexes<br>") +
                               head("20 Equilibrium|20 Kd") + TableEnd + End)));
    QVERIFY(!page.contains("Fluorochroms"));
}

void ReportsTest::biochemistryInColours()
{
    auto &lists = m_data->lists.ListView3;
    for (const int list : {9, 10, 11, 12, 13, 14, 17})
        add(lists[list], QString("L%1|1|2|3|4|5|6|7|8|9|not written").arg(list));
    add(lists[18], "Kit||");
    add(lists[18], "A protein|of its own|");
    add(lists[18], "|Myosin|200");
    add(lists[21], "Buffer||");
    add(lists[21], "|with values|but no name");
    add(lists[21], "Tris|1 M|");
    add(lists[22], "Gel|||3");
    add(lists[22], "Water||4.1|3|2|1");
    add(lists[23], "Gel|");
    add(lists[23], "Water|6.1");
    for (const int staining : {19, 20}) {
        add(lists[staining], "|");
        add(lists[staining], QString("Fix %1").arg(staining));
        add(lists[staining], "Ethanol||50 mL");
    }
    add(lists[20], "Acid|1 %|");
    turnOn(Slot::ReportColours);
    turnOn(Slot::ReportSdsPage);
    turnOn(Slot::ReportGeneticCode);
    const QString bases = "15 Name|10 Formula |13 Molar mass (g/mol) |6 pK1|6 pK2|6 pK3|13 Solubility (g/kg)";
    const QString staining = "40 Composition|30 Final concentration|30 Quantity";
    const auto indented = [](const QString &cells, const QString &rowClass = "tnoteven") {
        return row(rowClass, "@" + cells)
            .replace(QRegularExpression("@([^<]*)"), "<span style=margin-left:30px;>\\1</span>");
    };

    QString page = colors("Biochemistry", "Biochemistry");
    page +=
        section("Biomolecules - Natural amino acids",
                "10 Name|7 Code |10 Formula |13 Molar mass (g/mol) |10 Melting point (°C)|7 pKa|7 pKb|7 pKc|"
                "13 Isoelectric point|13 Solubility (g/kg)",
                row("teven", "L9|1|2|3|4|5|6|7|8|9"));
    page +=
        section("Biomolecules - Synthetic amino acids",
                "15 Name|10 Formula |13 Molar mass (g/mol) |10 Melting point (°C)|6 pKa|6 pKb|6 pKc|6 pKd|"
                "13 Isoelectric point|13 Solubility (g/kg)",
                row("tnoteven", "L10|1|2|3|4|5|6|7|8|9"));
    page += section("Biomolecules - Nitrogen bases (Pyrimidines)", bases, row("teven", "L11|1|2|3|4|5|6"));
    page += section("Biomolecules - Nitrogen bases (Purines)", bases, row("tnoteven", "L13|1|2|3|4|5|6"));
    page += section("Biomolecules - Carbohydrates", "13 Name|8 Symbol |20 Systematic name",
                    row("teven", "L14|1|2"));
    page += section("Biomolecules - Fatty acids",
                    "13 Name|20 Systematic name|8 Formula|12 Molar mass (g/mol)|7 Melting point (°C)|"
                    "10 Solubility (%)",
                    row("tnoteven", "L12|1|2|3|4|5"));
    page += section("SDS-PAGE - Separation domain",
                    "40 Separation domain (kDa)|40 % Acrylamide (resolving gel)", row("teven", "L17|1"));
    page += section("SDS-PAGE - Protein standards", "40 Kit|40 Proteines|20 MW (kDa)",
                    row("tnoteven", "|Myosin|200"));
    page += section("SDS-PAGE - Stock solutions", "50 Name|30 Final concentration|30 Quantity",
                    row("teven", "Buffer||") + indented("Tris|1 M|"));
    page += section("SDS-PAGE - Resolving gel", "25 Composition|15 5 %|15 7.5 %|15 10 %|15 12.5 %|15 10 %",
                    row("teven", "Gel|||3||") + indented("Water||4.1|3|2|1"));
    page += section("SDS-PAGE - Stacking gel", "40 Composition|40 4 %",
                    row("teven", "Gel|") + indented("Water|6.1"));
    page += section("SDS-PAGE - Staining (Coomassie blue)", staining,
                    row("teven", "Fix 19||") + indented("Ethanol||50 mL"));
    page += section("SDS-PAGE - Staining (Silver)", staining,
                    row("teven", "Fix 20||") + indented("Ethanol||50 mL") + indented("Acid|1 %|", "teven"));
    page +=
        R"(<br><div align="center"><img src=file:////opt/my%20lab/Alembra%20uk\Data\img\gene_c.jpg><br><br>
<hr width="100%" noshade size="1"></div>
)";
    COMPARE_PAGES(written(Reports::Biochemistry), page + End);
}

void ReportsTest::biochemistryTheOtherWay()
{
    QByteArray page = written(Reports::Biochemistry);
    QCOMPARE(page.count("<table class=tmaintable"), 6);
    QVERIFY(!page.contains("<img"));
    turnOn(Slot::ReportSdsPage);
    turnOn(Slot::ReportGeneticCode);
    page = written(Reports::Biochemistry);
    QVERIFY(page.contains(
        file(grayHeading("SDS-PAGE - Protein standards<br>") + head("40 Kit|40 Proteins|20 MW (kDa)"))));
    QVERIFY(page.contains("\\Data\\img\\gene_ng.jpg><br><br>\r\n"));
}

void ReportsTest::constantsAndUnits_data()
{
    QTest::addColumn<bool>("colours");
    QTest::newRow("colours: two headings with a line break") << true;
    QTest::newRow("greys: a line break in each") << false;
}

void ReportsTest::constantsAndUnits()
{
    QFETCH(bool, colours);
    m_module->OptionSlots(Slot::ReportColours) = int(colours);
    for (int list = 0; list < 5; ++list)
        add(m_data->lists.ListView2[list], QString("C%1|1|2|3|4").arg(list));
    for (int list = 0; list < 7; ++list)
        add(m_data->lists.ListView7[list], QString("U%1|1|2|3|4|5").arg(list));

    QString expected = colours ? colors("Alembra - Constants and Units", "Constants and Units")
                               : grayscale("Alembra - Constants and Units", "Constants and Units");
    const auto title = [&](const QString &text, bool always = false) {
        return colours ? heading(text + (always ? "<br>" : "")) : grayHeading(text + "<br>");
    };
    const QString constants = head("15 Name|15 Symbol |7 Value |13 Units ");
    const QString units = head("15 Name|15 Unit |7 Symbol |13 Dimension |13 Dimension SI units ");
    expected += title("Universal constants", true) + constants + row("teven", "C0|1|2|3") + TableEnd;
    expected += title("Electromagnetic constants", true) + constants + row("tnoteven", "C1|1|2|3") + TableEnd;
    expected += title("Atomic / nuclear constants") + constants + row("teven", "C2|1|2|3") + TableEnd;
    expected += title("Physico-chemical constants") + constants + row("tnoteven", "C3|1|2|3") + TableEnd;
    expected += title("Mathematical constants") + constants + row("teven", "C4|1|2|3") + TableEnd;
    expected += title("SI units") + units + row("tnoteven", "U0|1|2|3|4") + TableEnd;
    expected += title("Space / Time") + units + row("teven", "U1|1|2|3|4") + TableEnd;
    expected += title("Mecanical") + units + row("tnoteven", "U2|1|2|3|4") + TableEnd;
    expected += title("Temperature / Heat") + units + row("teven", "U3|1|2|3|4") + TableEnd;
    expected += title("Electromagnetism") + units + row("tnoteven", "U4|1|2|3|4") + TableEnd;
    expected += title("Molecular physics") + units + row("teven", "U5|1|2|3|4") + TableEnd;
    expected += title("Radiations") + units + row("tnoteven", "U6|1|2|3|4") + TableEnd;
    COMPARE_PAGES(written(Reports::ConstantsAndUnits), expected + End);
}

void ReportsTest::rowClassRunsOnFromReportToReport()
{
    add(m_data->lists.ListView8, "Acetone|CaSO4");
    add(m_data->lists.ListView8, "Skipped|");
    QCOMPARE(m_module->ReportRowClass, QString());
    QVERIFY(written(Reports::Drying).contains("<tr class=teven>"));
    QVERIFY(written(Reports::Drying).contains("<tr class=tnoteven>"));
    QCOMPARE(m_module->ReportRowClass, QString("tnoteven"));
}

void ReportsTest::charactersOutsideTheCodePageBecomeQuestionMarks()
{
    add(m_data->lists.ListView8, "–\u00b5→λ|1");
    QVERIFY(written(Reports::Drying).contains("<td>\x96\xb5\?\?</td>"));
}

QTEST_APPLESS_MAIN(ReportsTest)
#include "reports_test.moc"
