#pragma once

#include <QStringList>
#include <functional>
#include <optional>

/// The tips of the day: one to a line of a text file in Windows-1252. An empty line is a tip like any other.
namespace Tips {

/// Nothing where the path is empty or no such file exists. RuntimeError 75 or 70 if it cannot be read.
std::optional<QStringList> read(const QString &path);

/// Number of the next tip, from 1: any but @p last, as @p fraction (in [0, 1)) draws it. Where there is no
/// other tip to draw, the only one stays; without any tip the number is 1.
int next(int last, int count, const std::function<double()> &fraction);

/// Whether the user wants tips at all, by the setting "Show Tips at Startup" of the section "Options" in the
/// user's own settings. The program never writes it, so it is on unless someone has turned it off there.
/// RuntimeError 13 where it is no number.
bool isWanted();

} // namespace Tips
