#include "core/value.h"

#include "core/numbers.h"

double Value::toNumber() const
{
    if (const auto *number = std::get_if<double>(&m_value))
        return *number;
    return isEmpty() ? 0 : Numbers::requireInvariant(std::get<QString>(m_value));
}

QString Value::toText() const
{
    if (const auto *text = std::get_if<QString>(&m_value))
        return *text;
    return isEmpty() ? QString() : Numbers::formatInvariant(std::get<double>(m_value));
}
