#pragma once

#include <QStringList>
#include <functional>
#include <optional>

/// The tips of the day: one per line of a text file in Windows-1252. An empty line is a tip.
namespace Tips {

/// Nothing if there is no such file. RuntimeError 75 or 70 if it cannot be read.
std::optional<QStringList> read(const QString &path);

/// Number of the next tip, from 1, by random numbers @p fraction in [0, 1). Not @p last, unless there is only
/// one tip. Without any tip it is 1.
int next(int last, int count, const std::function<double()> &fraction);

/// Whether the user wants tips: "Show Tips at Startup" in section "Options" of the user's settings, by
/// default on. The program never writes it. RuntimeError 13 if it is not a number.
bool isWanted();

} // namespace Tips
