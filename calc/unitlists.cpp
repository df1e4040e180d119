#include "calc/unitlists.h"

#include "calc/units.h"
#include "core/runtimeerror.h"

using namespace Qt::StringLiterals;

void UnitLists::fill(const OptionSlots &slots, int &UnitItemCount)
{
    for (const Quantity &quantity : Units::quantities()) {
        QStringList &names = m_pairs[size_t(quantity.inputList / 2)];
        const auto addNames = [&](const auto &units) {
            for (const auto &unit : units)
                names << slots(unit.slot).toText();
        };
        std::visit(addNames, quantity.units);
        UnitItemCount += int(names.size());
    }
}

const QStringList &UnitLists::names(int list) const
{
    if (list < 1 || list > Count)
        throw RuntimeError(ErrorNumber::Subscript, u"List%1"_s.arg(list));
    return m_pairs[size_t((list - 1) / 2)];
}
