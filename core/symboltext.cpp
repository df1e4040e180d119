#include "core/symboltext.h"

#include <algorithm>
#include <array>

namespace {

// The layout of the typeface, "A" to "Z" and "a" to "z".
constexpr std::array<char16_t, 26> UpperCase{
    u'Α', u'Β', u'Χ', u'Δ', u'Ε', u'Φ', u'Γ', u'Η', u'Ι', u'ϑ', u'Κ', u'Λ', u'Μ',
    u'Ν', u'Ο', u'Π', u'Θ', u'Ρ', u'Σ', u'Τ', u'Υ', u'ς', u'Ω', u'Ξ', u'Ψ', u'Ζ',
};
constexpr std::array<char16_t, 26> LowerCase{
    u'α', u'β', u'χ', u'δ', u'ε', u'φ', u'γ', u'η', u'ι', u'ϕ', u'κ', u'λ', u'μ',
    u'ν', u'ο', u'π', u'θ', u'ρ', u'σ', u'τ', u'υ', u'ϖ', u'ω', u'ξ', u'ψ', u'ζ',
};

QChar sign(QChar c)
{
    if (c >= u'A' && c <= u'Z')
        return UpperCase[c.unicode() - u'A'];
    if (c >= u'a' && c <= u'z')
        return LowerCase[c.unicode() - u'a'];
    return c == u'-' ? u'−' : c;
}

} // namespace

QString SymbolText::toUnicode(const QString &letters)
{
    QString text = letters;
    std::transform(text.begin(), text.end(), text.begin(), sign);
    return text;
}

QString SymbolText::decayModes(const QString &letters)
{
    QString text = letters;
    std::transform(text.begin(), text.end(), text.begin(), [](QChar c) { return c.isUpper() ? c : sign(c); });
    return text;
}
