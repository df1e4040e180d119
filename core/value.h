#pragma once

#include <QString>
#include <variant>

/// The value of an option slot: empty, a number or a text. Empty equals 0; a text never equals a number.
class Value final
{
public:
    Value() = default;
    Value(double number) : m_value(number) {}
    Value(int number) : m_value(double(number)) {}
    Value(QString text) : m_value(std::move(text)) {}

    bool isEmpty() const { return std::holds_alternative<std::monostate>(m_value); }
    bool isText() const { return std::holds_alternative<QString>(m_value); }

    /// The number; 0 if empty. A text is parsed in the C locale; RuntimeError 13 if it is not a number.
    double toNumber() const;

    /// The text, or the number in the C locale with up to 15 significant digits.
    QString toText() const;

    bool equals(double number) const { return *this == Value(number) || (isEmpty() && number == 0); }

    friend bool operator==(const Value &a, const Value &b) { return a.m_value == b.m_value; }

private:
    std::variant<std::monostate, double, QString> m_value;
};
