#pragma once

#include <QByteArray>
#include <QString>

/// Windows-1252, the 8-bit code page of the options file, the tip file and the reports.
namespace CodePage {

/// A character that the code page lacks goes out as "?".
QByteArray encode(QStringView text);

/// Appends the encoded text to @p bytes.
void append(QStringView text, QByteArray &bytes);

/// The five bytes without a character of their own become the control characters of the same number, so that
/// every byte survives the way in and out again.
QString decode(const QByteArray &bytes);

bool contains(QChar character);

} // namespace CodePage
