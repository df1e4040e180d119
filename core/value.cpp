#include "core/value.h"

#include "core/numbers.h"
#include "core/runtimeerror.h"

double Value::toNumber() const
{
    if (const auto *number = std::get_if<double>(&m_value))
        return *number;
    if (isEmpty())
        return 0;
    const std::optional<double> number = Numbers::parseInvariant(std::get<QString>(m_value));
    if (!number)
        throw RuntimeError(ErrorNumber::TypeMismatch, std::get<QString>(m_value));
    return *number;
}

QString Value::toText() const
{
    if (const auto *text = std::get_if<QString>(&m_value))
        return *text;
    return isEmpty() ? QString() : Numbers::formatInvariant(std::get<double>(m_value));
}

bool Value::equals(double number) const
{
    if (const auto *own = std::get_if<double>(&m_value))
        return *own == number;
    return isEmpty() && number == 0;
}
