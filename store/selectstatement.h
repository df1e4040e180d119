#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// The only form of statement that the program sends to its database: "SELECT a, b FROM T".
///
/// Names are never quoted, even those that a stricter SQL engine reserves (`for`, `group`), and consist of
/// letters, digits and underscores. Extra blanks are allowed. The case of names is kept; the database ignores
/// it.
struct SelectStatement
{
    QStringList columns; ///< in the order of the statement, at least one
    QString table;

    /// Nothing if @p text has another form.
    static std::optional<SelectStatement> parse(const QString &text);
};
