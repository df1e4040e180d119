#pragma once

#include <QString>

/// One of the two lists of NMR charts.
struct NmrCharts
{
    int list;         ///< index of `ListView3`
    int overviewRows; ///< rows before the motifs, with numbers of their own
    const char *folder;
    int paintLeft; ///< left edge of the picture in `Picture3`, twips
    bool fillsText3;

    /// Number of the chart at one-based row @p position. The number in its file name is one higher.
    constexpr int number(int position) const
    {
        return position <= overviewRows ? position + 998 : position - overviewRows;
    }

    /// "Data/nmr/1h/1000.gif"
    QString file(int number) const { return QString("Data/nmr/%1/%2.gif").arg(folder).arg(number + 1); }
};

inline constexpr NmrCharts ProtonCharts{15, 4, "1h", 100, false};

// Unlike all other charts, these begin at the left edge and fill Text3: kept as it is.
inline constexpr NmrCharts CarbonCharts{16, 1, "13c", 0, true};
