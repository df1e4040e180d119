#pragma once

#include <QList>
#include <QStringView>
#include <optional>

/// A number, or the range that a cell or a user gives: "1.49", "7.1-7.2", "<1", "14,000 - 60,000 Da".
struct NumberSpan final
{
    double low;  ///< minus infinity for "<1" and "below -73"
    double high; ///< infinity for ">13"

    /// Of an open range its one bound.
    double middle() const;

    /// Distance to @p other; 0 if they overlap.
    double gapTo(const NumberSpan &other) const;

    /// The values in a cell of a table, several separated by ";" or ", ". Text after a number is a unit or a
    /// remark. Decimal point, commas between thousands. Empty for "-" and for words.
    static QList<NumberSpan> inCell(QStringView cell);

    /// What a user typed: a number or a range of two, with decimal point or comma, and with what follows it
    /// ("°C") left in @p rest.
    static std::optional<NumberSpan> typed(QStringView text, QStringView *rest);
};
