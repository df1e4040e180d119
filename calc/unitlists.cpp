#include "calc/unitlists.h"

#include "calc/units.h"
#include "core/runtimeerror.h"

void UnitLists::fill(const OptionSlots &OptionSlots, int &UnitItemCount)
{
    for (const Quantity &quantity : Units::quantities()) {
        QStringList &names = m_pairs[size_t(quantity.inputList / 2)];
        const auto addNames = [&](const auto &units) {
            for (const auto &unit : units)
                names << OptionSlots(unit.slot).toText();
        };
        std::visit(addNames, quantity.units);
        UnitItemCount += int(names.size());
    }
}

const QStringList &UnitLists::names(int list) const
{
    if (list < 1 || list > Count)
        throw RuntimeError(ErrorNumber::Subscript, QStringLiteral("List%1").arg(list));
    return m_pairs[size_t((list - 1) / 2)];
}
