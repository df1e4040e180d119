#pragma once

#include <QString>
#include <optional>

/// The limits of a field for one number, and what becomes of an entry under them. Numbers have the decimal
/// sign of the user's locale.
struct NumberEntry
{
    bool takesMinus = false;
    int decimals = 0; ///< most digits after the decimal sign; 0 or less takes no decimal sign
    int length = 0;   ///< most characters; 0 or less is no limit

    /// The entry that a key makes of a field, @p text being what it would leave there. A "." and a "," are
    /// both the decimal sign; one without a digit gets its zero, and a minus alone is on its way to a number.
    /// Nothing if the key is refused.
    std::optional<QString> typed(QString text) const;

    /// The entry that a pasted text makes of a field: also a number in E notation, rounded to the decimals
    /// and the length of the field. Nothing if @p text is not plainly one number, as where a sign may be that
    /// of thousands: 1,234 is never 1.234, and the other way round where a comma is the decimal sign.
    std::optional<QString> pasted(const QString &text) const;
};
