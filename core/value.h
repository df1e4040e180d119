#pragma once

#include <QString>
#include <variant>

/// The value of an option slot: empty, a number or a text.
///
/// Empty equals the number 0 and never 1; a text never equals a number, even if it reads like one.
class Value final
{
public:
    Value() = default;
    Value(double number) : m_value(number) {}
    Value(int number) : m_value(double(number)) {}
    Value(QString text) : m_value(std::move(text)) {}

    bool isEmpty() const { return std::holds_alternative<std::monostate>(m_value); }
    bool isText() const { return std::holds_alternative<QString>(m_value); }
    bool isNumber() const { return std::holds_alternative<double>(m_value); }

    /// The number; 0 when empty. A text that reads as a number in the file's notation ("." as separator)
    /// gives it, any other text is a type mismatch: RuntimeError 13.
    double toNumber() const;

    /// The text; a number in the notation of the options file: 15 significant digits, "." as separator.
    QString toText() const;

    /// True if this is the number @p number, or empty and @p number is 0.
    bool equals(double number) const;

    friend bool operator==(const Value &a, const Value &b) { return a.m_value == b.m_value; }

private:
    std::variant<std::monostate, double, QString> m_value;
};
