#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

/// Rows as a database file stores them.
namespace Rows {

/// The parts of one row.
struct Parts
{
    int columns = 0;
    QByteArray fixed;                          ///< the whole fixed part
    QList<std::optional<QByteArray>> variable; ///< nothing for Null
    QByteArray nullMask;                       ///< bit k: column k is not Null
};

QByteArray encode(const Parts &parts);

/// A null mask with the bits of @p present set.
QByteArray nullMask(int columns, const QList<int> &present);

/// A row of text columns without a Null. An empty text takes no bytes.
QByteArray ofTexts(const QStringList &cells);

/// UTF-16, the encoding of object names.
QByteArray plainText(const QString &text);

/// Text as the original engine writes it: one byte for each character where that is shorter.
QByteArray packedText(const QString &text);

} // namespace Rows
