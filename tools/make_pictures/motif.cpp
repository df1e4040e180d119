#include "tools/make_pictures/motif.h"

#include "tools/make_pictures/atomlabel.h"

#include <QHash>
#include <QRegularExpression>

#include <GraphMol/MolOps.h>
#include <GraphMol/PeriodicTable.h>
#include <GraphMol/RWMol.h>
#include <GraphMol/SmilesParse/SmartsWrite.h>
#include <GraphMol/SmilesParse/SmilesParse.h>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using RDKit::Atom;
using RDKit::Bond;

/// Atoms that stand for a whole group, by what their pattern demands, in the pattern's own words or in its
/// surroundings; the first that fits counts.
struct Group
{
    const char *pattern;
    const char *label;
};

constexpr std::array Groups{
    Group{"$(c1ncccc1)", "pyridyl"}, Group{"$(c1sccc1)", "thienyl"},
    Group{"$(c1occc1)", "furyl"},    Group{"$(c[o,s])", "furyl, thienyl"},
    Group{"$(c~n)", "azolyl"},       Group{"$([N&X3](=O)=O)", "NO<sub>2</sub>"},
    Group{"F,Cl,Br,I", "Hal"},       Group{"Cl,Br,F", "Hal"},
    Group{"O,Cl,F", "OR, Hal"},      Group{"C&X4,Si", "R"},
    Group{"C&X4,#14", "R"},          Group{"c&r5", "Het"},
};

/// Patterns whose first atom says too little to be drawn by itself: drawn from these SMILES, the observed
/// atom being the one numbered 1.
struct Whole
{
    const char *smarts;
    const char *smiles;
};

constexpr std::array Wholes{
    Whole{"[CX4H0;R2;$(C([CX4;R])([CX4;R])([CX4;R])[CX4;R]);x4]", "C1CCC[C:1]12CCCC2"},
    Whole{"[CX4H2]1[OX2]cc[OX2]1", "[CH2:1]1Oc2ccccc2O1"},
    Whole{"[nH;r5;!$(n:n);!$(n:c:n)]", "[nH:1]1cccc1"},
    Whole{"[nH;r5;$(n:n),$(n:c:n)]", "[nH:1]1ccnc1"},
};

/// Of the two valences that RDKit knows for tin only the higher one occurs in the motifs.
constexpr int Tin = 50;

/// What an atom of the pattern says about itself.
struct Description
{
    int element = 0;
    bool aromatic = false;
    int hydrogens = -1;   ///< -1: not said
    int connections = -1; ///< neighbours with hydrogen, -1: not said
    int charge = 0;
    QByteArray label;   ///< of a group that the atom stands for
    bool vinyl = false; ///< carries a C=C that the pattern only looks at

    bool hasHydrogenCount() const { return hydrogens >= 0; }
};

/// The pattern without its recursive parts "$(...)" and the signs before them.
QString withoutSurroundings(const QString &pattern)
{
    QString flat;
    int depth = 0;
    for (int i = 0; i < pattern.size(); ++i) {
        if (pattern.mid(i, 2) == QLatin1String("$(") || (depth > 0 && pattern[i] == u'('))
            ++depth;
        if (depth == 0)
            flat += pattern[i];
        if (depth > 0 && pattern[i] == u')')
            --depth;
        if (depth > 0 && pattern.mid(i, 2) == QLatin1String("$("))
            ++i;
    }
    return flat;
}

/// Whether the pattern asks for the surroundings "$(...)", and does not exclude them.
bool demands(const QString &pattern, const char *surroundings)
{
    const qsizetype at = pattern.indexOf(QLatin1String(surroundings));
    return at == 0 || (at > 0 && pattern[at - 1] != u'!');
}

std::optional<Description> describe(const Atom *atom)
{
    const QString pattern = QString::fromStdString(RDKit::SmartsWrite::GetAtomSmarts(atom));
    const QString flat = withoutSurroundings(pattern);
    Description description;
    description.vinyl = demands(pattern, "$(C=[C&X3])");
    for (const Group &group : Groups) {
        if (group.pattern[0] == '$' ? demands(pattern, group.pattern)
                                    : flat.contains(QLatin1String(group.pattern))) {
            description.label = group.label;
            description.element = 6;
            return description;
        }
    }
    static const QRegularExpression element(u"^\\[?(?:#([0-9]+)|([A-Z][a-z]?|[cnos]))"_s);
    const QRegularExpressionMatch match = element.match(flat);
    if (!match.hasMatch())
        return std::nullopt;
    if (match.capturedLength(1) > 0) {
        description.element = match.captured(1).toInt();
    } else {
        const QString symbol = match.captured(2);
        description.aromatic = symbol[0].isLower();
        description.element = RDKit::PeriodicTable::getTable()->getAtomicNumber(
            (symbol[0].toUpper() + symbol.mid(1)).toStdString());
    }
    static const QRegularExpression hydrogens(u"(!?)H([0-9]?)"_s);
    auto counts = hydrogens.globalMatch(flat);
    while (counts.hasNext()) {
        const QRegularExpressionMatch count = counts.next();
        const bool atLeastOne = count.capturedLength(1) > 0; // "!H0"
        const int number = atLeastOne || count.captured(2).isEmpty() ? 1 : count.captured(2).toInt();
        description.hydrogens =
            description.hasHydrogenCount() ? std::min(description.hydrogens, number) : number;
    }
    static const QRegularExpression connections(u"X([0-9])"_s);
    if (const auto found = connections.match(flat); found.hasMatch())
        description.connections = found.captured(1).toInt();
    if (description.element == 7 && description.aromatic && atom->getDegree() == 1)
        description.label = flat.contains(QLatin1String("r6")) ? "N(pyridinium)" : "N(azole)";
    description.charge = flat.contains(u'+') && !flat.contains(u',') ? 1 : 0;
    return description;
}

Bond::BondType bondType(const Bond *bond, const Description &from, const Description &to)
{
    const std::string pattern = RDKit::SmartsWrite::GetBondSmarts(bond);
    if (pattern.find('=') != std::string::npos)
        return Bond::DOUBLE;
    if (pattern.find('#') != std::string::npos)
        return Bond::TRIPLE;
    return pattern != "-" && from.aromatic && to.aromatic ? Bond::AROMATIC : Bond::SINGLE;
}

/// Builds the structure from the pattern, atom by atom.
class MotifBuilder
{
public:
    explicit MotifBuilder(const RDKit::ROMol &pattern) : m_pattern(pattern) {}

    /// False if an atom says nothing that can be drawn.
    bool build()
    {
        for (const Atom *atom : m_pattern.atoms()) {
            const std::optional<Description> description = describe(atom);
            if (!description)
                return false;
            m_descriptions << *description;
        }
        for (int i = 0; i < m_descriptions.size(); ++i)
            addAtom(i);
        for (const Bond *bond : m_pattern.bonds())
            addBond(bond);
        closeAzole();
        for (int i = 0; i < m_descriptions.size(); ++i)
            complete(i);
        m_molecule.getAtomWithIdx(0)->setProp("marked", true);
        return true;
    }

    RDKit::RWMol &molecule() { return m_molecule; }

private:
    bool inRing(int i) const { return m_pattern.getRingInfo()->numAtomRings(unsigned(i)) > 0; }

    int degree(int i) const { return int(m_pattern.getAtomWithIdx(unsigned(i))->getDegree()); }

    /// An end of the pattern that may be any carbon group or any aromatic ring.
    bool isAnyCarbon(int i) const
    {
        const Description &d = m_descriptions[i];
        const bool sp3OrOpen = d.connections < 0 || d.connections == 4;
        return i > 0 && d.label.isEmpty() && d.element == 6 && degree(i) == 1 && !d.hasHydrogenCount() &&
               !d.vinyl && singleNeighbour(i) && (d.aromatic || (sp3OrOpen && isNumberOrSp3(i)));
    }

    /// Written "#6" or with four neighbours; a plain "C" is a carbon of its own.
    bool isNumberOrSp3(int i) const
    {
        const std::string text = RDKit::SmartsWrite::GetAtomSmarts(m_pattern.getAtomWithIdx(unsigned(i)));
        return m_descriptions[i].connections == 4 || text.find("#6") != std::string::npos;
    }

    bool singleNeighbour(int i) const
    {
        const Atom *atom = m_pattern.getAtomWithIdx(unsigned(i));
        const Bond *bond = *m_pattern.atomBonds(atom).begin();
        const std::string pattern = RDKit::SmartsWrite::GetBondSmarts(bond);
        return pattern.find('=') == std::string::npos && pattern.find('#') == std::string::npos;
    }

    void addAtom(int i)
    {
        const Description &d = m_descriptions[i];
        Atom atom(d.element);
        atom.setFormalCharge(d.charge);
        atom.setIsAromatic(d.aromatic && inRing(i));
        m_molecule.addAtom(&atom, false, false);
        Atom &added = *m_molecule.getAtomWithIdx(unsigned(i));
        if (!d.label.isEmpty())
            setLabel(added, d.label, d.label);
        else if (isAnyCarbon(i))
            setLabel(added, d.aromatic ? "Ar" : "R", d.aromatic ? "Ar" : "R");
    }

    void addBond(const Bond *bond)
    {
        const unsigned from = bond->getBeginAtomIdx();
        const unsigned to = bond->getEndAtomIdx();
        const Bond::BondType type = bondType(bond, m_descriptions[int(from)], m_descriptions[int(to)]);
        const bool ring = m_pattern.getRingInfo()->numBondRings(bond->getIdx()) > 0;
        m_molecule.addBond(from, to, type == Bond::AROMATIC && !ring ? Bond::SINGLE : type);
        if (type == Bond::AROMATIC && ring)
            m_molecule.getBondBetweenAtoms(from, to)->setIsAromatic(true);
    }

    /// In a five-membered ring one nitrogen carries a substituent or hydrogen. Where the pattern does not say
    /// which, it is the last one.
    void closeAzole()
    {
        for (const auto &ring : m_pattern.getRingInfo()->atomRings()) {
            int last = -1;
            bool settled = ring.size() != 5;
            for (const int i : ring) {
                const Description &d = m_descriptions[i];
                settled = settled || !d.aromatic || d.element == 8 || d.element == 16 ||
                          (d.element == 7 && (d.connections == 3 || d.hydrogens == 1));
                if (d.element == 7)
                    last = std::max(last, i);
            }
            if (!settled && last >= 0)
                m_descriptions[last].connections = 3;
        }
    }

    void addOpenBond(int i)
    {
        Atom any(0);
        const unsigned end = m_molecule.addAtom(&any, false, false);
        m_molecule.addBond(unsigned(i), end, Bond::SINGLE);
    }

    /// Hydrogens, open bonds and the label of an atom whose neighbours in the pattern are in place.
    void complete(int i)
    {
        const Description &d = m_descriptions[i];
        Atom &atom = *m_molecule.getAtomWithIdx(unsigned(i));
        if (!d.label.isEmpty() || isAnyCarbon(i))
            return;
        if (d.vinyl) {
            Atom carbon(6);
            const unsigned other = m_molecule.addAtom(&carbon, false, false);
            m_molecule.addBond(unsigned(i), other, Bond::DOUBLE);
            addOpenBond(int(other));
            addOpenBond(int(other));
        }
        int open = openBonds(i) - (d.vinyl ? 1 : 0);
        for (; open > 0; --open)
            addOpenBond(i);
        if (d.hasHydrogenCount() || i == 0 || d.element != 6) {
            atom.setNumExplicitHs(unsigned(std::max(0, d.hydrogens)));
            atom.setNoImplicit(true);
        }
        if (i == 0)
            labelWithHydrogens(atom);
    }

    /// Bonds of the atom that the pattern leaves open. Ring carbons are drawn as a skeleton, as usual, except
    /// the observed one.
    int openBonds(int i) const
    {
        const Description &d = m_descriptions[i];
        if (d.aromatic) {
            const bool substituted =
                (d.element == 6 && d.hydrogens == 0) || (d.element == 7 && d.connections == 3);
            return substituted ? 3 - degree(i) - std::max(0, d.hydrogens) : 0;
        }
        if (d.element == 6 && inRing(i) && i != 0 && !d.hasHydrogenCount())
            return 0;
        const int hydrogens = std::max(0, d.hydrogens);
        if (d.connections >= 0)
            return d.connections - degree(i) - hydrogens;
        const int used = bondOrders(i) + hydrogens;
        if (d.element == Tin)
            return 4 - used;
        for (const int valence : RDKit::PeriodicTable::getTable()->getValenceList(d.element)) {
            if (valence + d.charge >= used)
                return valence + d.charge - used;
        }
        return 0;
    }

    int bondOrders(int i) const
    {
        double orders = 0;
        for (const Bond *bond : m_molecule.atomBonds(m_molecule.getAtomWithIdx(unsigned(i))))
            orders += bond->getBondTypeAsDouble();
        return int(std::lround(orders));
    }

    const RDKit::ROMol &m_pattern;
    QList<Description> m_descriptions;
    RDKit::RWMol m_molecule;
};

std::optional<Formula> drawnWhole(const char *smiles, const Formula::Style &style)
{
    const std::unique_ptr<RDKit::RWMol> molecule(RDKit::SmilesToMol(smiles));
    for (Atom *atom : molecule->atoms()) {
        if (atom->getAtomMapNum() == 0)
            continue;
        atom->setAtomMapNum(0);
        atom->setProp("marked", true);
        labelWithHydrogens(*atom);
    }
    return Formula(*molecule, style);
}

} // namespace

std::optional<Formula> motifFormula(const QString &smarts, const Formula::Style &style)
{
    for (const Whole &whole : Wholes) {
        if (smarts == QLatin1String(whole.smarts))
            return drawnWhole(whole.smiles, style);
    }
    try {
        const std::unique_ptr<RDKit::RWMol> pattern(RDKit::SmartsToMol(smarts.toStdString()));
        if (!pattern || pattern->getNumAtoms() == 0)
            return std::nullopt;
        RDKit::MolOps::symmetrizeSSSR(*pattern);
        MotifBuilder builder(*pattern);
        if (!builder.build())
            return std::nullopt;
        RDKit::MolOps::sanitizeMol(builder.molecule());
        return Formula(builder.molecule(), style);
    } catch (const std::exception &) { // RDKit has a type of its own for each fault
        return std::nullopt;
    }
}
