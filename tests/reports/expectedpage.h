#pragma once

#include <QByteArray>
#include <QString>

/// Whole report files as they must be, put together from text that is written out by hand.
namespace ExpectedPage {

/// The bytes of a page from its lines: UTF-8 in, Windows-1252 with CR LF out. The text holds Latin-1 only.
QByteArray file(const QString &lines);

/// The page up to the rule below its captions.
QString colors(const QString &title, const QString &section, const QString &subsection = {});
QString grayscale(const QString &title, const QString &section, const QString &subsection = {});

/// A section heading; @p heading with its "<br>", if it has one.
QString heading(const QString &heading);
QString grayHeading(const QString &heading);

/// A data table up to its header row. Columns are "<width> <title>", divided by "|".
QString head(const QString &columns);

/// A row and its cells, divided by "|".
QString row(const QString &rowClass, const QString &cells);

inline const QString Rule = QStringLiteral("<hr width=\"100%\" noshade size=\"1\">\n");
inline const QString TableEnd = QStringLiteral("</table>\n") + Rule;
inline const QString End = QStringLiteral("</body></html>\n");

/// A section of `Colors`: heading with line break, table with these columns and rows.
inline QString section(const QString &title, const QString &columns, const QString &rows)
{
    return heading(title + "<br>") + head(columns) + rows + TableEnd;
}

} // namespace ExpectedPage
