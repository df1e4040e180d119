#pragma once

#include <QString>

/// What the lists hold, in words: for screen readers, which say it when a list takes the focus.
namespace ListNames {

/// Empty for a list without an entry.
QString of(const QString &list);

} // namespace ListNames
