#pragma once

#include <QList>
#include <QString>
#include <array>
#include <bit>
#include <initializer_list>

namespace CalcFields {

/// The entry fields of the solution calculators. The first fifteen are `TextBoxM7(0)` to `TextBoxM7(14)`; the
/// last three change their meaning with tabs 1 to 3.
enum Field {
    Xn1, ///< molar fractions
    Xn2,
    Xm1, ///< massic fractions
    Xm2,
    M1, ///< molar masses, g/mol
    M2,
    Ci, ///< initial and final concentration, mol/L, and volume, L
    Vi,
    Cf,
    Vf,
    T,      ///< dilution ratio
    Tc,     ///< temperature, degrees Celsius
    P,      ///< pressure, any unit
    TcStar, ///< boiling temperature at the reference pressure, degrees Celsius
    PStar,  ///< reference pressure, in the unit of P
    TextBoxM3,
    TextBoxM4,
    TextBoxM5,
    FieldCount
};

inline constexpr int TextBoxM7Count = PStar + 1;

} // namespace CalcFields

using CalcFields::Field;

using FieldTexts = std::array<QString, CalcFields::FieldCount>;

/// A new text for a field.
struct Change
{
    Field field;
    QString text;

    friend bool operator==(const Change &a, const Change &b) = default;
};

class FieldSet final
{
public:
    constexpr FieldSet(std::initializer_list<Field> fields)
    {
        for (const Field field : fields)
            m_bits |= 1u << field;
    }
    constexpr bool contains(Field field) const { return (m_bits & (1u << field)) != 0; }
    constexpr bool contains(FieldSet other) const { return (m_bits & other.m_bits) == other.m_bits; }
    constexpr bool meets(FieldSet other) const { return (m_bits & other.m_bits) != 0; }
    constexpr int size() const { return std::popcount(m_bits); }
    constexpr void insert(Field field) { m_bits |= 1u << field; }
    constexpr FieldSet operator&(FieldSet other) const
    {
        other.m_bits &= m_bits;
        return other;
    }

private:
    unsigned m_bits = 0;
};
