#include "calc/molarmass.h"

#include "core/numbers.h"

#include <algorithm>

using namespace Qt::StringLiterals;

MolarMass MolarMass::of(const Formula &formula, const AtomicMasses &masses)
{
    // Of the isotopes themselves, from the atomic mass evaluation.
    static const AtomicMasses hydrogens{{u"D"_s, u"2.01410"_s}, {u"T"_s, u"3.01605"_s}};
    MolarMass mass{0, 15, {}};
    for (const QString &symbol : formula.hillOrder()) {
        QString printed = hydrogens.value(symbol, masses.value(symbol));
        printed.remove(u'[').remove(u']');
        const double part = formula.atoms[symbol] * printed.toDouble();
        const auto point = printed.indexOf(u'.');
        mass.decimals = std::min(mass.decimals, point < 0 ? 0 : int(printed.size() - point - 1));
        mass.value += part;
        mass.shares << MassShare{symbol, formula.atoms[symbol], part};
    }
    for (MassShare &share : mass.shares)
        share.percent *= 100 / mass.value;
    return mass;
}

QString MolarMass::text() const
{
    return QString::number(value, 'f', decimals).replace(u'.', Numbers::decimalPoint());
}
