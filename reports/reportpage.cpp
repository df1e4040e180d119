#include "reports/reportpage.h"

#include "core/codepage.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct StyleRule
{
    const char *colors;
    const char *grayscale; ///< null: the same
};

// The body of Grayscale is white on white; font tags and row classes make it readable. The rules for links
// and digits are kept although no report uses them.
constexpr std::array StyleRules{
    StyleRule{"body { background: #4F687D; font-family : Verdana, Arial, Helvetica; color: #FFFFFF }",
              "body { background: #FFFFFF; font-family : Verdana, Arial, Helvetica; color: #FFFFFF }"},
    StyleRule{"a { color: #99FFFF; TEXT-DECORATION: none }", "a { color: #990000; TEXT-DECORATION: none }"},
    StyleRule{"a:hover { color: #99FFFF; TEXT-DECORATION: underline }", nullptr},
    StyleRule{"td { font-size: xx-small; height: 12 }", nullptr},
    StyleRule{"hr { color: black }", nullptr},
    StyleRule{".theader { background : #6699FF }", ".theader { background : #666666; color: #FFFFFF}"},
    StyleRule{".tmaintable { background : #4F687D }", ".tmaintable { background : #FFFFFF }"},
    StyleRule{" .teven { background : #4F687D; color : white }",
              " .teven { background : #FFFFFF; color : #000000 }"},
    StyleRule{".tnoteven { background : #56748B; color : white }",
              ".tnoteven { background : #CCCCCC; color : #000000 }"},
    StyleRule{".digits { color: aqua }", ".digits { color: #990000 }"},
    StyleRule{".al { COLOR: white }", ".al { COLOR: #000000 }"},
    StyleRule{".al:hover { COLOR: white;TEXT-DECORATION: underline  }", nullptr},
};

constexpr const char *CaptionTable =
    R"(<table border="0" cellspacing="0" cellpadding="2" width="99%" align="Center">)";
constexpr const char *CaptionTableEnd = "</td></tr></table>";

} // namespace

ReportTheme ReportPage::theme() const
{
    return isOn(Slot::ReportColours) ? ReportTheme::Colors : ReportTheme::Grayscale;
}

QString ReportPage::byTheme(const QString &colors, const QString &grayscale) const
{
    return theme() == ReportTheme::Colors ? colors : grayscale;
}

void ReportPage::ReportPreamble(const QString &title, const QString &section, const QString &subsection)
{
    line("<html>");
    line("<head>");
    line(R"(<meta name=generator content="Alembra">)");
    line("<title>" + title + "</title>");
    styleSheet();
    line("</head>");
    line("<body topmargin=0 leftmargin=0>");
    rule();
    captions(section, subsection);
    rule();
}

void ReportPage::styleSheet()
{
    line(R"(<style type="text/css">)");
    for (const StyleRule &style : StyleRules)
        line(style.grayscale ? byTheme(style.colors, style.grayscale) : QString(style.colors));
    line("</style>");
}

void ReportPage::captions(const QString &section, const QString &subsection)
{
    line(CaptionTable);
    line("<tr>");
    line(uR"(<td><p align="Left"><font size=2> <strong>)"
         R"(<font%1 size="4" face="Verdana, Arial, Helvetica, sans - serif">Alembra %2<br><br>)"
         R"(<font size="2"><font%1 size="3">%3</font></font></font>)"
         R"(<font size="3" face="Verdana, Arial, Helvetica, sans - serif">)"_s.arg(
             fontColour(), Module1::version(), section));
    if (!subsection.isEmpty())
        line(uR"(<font%1 size="2" face="Verdana, Arial, Helvetica, sans - serif"><em>%2</em></font><br>)"_s
                 .arg(fontColour(), subsection));
    line(CaptionTableEnd);
}

QString ReportPage::fontColour() const
{
    return byTheme({}, " color=#000000");
}

void ReportPage::sectionHeading(const QString &heading, HeadingBreak lineBreak)
{
    const bool broken = lineBreak == HeadingBreak::Always || theme() == ReportTheme::Grayscale;
    line(CaptionTable);
    line("<tr>");
    line(uR"(<td><p align="Left"><strong>)"
         R"(<font%1 size="1" face="Verdana, Arial, Helvetica, sans - serif">%2%3</font>)"
         R"(<font size="3" face="Verdana, Arial, Helvetica, sans - serif">)"_s.arg(fontColour(), heading,
                                                                                   broken ? "<br>" : ""));
    line(CaptionTableEnd);
}

void ReportPage::emptySectionHeading()
{
    line(CaptionTable);
    line("<tr>");
    line(CaptionTableEnd);
}

void ReportPage::openTable(const QStringList &head)
{
    line(R"(<table class=tmaintable border="0" cellpadding="5" width="99%" align="center" cellspacing="0">)");
    headerRow(head);
}

void ReportPage::headerRow(const QStringList &head)
{
    line("<tr class=theader>");
    for (const QString &title : head)
        line(title);
}

// Rows and cells are most of a page. Without a temporary text for each, a large report is fast.
void ReportPage::startRow()
{
    QString &rowClass = m_module.ReportRowClass;
    rowClass = rowClass == u"teven" ? u"tnoteven"_s : u"teven"_s;
    m_bytes += "</tr>\r\n<tr class=";
    CodePage::append(rowClass, m_bytes);
    m_bytes += ">\r\n";
}

void ReportPage::cell(QStringView text)
{
    m_bytes += "<td>";
    CodePage::append(text, m_bytes);
    m_bytes += "</td>\r\n";
}

void ReportPage::endRow()
{
    m_bytes += "</tr>\r\n";
}

void ReportPage::closeTable()
{
    line("</table>");
    rule();
}

QString ReportPage::imageSource(const QString &relative) const
{
    const QString file = relative.sliced(1).replace(u'\\', u'/');
    return "file:///" + QString(m_module.folderOf(file) + relative).replace(u' ', "%20");
}

void ReportPage::rule()
{
    line(R"(<hr width="100%" noshade size="1">)");
}

void ReportPage::end()
{
    line("</body></html>");
}

void ReportPage::line(const QString &text)
{
    CodePage::append(text, m_bytes);
    m_bytes += "\r\n";
}
