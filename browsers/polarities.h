#pragma once

#include <array>

/// A class of solvents and examples of it.
struct Polarity
{
    const char *group; ///< UTF-8
    const char *examples;
};

/// From non polar to polar; only water is more polar than the last. For the pane and the report's picture.
inline constexpr std::array Polarities{
    Polarity{"Alkanes", "Petroleum ether, Hexane"},
    Polarity{"Aromatics", "Toluene, benzene"},
    Polarity{"Ethers", "Diethyl ether"},
    Polarity{"Alkyl halides", "Tetrachloromethane, chloroform"},
    Polarity{"Esters", "Ethyl acetate"},
    Polarity{"Aldehydes and cétones", "Acetone, methylethyl ketone"},
    Polarity{"Amines", "Pyridine, triethylamine"},
    Polarity{"Alcohols", "Methanol, ethanol, 2-propanol, butanol"},
    Polarity{"Amides", "Dimethylformamide"},
    Polarity{"Carboxylic acids", "Ethanoic acid"},
};
