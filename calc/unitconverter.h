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

/// The part of @p text after the first @p open, up to the next @p close: the symbol in "meter (m)".
/// RuntimeError 9 without @p open.
QString BracketText(const QString &text, QChar open, QChar close);

/// The unit conversions: an input text, a pair of list positions, a result text.
///
/// Units are identified by their position. Six quantities convert by factors, energy and temperature by
/// formulas, selected by the difference of two codes. The result is empty if the input is not a number or the
/// result is not finite.
class UnitConverter final
{
public:
    /// @p selection returns the selected positions in the lists of a tab (1 to 8).
    explicit UnitConverter(std::function<UnitPair(int tab)> selection) : m_selection(std::move(selection)) {}

    const QString &ConversionMode() const { return m_mode; }

    /// A click on @p tab; the units are the selected texts of its lists. RuntimeError 9 if a unit on tab 1
    /// has no bracket.
    void selectTab(int tab, const QString &inputUnit, const QString &resultUnit);

    /// The result for a key released in the input field on @p tab.
    QString keyReleased(int tab, const QString &input);

    /// The result for a click in `List<list>`; nothing if there is no input.
    std::optional<QString> listClicked(int list, const QString &input);

private:
    QString convert(int tab, const QString &input);
    QString convertByFactors(const QString &input);

    std::function<UnitPair(int)> m_selection;
    QString m_mode;                          ///< empty until the first tab click or key release
    std::span<const UnitByFactor> m_factors; ///< `FactorTable`
    UnitPair m_pair{0, 0};
};
