#pragma once

#include "core/optionslots.h"

#include <QStringList>
#include <array>

/// The unit names of the conversions: the texts of the lists `List1` to `List16`, in pairs of input and
/// result with the same names.
class UnitLists final
{
public:
    static constexpr int Count = 16;

    /// Adds the unit names and counts them in @p UnitItemCount. An empty slot is an empty name, so positions
    /// keep their meaning.
    void fill(const OptionSlots &slots, int &UnitItemCount);

    /// The names in `List1` to `List16`. RuntimeError 9 for any other number.
    const QStringList &names(int list) const;

private:
    std::array<QStringList, Count / 2> m_pairs;
};
