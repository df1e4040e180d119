#pragma once

#include "core/runtimeerror.h"

#include <cmath>

/// A finite number. Operations throw instead of yielding infinity or NaN: RuntimeError 11 for a division by
/// zero (also 0/0), 5 for the logarithm of a number that is not positive, 6 otherwise.
class Checked final
{
public:
    constexpr Checked(double value) : m_value(value) {}

    constexpr double value() const { return m_value; }

    friend Checked operator+(Checked a, Checked b) { return finite(a.m_value + b.m_value); }
    friend Checked operator-(Checked a, Checked b) { return finite(a.m_value - b.m_value); }
    friend Checked operator*(Checked a, Checked b) { return finite(a.m_value * b.m_value); }
    friend Checked operator/(Checked a, Checked b)
    {
        if (b.m_value == 0)
            throw RuntimeError(ErrorNumber::DivisionByZero);
        return finite(a.m_value / b.m_value);
    }
    Checked operator-() const { return -m_value; }

    /// Exact, without tolerance.
    friend bool operator==(Checked a, Checked b) { return a.m_value == b.m_value; }

    friend Checked exp(Checked x) { return finite(std::exp(x.m_value)); }
    friend Checked log(Checked x)
    {
        if (x.m_value <= 0)
            throw RuntimeError(ErrorNumber::InvalidCall);
        return std::log(x.m_value);
    }

private:
    static Checked finite(double value)
    {
        if (!std::isfinite(value))
            throw RuntimeError(ErrorNumber::Overflow);
        return value;
    }

    double m_value;
};
