#pragma once

#include <QString>

/// The pictures of the reactions.
namespace ReactionCharts {

// Twips.
inline constexpr int PaintLeft = 100; ///< left edge of the picture in `Picture4`
inline constexpr int Top = 500;       ///< of `Picture4` in its frame

/// "Data/orga/1.gif", or "1m.gif" for the mechanism, by the row's one-based position.
inline QString file(int position, bool mechanism)
{
    return QString("Data/orga/%1%2.gif").arg(position).arg(mechanism ? "m" : "");
}

/// `Picture4`.Left to centre a picture of @p pictureWidth, in picture units, in a frame of @p frameWidth
/// twips. A picture unit counts as 0.6 twips.
constexpr double left(double frameWidth, double pictureWidth)
{
    return (frameWidth - pictureWidth * 0.6) / 2;
}

} // namespace ReactionCharts
