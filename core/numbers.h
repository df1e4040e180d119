#pragma once

#include <QString>
#include <QStringView>
#include <optional>

/// Numbers to text and back.
///
/// What a user types and reads has the decimal separator of the desktop's locale and no group separators;
/// what stands in a file ("fixed") goes by the C locale. Written numbers have up to 15 significant digits, no
/// trailing zeros, and the exponent form ("1E-20") for very large and very small values; all of them can be
/// read again.
namespace Numbers {

/// Nothing if @p text is not a number of the user's locale: group separators, "inf", "nan", hexadecimal and
/// blanks are refused, as is a number beyond the range of a double.
std::optional<double> read(QStringView text);

QString write(double number);

/// The same by the C locale.
std::optional<double> readFixed(QStringView text);
QString writeFixed(double number);

/// The decimal separator of the user's locale: "." or "," in most.
QString decimalPoint();

/// Rounded to a whole number, half to even.
int roundHalfToEven(double number);

} // namespace Numbers
