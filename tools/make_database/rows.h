#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <optional>

/// Rows as a database file stores them.
namespace Rows {

/// The values of one row, to be put together.
struct Parts
{
    int columns = 0;
    QByteArray fixed;                          ///< the fixed part, whole
    QList<std::optional<QByteArray>> variable; ///< nothing for Null
    QByteArray nullMask;                       ///< bit k: column k is not Null
};

QByteArray encode(const Parts &parts);

/// A null mask with the bits of @p present set.
QByteArray nullMask(int columns, const QList<int> &present);

/// A row of a table that has only text columns, none of them Null: an empty text has no bytes.
QByteArray ofTexts(const QStringList &cells);

/// UTF-16, as names of objects are stored.
QByteArray plainText(const QString &text);

/// Text as the engine itself writes it: in one byte a character where that is shorter.
QByteArray packedText(const QString &text);

} // namespace Rows
