#pragma once

#include <QByteArray>
#include <QString>

/// Windows-1252, the 8-bit code page of the options file, the tip file and the reports.
namespace CodePage {

/// Characters outside the code page become "?".
QByteArray encode(QStringView text);

/// Appends the encoded text to @p bytes.
void append(QStringView text, QByteArray &bytes);

/// The five unassigned bytes become the control characters of the same number, so every byte survives a round
/// trip.
QString decode(const QByteArray &bytes);

bool contains(QChar character);

} // namespace CodePage
