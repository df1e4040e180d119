#include "electronics/eia96.h"

#include "core/numbers.h"

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
        if (letter == each.letter)
            return each.value;
    }
    return 0;
}

} // namespace

QStringList Eia96::letters()
{
    QStringList letters;
    for (const Multiplier &each : Multipliers)
        letters << each.letter;
    return letters;
}

Eia96::Marking Eia96::decode(const QString &code, const QString &valeur, const QString &letter)
{
    Marking marking{code, QString(letter).remove(u' '), std::nullopt};
    if (!code.isEmpty() && !letter.isEmpty())
        marking.value = Numbers::formatLocal(Numbers::requireInvariant(valeur) * multiplierOf(letter));
    return marking;
}
