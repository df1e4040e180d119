#include "calc/unitlists.h"

#include "core/runtimeerror.h"

namespace {

struct SlotRange
{
    int first;
    int last;
    int inputList;
};

// The slots between these hold settings. The last one is the fourth energy, behind the three of slots 25
// to 27.
constexpr SlotRange UnitSlots[]{{1, 13, 1},   {14, 24, 3},  {25, 27, 5},  {28, 30, 7}, {31, 43, 9},
                                {44, 52, 11}, {59, 62, 13}, {63, 73, 15}, {87, 87, 5}};

} // namespace

void UnitLists::fill(const OptionSlots &OptionSlots, int &UnitItemCount)
{
    for (const SlotRange &range : UnitSlots) {
        QStringList &names = m_pairs[size_t(range.inputList / 2)];
        for (int slot = range.first; slot <= range.last; ++slot) {
            names << OptionSlots(slot).toText();
            ++UnitItemCount;
        }
    }
}

const QStringList &UnitLists::names(int list) const
{
    if (list < 1 || list > Count)
        throw RuntimeError(ErrorNumber::Subscript, QStringLiteral("List%1").arg(list));
    return m_pairs[size_t((list - 1) / 2)];
}
