#include "expectedpage.h"

#include "core/module1.h"

#include <QStringList>

namespace {

constexpr const char *ColorsHead = R"(<html>
<head>
<meta name=generator content="Alembra">
<title>@title</title>
<style type="text/css">
body { background: #4F687D; font-family : Verdana, Arial, Helvetica; color: #FFFFFF }
a { color: #99FFFF; TEXT-DECORATION: none }
a:hover { color: #99FFFF; TEXT-DECORATION: underline }
td { font-size: xx-small; height: 12 }
hr { color: black }
.theader { background : #6699FF }
.tmaintable { background : #4F687D }
 .teven { background : #4F687D; color : white }
.tnoteven { background : #56748B; color : white }
.digits { color: aqua }
.al { COLOR: white }
.al:hover { COLOR: white;TEXT-DECORATION: underline  }
</style>
</head>
<body topmargin=0 leftmargin=0>
<hr width="100%" noshade size="1">
<table border="0" cellspacing="0" cellpadding="2" width="99%" align="Center">
<tr>
<td><p align="Left"><font size=2> <strong><font size="4" face="Verdana, Arial, Helvetica, sans - serif">Alembra @version<br><br><font size="2"><font size="3">@section</font></font></font><font size="3" face="Verdana, Arial, Helvetica, sans - serif">
<font size="2" face="Verdana, Arial, Helvetica, sans - serif"><em>@subsection</em></font><br>
</td></tr></table>
<hr width="100%" noshade size="1">
)";

constexpr const char *GrayscaleHead = R"(<html>
<head>
<meta name=generator content="Alembra">
<title>@title</title>
<style type="text/css">
body { background: #FFFFFF; font-family : Verdana, Arial, Helvetica; color: #FFFFFF }
a { color: #990000; TEXT-DECORATION: none }
a:hover { color: #99FFFF; TEXT-DECORATION: underline }
td { font-size: xx-small; height: 12 }
hr { color: black }
.theader { background : #666666; color: #FFFFFF}
.tmaintable { background : #FFFFFF }
 .teven { background : #FFFFFF; color : #000000 }
.tnoteven { background : #CCCCCC; color : #000000 }
.digits { color: #990000 }
.al { COLOR: #000000 }
.al:hover { COLOR: white;TEXT-DECORATION: underline  }
</style>
</head>
<body topmargin=0 leftmargin=0>
<hr width="100%" noshade size="1">
<table border="0" cellspacing="0" cellpadding="2" width="99%" align="Center">
<tr>
<td><p align="Left"><font size=2> <strong><font color=#000000 size="4" face="Verdana, Arial, Helvetica, sans - serif">Alembra @version<br><br><font size="2"><font color=#000000 size="3">@section</font></font></font><font size="3" face="Verdana, Arial, Helvetica, sans - serif">
<font color=#000000 size="2" face="Verdana, Arial, Helvetica, sans - serif"><em>@subsection</em></font><br>
</td></tr></table>
<hr width="100%" noshade size="1">
)";

QString filled(QString head, const QString &title, const QString &section, const QString &subsection)
{
    if (subsection.isEmpty()) {
        QStringList lines = head.split('\n');
        lines.removeIf([](const QString &line) { return line.contains("@subsection"); });
        head = lines.join('\n');
    }
    return head.replace("@title", title)
        .replace("@version", Module1::version())
        .replace("@subsection", subsection)
        .replace("@section", section);
}

} // namespace

QByteArray ExpectedPage::file(const QString &lines)
{
    return QString(lines).replace('\n', "\r\n").toLatin1();
}

QString ExpectedPage::colors(const QString &title, const QString &section, const QString &subsection)
{
    return filled(ColorsHead, title, section, subsection);
}

QString ExpectedPage::grayscale(const QString &title, const QString &section, const QString &subsection)
{
    return filled(GrayscaleHead, title, section, subsection);
}

QString ExpectedPage::heading(const QString &heading)
{
    return QString(R"(<table border="0" cellspacing="0" cellpadding="2" width="99%" align="Center">
<tr>
<td><p align="Left"><strong><font size="1" face="Verdana, Arial, Helvetica, sans - serif">@heading</font><font size="3" face="Verdana, Arial, Helvetica, sans - serif">
</td></tr></table>
)")
        .replace("@heading", heading);
}

QString ExpectedPage::grayHeading(const QString &heading)
{
    return ExpectedPage::heading(heading).replace("<font size=\"1\"", "<font color=#000000 size=\"1\"");
}

QString ExpectedPage::head(const QString &columns)
{
    QString text =
        R"(<table class=tmaintable border="0" cellpadding="5" width="99%" align="center" cellspacing="0">
<tr class=theader>
)";
    for (const QString &column : columns.split('|')) {
        const qsizetype blank = column.indexOf(' ');
        text += "<td width=\"" + column.first(blank) + "%\"><b>" + column.mid(blank + 1) + "</b></td>\n";
    }
    return text;
}

QString ExpectedPage::row(const QString &rowClass, const QString &cells)
{
    QString text = "</tr>\n<tr class=" + rowClass + ">\n";
    for (const QString &cell : cells.split('|'))
        text += "<td>" + cell + "</td>\n";
    return text + "</tr>\n";
}
