#pragma once

#include "core/optionslots.h"

#include <QStringList>
#include <array>

/// The unit names of the conversions: the texts of the sixteen lists `List1` to `List16`, which come in pairs
/// of the same names, input and result.
class UnitLists final
{
public:
    static constexpr int Count = 16;

    /// Adds the names of the units in list order and counts each one in @p UnitItemCount. A slot that
    /// the options file left empty is an empty name: positions stay what they mean.
    void fill(const OptionSlots &OptionSlots, int &UnitItemCount);

    /// The names in `List1` to `List16`. RuntimeError 9 for any other number.
    const QStringList &names(int list) const;

private:
    std::array<QStringList, Count / 2> m_pairs;
};
