#include "charts/spectroscopymodes.h"

namespace SpectroscopyModes {

const QStringList &captions()
{
    static const QStringList table{
        QStringLiteral("Proton NMR (1H NMR)"),
        QStringLiteral("Carbon NMR (13C NMR)"),
        QStringLiteral("Infrared (IR) - Charts"),
        QStringLiteral("Infrared (IR) - Table"),
    };
    return table;
}

const QList<Visibility> &visibility()
{
    static const QList<Visibility> table{
        // control            1H     13C    charts table
        {"VScroll10", {false, false, false, false}},     {"ListView3(15)", {true, false, false, false}},
        {"ListView3(16)", {false, true, false, false}},  {"ListView3(5)", {false, false, true, false}},
        {"ListView3(27)", {false, false, false, true}},  {"frmirb", {false, false, false, true}},
        {"grdFrame17(0)", {true, true, true, false}},    {"grdFrame17(1)", {true, true, true, true}},
        {"grdFrame17(2)", {false, false, false, false}}, {"Line12(3)", {true, true, true, true}},
        {"Shape2(4)", {true, true, true, false}},        {"Shape2(5)", {true, true, true, false}},
        {"Shape2(6)", {true, true, true, true}},         {"Shape2(7)", {true, true, true, true}},
        {"Shape2(8)", {false, false, false, false}},     {"Shape2(9)", {false, false, false, false}},
        {"Label19(25)", {true, true, false, false}},     {"Label20", {true, true, true, false}},
        {"Label24", {false, false, false, false}},       {"Label25", {false, false, false, false}},
        {"Label26", {false, false, false, false}},       {"Label27", {false, false, false, false}},
        {"Command1", {true, true, true, false}},
    };
    return table;
}

const Settings &settings(SpectroscopyMode mode)
{
    static constexpr Places NmrPlaces{60, 0, 840, 6840, 840, 6825};
    static constexpr Places IrPlaces{-60, 100, 1080, 6720, 1170, 6630};
    static constexpr const char *Heading = "Functional group";
    static constexpr const char *References = "Display explanation of references";
    static constexpr const char *ColourCode = "Display color code";
    // The infrared charts take over the title of the last NMR chart, until a row is chosen.
    static const std::array<Settings, Count> table{{
        {true, NmrPlaces, Heading, References},
        {true, NmrPlaces, Heading, References},
        {false, IrPlaces, Heading, ColourCode},
        {false, std::nullopt, nullptr, nullptr},
    }};
    return table[size_t(mode)];
}

} // namespace SpectroscopyModes
