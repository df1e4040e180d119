#pragma once

#include <QString>

/// Copies @p source over @p destination, replacing it whole or leaving it as it was. RuntimeError 53 without
/// a source, 75 or 70 for a destination that cannot be written, 61 on a full disk, 76 without its folder.
void copyFileOver(const QString &source, const QString &destination);
