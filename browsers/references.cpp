#include "browsers/references.h"

#include "core/buildsettings.h"

using namespace Qt::StringLiterals;

using Kind = References::Entry::Kind;

namespace {

// A page of our own.
constexpr const char *InfraredCharts = "/vcorr.htm";

} // namespace

// NOLINTNEXTLINE(readability-function-size): a table
const QList<References::Entry> &References::page()
{
    static const QList<Entry> entries{
        {0, Kind::Heading, "Solvents"},
        {10, Kind::Source, "- CRC Handbook of Chemistry and Physics, constants of organic compounds"},
        {11, Kind::Source, "- Solvent miscibility and polarity table of HPLC manuals"},
        {13, Kind::Source, "- AqSolDB, 2019; openMV, CC BY-SA 4.0"},
        {14, Kind::Source,
         "- NMR shifts of solvents as trace impurities: J. Org. Chem. 1997, 62, 7512; "
         "Organometallics 2010, 29, 2176; Org. Process Res. Dev. 2016, 20, 661"},
        {15, Kind::Source, "- MassBank, EI records, 2025.05, CC BY-NC-SA"},
        {9, Kind::Link, "Sigma-Aldrich", "https://www.sigmaaldrich.com/", 45},

        {1, Kind::Heading, "Spectroscopy"},
        {16, Kind::Source, "- nmrshiftdb2, CC BY-SA: Magn. Reson. Chem. 2015, 53, 582"},
        {17, Kind::Source,
         "- Encyclopedia of Physical Science and Technology, 3rd ed., Infrared Spectroscopy"},
        {12, Kind::Link, "Organic chemistry - University of Wisconsin",
         "https://www.chem.wisc.edu/areas/organic/index-chem.HTM", 46},
        {31, Kind::Link, "Infrared correlation charts", InfraredCharts, 47},
        {36, Kind::Link, "IR Absorptions for Representative Functional Groups",
         "https://www2.chemistry.msu.edu/faculty/reusch/virttxtjml/Spectrpy/InfraRed/infrared.htm", 48},
        {44, Kind::Link, "SDBS - Web Spectral Database for Organic Compounds",
         "https://sdbs.db.aist.go.jp/sdbs/cgi-bin/cre_index.cgi?lang=eng", 49},

        {5, Kind::Heading, "Polymères"},
        {29, Kind::Source, "- No tables in this version"},

        {2, Kind::Heading, "Calculations"},
        {18, Kind::Source, "- CODATA recommended values of the fundamental constants, 2022"},
        {20, Kind::Source, "- The International System of Units, SI Brochure, 9th ed."},

        {3, Kind::Heading, "Solutions"},
        {21, Kind::Source, "- Memento pour le Laboratoire de Chimie, Collectif Ed., Merck"},
        {22, Kind::Source, "- Chemistry 2e, OpenStax, CC BY 4.0"},
        {24, Kind::Source, "- PHREEQC databases, USGS: minteq.v4, wateq4f, llnl, sit, ThermoChimie"},
        {25, Kind::Source, "- FPbase; McNamara-Boswell dye spectra"},
        {42, Kind::Source, "- Wikipedia, CC BY-SA: potentials, indicators, infrared bands, cooling"},
        {55, Kind::Source, "- J. Fluoresc. 2020, 30, 901, CC BY"},
        {56, Kind::Source,
         "- Merck, Riedel-deHaën, Carl-Zeiss and Olympus only name lists of Solutions, which are not "
         "from these companies"},
        {23, Kind::Link, "AnalChem Ressources",
         "https://chem.libretexts.org/Bookshelves/Analytical_Chemistry", 50},
        {26, Kind::Link, "Olympus - Microscopy Ressource Center",
         "https://www.olympusmicro.com/primer/techniques/fluorescence/fluorotable2.html", 51},
        {27, Kind::Link, "Carl-Zeiss - Fluorescence Dye",
         "https://www.micro-shop.zeiss.com/us/us_en/spektral.php?f=fa", 52},

        {4, Kind::Heading, "Réactions"},
        {28, Kind::Source, "- Names: RXNO, CC BY 4.0; mechanisms our own"},

        {6, Kind::Heading, "Elements"},
        {32, Kind::Source, "- Aldrich Periodic Table of the Elements, 2000"},
        {57, Kind::Source, "- This table and the Memento are further reading only"},
        {33, Kind::Source, "- IUPAC standard atomic weights, 2021"},
        {34, Kind::Source, "- PubChem periodic table, National Library of Medicine"},
        {35, Kind::Source, "- Chinese Phys. C 2021, 45, 030001 (NUBASE2020); Nuclear Wallet Cards"},
        {19, Kind::Link, "mendeleev - Configurations in the pictures", "https://mendeleev.readthedocs.io/",
         53},

        {8, Kind::Heading, "Biochemistry"},
        {37, Kind::Source,
         "- IUPAC Digitized pKa Dataset v1.0, CC BY-NC 4.0; its own notice is \"Reproduced by permission of "
         "IUPAC\""},
        {43, Kind::Source, "- CAS Common Chemistry, melting points, CC BY-NC 4.0"},
        {38, Kind::Source, "- IUPAC-IUBMB Nomenclature of Carbohydrates, 1996"},
        {39, Kind::Source, "- Protein electrophoresis, instruction manual with gel formulations, Bio-Rad"},
        {40, Kind::Source, "- Nature 1970, 227, 680 (gels); Electrophoresis 1988, 9, 255 (staining)"},
        {41, Kind::Source, "- NCBI genetic codes, table 1"},
        {30, Kind::Link, "Genetic code - Wikipedia", "https://fr.wikipedia.org/wiki/Code_g%C3%A9n%C3%A9tique",
         54},
    };
    return entries;
}

QString References::donationPage()
{
    return QLatin1StringView(BuildSettings::WebSite) + u"/uk/don.php"_s;
}
