#include "calc/plainanswer.h"

#include "calc/glassware.h"
#include "core/numbers.h"

#include <algorithm>
#include <cmath>

using namespace CalcFields;
using namespace Qt::StringLiterals;

namespace {

using Numbers::formatLocal;

constexpr double MillilitresPerLitre = 1000;

/// The positive numbers of the fields.
class Figures
{
public:
    explicit Figures(const FieldTexts &texts) : m_texts(texts) {}

    /// 0 for an empty field and for what is not above 0.
    double operator[](Field field) const
    {
        return std::max(Numbers::parseLocal(m_texts[field]).value_or(0), 0.0);
    }
    bool has(std::initializer_list<Field> fields) const
    {
        return std::all_of(fields.begin(), fields.end(), [this](Field field) { return (*this)[field] > 0; });
    }

private:
    const FieldTexts &m_texts;
};

QString litres(double volume)
{
    return Glassware::volume(volume * MillilitresPerLitre);
}

// "83.3 mmol/L": the unit that leaves at least one digit before the point.
QString withPrefix(double number, const QString &unit)
{
    struct Prefix
    {
        double factor;
        QStringView text;
    };
    static constexpr Prefix Prefixes[]{{1, u""}, {1e-3, u"m"}, {1e-6, u"µ"}, {1e-9, u"n"}};
    const auto *prefix = std::begin(Prefixes);
    while (number < prefix->factor && prefix + 1 != std::end(Prefixes))
        ++prefix;
    return formatLocal(number / prefix->factor, 4) + u' ' + prefix->text.toString() + unit;
}

} // namespace

// C, n and V share the fields of the first tabs.
QString PlainAnswer::concentration(const FieldTexts &texts)
{
    const Figures figures(texts);
    constexpr Field C = TextBoxM3;
    constexpr Field n = TextBoxM4;
    constexpr Field V = TextBoxM5;
    if (!figures.has({C, n, V}))
        return {};
    return u"%1 in %2: %3"_s.arg(withPrefix(figures[n], u"mol"_s), litres(figures[V]),
                                 withPrefix(figures[C], u"mol/L"_s));
}

QString PlainAnswer::dilution(const FieldTexts &texts)
{
    const Figures figures(texts);
    constexpr double Tolerance = 0.001; // relative; typed figures are rounded
    if (!figures.has({Vi, Vf}) || figures[Vi] > figures[Vf])
        return {};
    const QString amounts = u"%1, made up to %2; 1 in %3"_s.arg(litres(figures[Vi]), litres(figures[Vf]),
                                                                formatLocal(figures[Vf] / figures[Vi], 3));
    const double before = figures[Ci] * figures[Vi];
    const double after = figures[Cf] * figures[Vf];
    if (figures.has({Ci, Cf}) && std::abs(before - after) > Tolerance * after)
        return amounts + u". Attention: Ci · Vi is %1 mol, Cf · Vf is %2 mol"_s.arg(formatLocal(before, 4),
                                                                                    formatLocal(after, 4));
    return amounts;
}

QString PlainAnswer::fractions(const FieldTexts &texts)
{
    const Figures figures(texts);
    if (!figures.has({Xn1, Xm1}) || figures[Xn1] > 1 || figures[Xm1] > 1)
        return {};
    const auto both = [](double share) {
        return u"%1 % and %2 %"_s.arg(formatLocal(100 * share, 3), formatLocal(100 * (1 - share), 3));
    };
    return u"By amount %1, by mass %2"_s.arg(both(figures[Xn1]), both(figures[Xm1]));
}
