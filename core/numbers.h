#pragma once

#include <QString>
#include <QStringView>
#include <optional>

/// Numbers to text and back.
///
/// What a user types and reads ("local") has the decimal separator of the desktop's locale; what a file
/// contains ("invariant") follows the C locale. Neither has group separators. Formatted numbers have up to 15
/// significant digits, no trailing zeros, and an exponent ("1E-20") if they are very large or very small; all
/// of them can be parsed again.
namespace Numbers {

/// Nothing if @p text is not a number of the user's locale: group separators, "inf", "nan", hexadecimal and
/// blanks are rejected, as is a number beyond the range of a double.
std::optional<double> parseLocal(QStringView text);
QString formatLocal(double number);
QString formatLocal(double number, int significantDigits);

/// RuntimeError 13 if @p text is not a number.
double requireLocal(const QString &text);

// The same in the C locale.
std::optional<double> parseInvariant(QStringView text);
QString formatInvariant(double number);
double requireInvariant(const QString &text);

/// The decimal separator of the user's locale: "." or "," in most.
QString decimalPoint();

/// Rounded to a whole number, half to even.
int roundHalfToEven(double number);

} // namespace Numbers
