#pragma once

#include "calc/units.h"

#include <QString>
#include <functional>
#include <optional>

/// The selected positions of a pair of lists, from 0; -1 without a selection.
struct UnitPair
{
    int from;
    int to;
};

/// What stands in @p text behind the first @p open, up to the next @p close: the symbol in "meter (m)".
/// RuntimeError 9 if there is no @p open.
QString BracketText(const QString &text, QChar open, QChar close);

/// The unit conversions: an input text, a pair of list positions, a result text.
///
/// Units are known by their position alone. Six quantities convert by a table of factors, energy and
/// temperature by formulas that the difference of two codes selects. A text that is no number and a result
/// beyond the numbers give an empty result, never a stale one.
class UnitConverter final
{
public:
    /// @p selection tells the selected positions of the lists of a tab (1 to 8) when they are needed.
    explicit UnitConverter(std::function<UnitPair(int tab)> selection) : m_selection(std::move(selection)) {}

    const QString &ConversionMode() const { return m_mode; }

    /// A click on @p tab; the units are the selected texts of its lists. On tab 1 a unit without "(" is
    /// RuntimeError 9, after which the switch goes no further.
    void selectTab(int tab, const QString &inputUnit, const QString &resultUnit);

    /// The result for a key released in the input field on @p tab.
    QString keyReleased(int tab, const QString &input);

    /// The result for a click in `List<list>`; nothing if there is no input.
    std::optional<QString> listClicked(int list, const QString &input);

private:
    QString convertByFactors(const QString &input);
    QString convertEnergy(const QString &input) const;
    QString convertTemperature(const QString &input) const;

    std::function<UnitPair(int)> m_selection;
    QString m_mode;                          ///< empty until the first tab click or key release
    std::span<const UnitByFactor> m_factors; ///< `FactorTable`
    UnitPair m_pair{0, 0};
};
