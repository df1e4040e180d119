#pragma once

#include <QString>

/// What the lists show, in words for screen readers.
namespace ListNames {

/// Empty for an unknown list.
QString of(const QString &list);

} // namespace ListNames
