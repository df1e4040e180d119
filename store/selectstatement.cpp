#include "store/selectstatement.h"

#include <QRegularExpression>

std::optional<SelectStatement> SelectStatement::parse(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral(R"(\A\s*SELECT\s+(\w+(?:\s*,\s*\w+)*)\s+FROM\s+(\w+)\s*\z)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression comma(QStringLiteral(R"(\s*,\s*)"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    return SelectStatement{match.captured(1).split(comma), match.captured(2)};
}
