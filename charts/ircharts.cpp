#include "charts/ircharts.h"

#include "core/optionslots.h"

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

QString file(const QString &AppFolder, const QString &ChartKey)
{
    return QStringLiteral("%1/Data/ir/%2.gif").arg(AppFolder, ChartKey);
}

const Graduation &graduation(const OptionSlots &slots)
{
    static constexpr Graduation Frequency{true, "s", "/ cm-1", 4605, 4770};
    static constexpr Graduation Wavelength{false, "l", "/ micrometer", 4305, 4470};
    return slots(Slot::IrInFrequency).equals(1) ? Frequency : Wavelength;
}

} // namespace IrCharts
