#pragma once

#include <QString>

/// The pictures of the reactions.
namespace ReactionCharts {

/// Where the picture is painted in `Picture4`, and the top of `Picture4` in its frame, twips.
inline constexpr int PaintLeft = 100;
inline constexpr int Top = 500;

/// "Data/orga/1.gif", or "1m.gif" for the mechanism, by the row's one-based position.
inline QString file(int position, bool mechanism)
{
    return QStringLiteral("Data/orga/%1%2.gif")
        .arg(QString::number(position), mechanism ? QStringLiteral("m") : QString());
}

/// `Picture4`.Left that centres a picture of @p pictureWidth, in its own units, in a frame of @p frameWidth
/// twips. The factor between the two units is taken as 0.6.
constexpr double left(double frameWidth, double pictureWidth)
{
    return (frameWidth - pictureWidth * 0.6) / 2;
}

} // namespace ReactionCharts
