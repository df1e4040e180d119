#include "charts/ircharts.h"

#include "core/optionslots.h"
#include "store/rowlist.h"

#include <QMap>

using namespace Qt::StringLiterals;

namespace IrCharts {

std::optional<QString> title(const QString &ChartKey)
{
    static const QMap<QString, QString> titles{
        {u"1"_s, u"Aliphatics, aliphatics halide"_s},
        {u"2"_s, u"Oxygen-containing compounds"_s},
        {u"3"_s, u"Nitrogen-containing compounds"_s},
        {u"4"_s, u"Sulfur, Phosphorous, Silicium"_s},
        {u"5"_s, u"Aromatics"_s},
        {u"6"_s, u"Functionalized aromatics"_s},
    };
    const auto found = titles.find(ChartKey);
    return found == titles.end() ? std::nullopt : std::optional(*found);
}

int bandsOf(const RowList &bands, QStringView motif, const QString &title)
{
    const QStringView firstPart = motif.first(qMax(0, motif.indexOf(u',')));
    for (const QStringView name : {motif, firstPart, QStringView(title)}) {
        for (int row = 0; row < bands.rowCount(); ++row) {
            if (!name.isEmpty() && bands.cell(row, 0).startsWith(name))
                return row;
        }
    }
    return -1;
}

QString file(const QString &ChartKey)
{
    return u"Data/ir/%1.gif"_s.arg(ChartKey);
}

const Graduation &graduation(const OptionSlots &slots)
{
    static constexpr Graduation Frequency{true, "s", "/ cm-1", 4605, 4770};
    static constexpr Graduation Wavelength{false, "l", "/ micrometer", 4305, 4470};
    return slots(Slot::IrInFrequency).equals(1) ? Frequency : Wavelength;
}

} // namespace IrCharts
