#include "charts/ircharts.h"

#include "core/optionslots.h"
#include "store/rowlist.h"

#include <QStringList>

namespace IrCharts {

std::optional<QString> title(const QString &ChartKey)
{
    static const QStringList groups{
        QStringLiteral("Aliphatics, aliphatics halide"),
        QStringLiteral("Oxygen-containing compounds"),
        QStringLiteral("Nitrogen-containing compounds"),
        QStringLiteral("Sulfur, Phosphorous, Silicium"),
        QStringLiteral("Aromatics"),
        QStringLiteral("Functionalized aromatics"),
    };
    for (int group = 1; group <= groups.size(); ++group) {
        if (ChartKey == QString::number(group))
            return groups[group - 1];
    }
    return std::nullopt;
}

int bandsOf(const RowList &bands, QStringView motif, const QString &title)
{
    const QStringView firstPart = motif.first(qMax(0, motif.indexOf(QLatin1Char(','))));
    for (const QStringView name : {motif, firstPart, QStringView(title)}) {
        for (int row = 0; !name.isEmpty() && row < bands.rowCount(); ++row) {
            if (bands.cell(row, 0).startsWith(name))
                return row;
        }
    }
    return -1;
}

QString file(const QString &ChartKey)
{
    return QStringLiteral("Data/ir/%1.gif").arg(ChartKey);
}

const Graduation &graduation(const OptionSlots &slots)
{
    static constexpr Graduation Frequency{true, "s", "/ cm-1", 4605, 4770};
    static constexpr Graduation Wavelength{false, "l", "/ micrometer", 4305, 4470};
    return slots(Slot::IrInFrequency).equals(1) ? Frequency : Wavelength;
}

} // namespace IrCharts
