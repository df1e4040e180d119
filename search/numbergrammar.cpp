#include "search/numbergrammar.h"

#include "core/numbers.h"

#include <string>

using namespace Qt::StringLiterals;

namespace {

using enum SoughtQuantity::Match;

// clang-format off
constexpr SoughtQuantity Quantities[]{
    {"1H shift", "2.05 CDCl3", "1H; H1; proton; NMR; shift; δ", "ppm", 0.05, Near, "", "ListView4"},
    {"13C shift", "13C 29.9 acetone", "13C; C13; carbon; NMR; shift; δ", "ppm", 0.5, Near, "", "ListView5"},
    {"m/z", "m/z 58 43", "m/z; mz; m/e; e/m", "", 0.4, Peak, "m/z"},
    {"infrared band", "1715 cm-1", "IR; infrared; wavenumber", "cm-1; cm^-1; 1/cm", 0, Inside, ""},
    {"boiling point", "bp 80", "bp; b.p.; boiling; boiling point; boils", "°C; C", 5, Near, "bp"},
    {"melting point", "mp 16", "mp; m.p.; melting; melting point; melts", "°C; C", 5, Near, "mp"},
    {"cooling mixture", "-20 °C", "cooling; cooling mixture; cooling bath; bath", "°C; C", 5, Near, "", "ListView9"},
    {"cooling mixture with ice", "ice -20", "ice; ice/salt; ice and salt", "°C; C", 5, Near, "", "ListView9", "ice +"},
    {"cooling mixture with dry ice", "dry ice -40", "dry ice", "°C; C", 5, Near, "", "ListView9", "dry ice"},
    {"cooling mixture with liquid nitrogen", "liquid nitrogen -90", "liquid nitrogen; LN2", "°C; C", 5, Near, "", "ListView9", "liquid nitrogen"},
    {"density", "d 1.49", "d; density; volumic mass; ρ", "kg/L; g/mL; g/cm3", 0.02, Near, "d"},
    {"refractive index", "n 1.36", "n; nD; n20; n20/D; refractive index", "", 0.005, Near, "n"},
    {"molar mass", "Mw 180.16", "Mw; M; MM; molar mass; molecular weight", "g/mol", 1, Near, "M"},
    {"pKa", "pKa 4.7", "pKa; pK", "", 0.3, Near, "pKa; pKb; pKc; pKd; pKa1; pKa2; pKa3; pKa4"},
    {"isoelectric point", "pI 6", "pI; isoelectric point", "", 0.2, Near, "pI"},
    {"pH of a colour change", "pH 8.5", "pH; indicator", "", 0, Inside, "pH"},
    {"redox potential", "E 0.77", "E; E0; E°; potential", "V; mV", 0.05, Near, "E°"},
    {"excitation", "ex 488", "ex; exc; excitation; absorption", "nm", 10, Near, "ex"},
    {"emission", "em 520", "em; emission", "nm", 10, Near, "em"},
    {"mass of a protein", "66 kDa", "protein; marker; SDS-PAGE", "Da; kDa", 5000, Near, "mass", "ListView3(18)"},
};

// In the order of the cells of the shifts.
constexpr NmrSolvent Solvents[]{
    {"CDCl3", "CDCl3; chloroform-d", "chloroform"},
    {"acetone-d6", "acetone-d6; (CD3)2CO; CD3COCD3", "acetone"},
    {"DMSO-d6", "DMSO-d6; (CD3)2SO", "DMSO; dimethyl sulfoxide"},
    {"C6D6", "C6D6; benzene-d6", "benzene"},
    {"CD3CN", "CD3CN; acetonitrile-d3; MeCN-d3", "acetonitrile; MeCN"},
    {"CD3OD", "CD3OD; methanol-d4; MeOD; MeOH-d4", "methanol; MeOH"},
    {"D2O", "D2O", "water"},
};
// clang-format on

constexpr UnitMultiple Multiples[]{{"kDa", 1000}, {"mV", 0.001}};

} // namespace

bool SoughtQuantity::hasSolvents() const
{
    return unit() == u"ppm";
}

QString SoughtQuantity::unit() const
{
    return QString::fromUtf8(units).section(u"; "_s, 0, 0);
}

bool SoughtQuantity::isIn(const ListPlace &place, const AnswerColumn &column) const
{
    const std::string_view onlyList = list;
    if (!onlyList.empty() && onlyList != place.list)
        return false;
    const std::string all(labels);
    return all.empty() ? unit() == QString::fromUtf8(column.unit)
                       : ("; " + all + ";").find("; " + std::string(column.label) + ";") != std::string::npos;
}

QString SoughtQuantity::scope() const
{
    switch (match) {
    case Inside:
        return u"ranges that contain it"_s;
    case Peak:
        return u"among the ten strongest peaks"_s;
    case Near:
        break;
    }
    return (u"within "_s + Numbers::formatLocal(tolerance) + u' ' + unit()).trimmed();
}

QString SoughtQuantity::order() const
{
    return match == Near   ? u"nearest first"_s
           : match == Peak ? u"strongest first"_s
                           : u"nearest middle first"_s;
}

std::span<const SoughtQuantity> NumberGrammar::quantities()
{
    return Quantities;
}

std::span<const NmrSolvent> NumberGrammar::solvents()
{
    return Solvents;
}

std::span<const UnitMultiple> NumberGrammar::multiples()
{
    return Multiples;
}
