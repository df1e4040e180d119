#pragma once

#include <QString>
#include <optional>

/// The limits of a number field, and what they make of an entry. Numbers have the decimal separator of the
/// user's locale.
struct NumberEntry
{
    bool takesMinus = false;
    int decimals = 0; ///< maximum number of decimals; 0 or less rejects the decimal separator
    int length = 0;   ///< maximum number of characters; 0 or less is no limit

    /// The new entry if a key press would make it @p text; nothing if the key is rejected. "." and "," both
    /// count as the decimal separator; a separator without a digit gets a leading zero; a lone minus is
    /// accepted.
    std::optional<QString> typed(QString text) const;

    /// The new entry if @p text is pasted: a number, also in E notation, rounded to the decimals and the
    /// length of the field. Nothing if @p text is not a number or ambiguous: 1,234 may mean 1234 where the
    /// decimal separator is a point, and 1.234 where it is a comma.
    std::optional<QString> pasted(const QString &text) const;
};
