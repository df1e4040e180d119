#pragma once

#include <QByteArray>
#include <QStringList>

/// Tables for spreadsheets.
namespace Csv {

/// The lines as CSV after RFC 4180: commas, CR LF, texts in quotes. UTF-8 with a byte order mark, without
/// which a spreadsheet takes "°C" for two other characters.
///
/// Numbers are not in quotes, and their decimal point stays a point in every locale. Thus a spreadsheet that
/// is told to take quoted cells as text leaves a CAS number such as 75-05-8, which looks like a date, alone.
QByteArray write(const QList<QStringList> &lines);

} // namespace Csv
