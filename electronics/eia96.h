#pragma once

#include <QStringList>
#include <optional>

/// The marking of surface-mount precision resistors: two digits for a value of the E96 series, a letter for
/// the power of ten.
namespace Eia96 {

/// In the order of `Combo2(10)`.
QStringList letters();

/// The legend of the letters.
inline constexpr const char *Legend =
    "Y = 0.01; X = 0.1, A = 1; B = 10; C = 100; D = 1000; E = 10000; F = 100000";

struct Marking
{
    QString code;                 ///< `Label18(13)`
    QString letter;               ///< `Label18(15)`
    std::optional<QString> value; ///< `tbm(10)`, ohm; none: unchanged
};

/// @p code and @p letter are empty if nothing is selected. @p valeur is the value of the code in ohm;
/// RuntimeError 13 if it is needed and not a number.
Marking decode(const QString &code, const QString &valeur, const QString &letter);

} // namespace Eia96
