#pragma once

#include <QString>

/// Replaces @p destination by a copy of @p source, or leaves it as it was. RuntimeError 53 without a source,
/// 75 or 70 if the destination cannot be written, 61 if the disk is full, 76 if the folder does not exist.
void copyFileOver(const QString &source, const QString &destination);
