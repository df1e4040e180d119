#include "writtenreport.h"

#include <QTest>

using namespace ExpectedPage;

/// The reports of the solvents and the infrared table, each as a whole file.
class SolventReportsTest final : public WrittenReport
{
    Q_OBJECT

private Q_SLOTS:
    void init() { renew(); }
    void propertiesInColours();
    void propertiesWithoutStructures();
    void miscibilityInGreys();
    void polarityChartFollowsTheTheme();
    void nmrInGreysHasTwoFrenchWords();
    void nmrInColours();
    void massesHaveTenCellsUnderOneTitle();
    void plainSolventAndIrTables_data();
    void plainSolventAndIrTables();
};

void SolventReportsTest::propertiesInColours()
{
    add(m_data->lists.ListView1, "Acetic acid|60.05|1.0446|16.6|117.9|1.3720|64-19-7");
    add(m_data->lists.ListView1, "Petroleum ether (40-60 °C)|<82 & more>||||a|b|not written");
    turnOn(Slot::ReportColours);
    turnOn(Slot::ReportStructures);

    COMPARE_PAGES(
        written(Reports::Properties),
        colors("Alembra - Solvents - Properties", "Solvents - ", "Properties") +
            R"(<table class=tmaintable border="0" cellpadding="5" width="99%" align="center" cellspacing="0">
<tr class=theader>
<td width="15%"><b>Name</b></td>
<td width="12%"><b>Molar mass (g/mol) </b></td>
<td width="12%" nowrap><b>Volumic mass (kg/L) </b></td>
<td width="14%"><b>Melting point (°C) </b></td>
<td width="14%"><b>Boiling point (°C) </b></td>
<td width="11%"><b>Reractive index </b></td>
<td width="12%"><b>CAS number</b></td>
<td width="11%"><div align="center"><b>Chemical structure</b></div></td>
</tr>
<tr class=teven>
<td>Acetic acid</td>
<td>60.05</td>
<td nowrap>1.0446</td>
<td>16.6</td>
<td>117.9</td>
<td>1.3720</td>
<td>64-19-7</td>
<td bgcolor="#FFFFFF"><div align="center"><img src=file:////opt/my%20lab/Alembra%20uk\Data\chemicals\Acetic%20acid.bmp></div></td>
</tr>
</tr>
<tr class=tnoteven>
<td>Petroleum ether (40-60 °C)</td>
<td><82 & more></td>
<td nowrap></td>
<td></td>
<td></td>
<td>a</td>
<td>b</td>
<td bgcolor="#FFFFFF" align=center><font color=black><b>Image unavailable</b></font></td>
</tr>
</table>
<hr width="100%" noshade size="1">
</body></html>
)");
}

void SolventReportsTest::propertiesWithoutStructures()
{
    add(m_data->lists.ListView1, "Acetone|1|2|3|4|5|6");
    const QByteArray page = written(Reports::Properties);
    QVERIFY(
        page.contains("<td nowrap>2</td>\r\n<td>3</td>\r\n<td>4</td>\r\n<td>5</td>\r\n<td>6</td>\r\n</tr>"));
    QVERIFY(page.contains("<td width=\"12%\"><b>CAS number</b></td>\r\n</tr>"));
    QVERIFY(!page.contains("<img"));
}

void SolventReportsTest::miscibilityInGreys()
{
    add(m_data->lists.ListView6, "Acetone|5.1|100|-");
    add(m_data->lists.ListView6, "Not in the report|1|2|");
    add(m_data->lists.ListView6, "Hexane|0.0|0.001|Acetonitrile");
    turnOn(Slot::ReportPolarityChart);

    COMPARE_PAGES(
        written(Reports::Miscibility),
        grayscale("Alembra - Solvents - Miscibility and Polarity", "Solvents - ",
                  "Miscibility and Polarity") +
            R"(<table class=tmaintable border="0" cellpadding="5" width="99%" align="center" cellspacing="0">
<tr class=theader>
<td width="12%"><b>Name</b></td>
<td width="12%"><b>Polarity index </b></td>
<td width="12%" nowrap><b>Miscibility in water (wt%/%) </b></td>
<td width="12%"><b>Non-miscible </b></td>
)" + row("teven", "Acetone|5.1|100|-") +
            row("tnoteven", "Hexane|0.0|0.001|Acetonitrile") + TableEnd +
            R"(<div align="center"><img src=file:////opt/my%20lab/Alembra%20uk\Data\img\polarite_ng.jpg width="313" height="441"><br>
<hr width="100%" noshade size="1"></div>
</body></html>
)");
}

void SolventReportsTest::polarityChartFollowsTheTheme()
{
    QVERIFY(!written(Reports::Miscibility).contains("<img"));
    turnOn(Slot::ReportPolarityChart);
    turnOn(Slot::ReportColours);
    QVERIFY(written(Reports::Miscibility).contains("\\Data\\img\\polarite_c.jpg width=\"313\""));
}

void SolventReportsTest::nmrInGreysHasTwoFrenchWords()
{
    add(m_data->lists.ListView4, "A proton|CH3|s|1|2|3|4|5|6|7");
    add(m_data->lists.ListView4, "A title|");
    add(m_data->lists.ListView5, "A carbon|CO|1|2|3|4|5|6|7");
    add(m_data->lists.ListView5, "Another|");

    COMPARE_PAGES(
        written(Reports::Nmr),
        grayscale("Alembra - Solvents - NMR", "Solvents - ", "1H and 13C NMR") +
            R"(<table border="0" cellspacing="0" cellpadding="2" width="99%" align="Center">
<tr>
<td><p align="Left"><strong><font color=#000000 size="1" face="Verdana, Arial, Helvetica, sans - serif">1H NMR<br></font><font size="3" face="Verdana, Arial, Helvetica, sans - serif">
</td></tr></table>
)" +
            head("15 Name|8 Proton |8 Peak |10 Chloroform |10 Acetone |10 DMSO |10 Benzene |10 Acetonitrile |"
                 "10 Methanol |10 Water ") +
            row("teven", "A proton|CH3|s|1|2|3|4|5|6|7") + TableEnd +
            R"(<table border="0" cellspacing="0" cellpadding="2" width="99%" align="Center">
<tr>
<td><p align="Left"><strong><font color=#000000 size="1" face="Verdana, Arial, Helvetica, sans - serif">13C RMN<br></font><font size="3" face="Verdana, Arial, Helvetica, sans - serif">
</td></tr></table>
)" +
            head("15 Nom|8 Carbon |10 Chloroform |10 Acetone |10 DMSO |10 Benzene |10 Acetonitrile |10 "
                 "Methanol |"
                 "10 Water ") +
            row("tnoteven", "A carbon|CO|1|2|3|4|5|6|7") + TableEnd + End);
}

void SolventReportsTest::nmrInColours()
{
    turnOn(Slot::ReportColours);
    COMPARE_PAGES(
        written(Reports::Nmr),
        colors("Alembra - Solvents - NMR", "Solvents - ", "1H and 13C NMR") + heading("1H NMR<br>") +
            head("15 Name|8 Proton |8 Peak |10 Chloroform |10 Acetone |10 DMSO |10 Benzene |"
                 "10 Acetonitrile |10 Methanol |10 Water ") +
            TableEnd + heading("13C NMR<br>") +
            head("15 Name|8 Carbon |10 Chloroform |10 Acetone |10 DMSO |10 Benzene |10 Acetonitrile |"
                 "10 Methanol |10 Water ") +
            TableEnd + End);
}

void SolventReportsTest::massesHaveTenCellsUnderOneTitle()
{
    add(m_data->lists.ListView3[26], "Acetone|43|58|3|4|5|6|7|8|9|10");
    add(m_data->lists.ListView3[26], "Nothing measured|||3");
    turnOn(Slot::ReportColours);
    COMPARE_PAGES(written(Reports::MassSpectrometry),
                  colors("Alembra - Solvents - Mass spectrometry", "Solvents - ", "Mass spectrometry") +
                      R"(<table border="0" cellspacing="0" cellpadding="2" width="99%" align="Center">
<tr>
</td></tr></table>
)" + head("20 Name") + "<td colspan=\"10\" align=center><b>e/m (intensity)</b></td>\n" +
                      row("teven", "Acetone|43|58|3|4|5|6|7|8|9|10") + TableEnd + End);
}

void SolventReportsTest::plainSolventAndIrTables_data()
{
    QTest::addColumn<Report>("report");
    QTest::addColumn<QString>("expected");
    QTest::newRow("drying") << Report(Reports::Drying)
                            << grayscale("Alembra - Solvents - Drying", "Solvents - ", "Drying") +
                                   head("50 Name|50 Drying agent ") + row("teven", "one|1");
    QTest::newRow("cooling") << Report(Reports::CoolingMixtures)
                             << grayscale("Alembra - Solvents - Cooling mixtures", "Solvents - ",
                                          "Cooling mixtures") +
                                    head("50 Mixture|50 Temperature (°C) ") + row("teven", "two|1");
    QTest::newRow("infrared") << Report(Reports::IrTable)
                              << grayscale("Alembra - IR - Table", "IR - ", "Table") +
                                     head("30 Functional group|35 Bond  |35 Frequency (cm-1)") +
                                     row("teven", "three|1|2");
}

void SolventReportsTest::plainSolventAndIrTables()
{
    QFETCH(Report, report);
    QFETCH(QString, expected);
    for (const auto &[list, name] :
         {std::pair(&m_data->lists.ListView8, "one"), std::pair(&m_data->lists.ListView9, "two"),
          std::pair(&m_data->lists.ListView3[27], "three")}) {
        add(*list, list == &m_data->lists.ListView3[27] ? "Group title|" : "No value||2");
        add(*list, QString("%1|1|2").arg(name));
    }
    COMPARE_PAGES(written(report), expected + TableEnd + End);
}

QTEST_APPLESS_MAIN(SolventReportsTest)
#include "solventreports_test.moc"
