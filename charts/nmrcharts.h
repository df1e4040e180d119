#pragma once

#include <QString>

/// One of the two lists of NMR charts and what is its own.
struct NmrCharts
{
    int list;         ///< index of `ListView3`
    int overviewRows; ///< the first rows; they are numbered apart from the motifs
    const char *folder;
    int paintLeft; ///< where in `Picture3` the picture is painted, twips
    bool fillsText3;

    /// Number of the chart of the row at one-based @p position. The number in its file name is one higher, so
    /// that 1 is never one.
    constexpr int number(int position) const
    {
        return position <= overviewRows ? position + 998 : position - overviewRows;
    }

    /// "Data/nmr/1h/1000.gif"
    QString file(int number) const
    {
        return QStringLiteral("Data/nmr/%1/%2.gif")
            .arg(QLatin1StringView(folder), QString::number(number + 1));
    }
};

inline constexpr NmrCharts ProtonCharts{15, 4, "1h", 100, false};

// Painted at the very left, unlike all other charts, and told to Text3: both kept as they are.
inline constexpr NmrCharts CarbonCharts{16, 1, "13c", 0, true};
