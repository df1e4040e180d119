#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// A statement of the one form that the program sends to its database: "SELECT a, b FROM T".
///
/// Names are bare, also where a stricter SQL engine would want them quoted (`for`, `group`), and consist of
/// letters, digits and underscores. Blanks are free. Case stays as written; the database compares names
/// without it.
struct SelectStatement
{
    QStringList columns; ///< in the order of the statement, at least one
    QString table;

    /// Nothing if @p text has another form.
    static std::optional<SelectStatement> parse(const QString &text);
};
