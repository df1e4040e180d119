#pragma once

#include <QByteArray>
#include <QString>

/// Replaces @p destination by a copy of @p source, or leaves it as it was. RuntimeError 53 without a source,
/// 75 or 70 if the destination cannot be written, 61 if the disk is full, 76 if the folder does not exist.
void copyFileOver(const QString &source, const QString &destination);

/// Replaces @p destination by a file of these @p bytes, or leaves it as it was. RuntimeError as above, and 75
/// for a pipe or a device.
void writeFileOver(const QByteArray &bytes, const QString &destination);
