#include "store/selectstatement.h"

#include <algorithm>

namespace {

bool isName(const QString &text)
{
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber() || c == u'_'; });
}

} // namespace

std::optional<SelectStatement> SelectStatement::parse(const QString &text)
{
    const auto Select = QLatin1StringView("SELECT ");
    const auto From = QLatin1StringView(" FROM ");
    const QString plain = text.simplified();
    const qsizetype from = plain.lastIndexOf(From, -1, Qt::CaseInsensitive);
    if (!plain.startsWith(Select, Qt::CaseInsensitive) || from < Select.size())
        return std::nullopt;

    SelectStatement statement{{}, plain.mid(from + From.size())};
    for (const QString &column : plain.mid(Select.size(), from - Select.size()).split(u','))
        statement.columns.append(column.trimmed());
    if (!isName(statement.table) || !std::all_of(statement.columns.begin(), statement.columns.end(), isName))
        return std::nullopt;
    return statement;
}
