#include "electronics/eia96.h"

#include "core/numbers.h"
#include "core/runtimeerror.h"

#include <array>

namespace {

struct Multiplier
{
    const char *letter;
    double value;
};

constexpr std::array<Multiplier, 8> Multipliers{{
    {"Y", 0.01},
    {"X", 0.1},
    {"A", 1},
    {"B", 10},
    {"C", 100},
    {"D", 1000},
    {"E", 10000},
    {"F", 100000},
}};

double multiplierOf(const QString &letter)
{
    for (const Multiplier &each : Multipliers) {
        if (letter == QLatin1StringView(each.letter))
            return each.value;
    }
    return 0;
}

} // namespace

const QStringList &Eia96::letters()
{
    static const QStringList table = [] {
        QStringList letters;
        for (const Multiplier &each : Multipliers)
            letters << QLatin1StringView(each.letter);
        return letters;
    }();
    return table;
}

Eia96::Marking Eia96::decode(const QString &code, const QString &valeur, const QString &letter)
{
    Marking marking{code, QString(letter).remove(QLatin1Char(' ')), std::nullopt};
    if (code.isEmpty() || letter.isEmpty())
        return marking;
    const std::optional<double> base = Numbers::parseInvariant(valeur);
    if (!base)
        throw RuntimeError(ErrorNumber::TypeMismatch, valeur);
    marking.value = Numbers::formatLocal(*base * multiplierOf(letter));
    return marking;
}
