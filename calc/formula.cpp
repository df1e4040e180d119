#include "calc/formula.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Group
{
    const char *abbreviation;
    const char *formula;
};

// Longer ones before those that they begin with. Pr stays praseodymium: propyl is nPr or iPr.
constexpr std::array Groups{
    Group{"Fmoc", "C15H11O2"}, Group{"TBDMS", "C6H15Si"}, Group{"TBDPS", "C16H19Si"},
    Group{"TIPS", "C9H21Si"},  Group{"Boc", "C5H9O2"},    Group{"Cbz", "C8H7O2"},
    Group{"TMS", "C3H9Si"},    Group{"TES", "C6H15Si"},   Group{"TBS", "C6H15Si"},
    Group{"PMB", "C8H9O"},     Group{"THP", "C5H9O"},     Group{"MOM", "C2H5O"},
    Group{"t-Bu", "C4H9"},     Group{"n-Bu", "C4H9"},     Group{"s-Bu", "C4H9"},
    Group{"i-Bu", "C4H9"},     Group{"i-Pr", "C3H7"},     Group{"n-Pr", "C3H7"},
    Group{"tBu", "C4H9"},      Group{"nBu", "C4H9"},      Group{"sBu", "C4H9"},
    Group{"iBu", "C4H9"},      Group{"iPr", "C3H7"},      Group{"nPr", "C3H7"},
    Group{"Me", "CH3"},        Group{"Et", "C2H5"},       Group{"Bu", "C4H9"},
    Group{"Ph", "C6H5"},       Group{"Bn", "C7H7"},       Group{"Bz", "C7H5O"},
    Group{"Ac", "C2H3O"},      Group{"Ts", "C7H7O2S"},    Group{"Ms", "CH3O2S"},
    Group{"Tf", "CF3O2S"},     Group{"Tr", "C19H15"},     Group{"Cy", "C6H11"},
    Group{"Cp", "C5H5"},
};

// Subscripts, superscripts and look-alikes as plain characters, one for one, so that positions stay those of
// the typed text.
QString plain(QString text)
{
    static constexpr QStringView From = u"₀₁₂₃₄₅₆₇₈₉⁰¹²³⁴⁵⁶⁷⁸⁹⁺⁻₊₋−–‑•⋅∙*≡#\u00A0";
    static constexpr QStringView To = u"01234567890123456789+-+----····== ";
    for (QChar &c : text) {
        if (const auto at = From.indexOf(c); at >= 0)
            c = To[at];
    }
    return text;
}

constexpr QStringView Opening = u"([{";
constexpr QStringView Closing = u")]}";

struct Charge
{
    qsizetype start; ///< where its text begins
    int value = 0;
};

class Parser
{
public:
    Parser(const QString &typed, const QSet<QString> &elements)
        : m_typed(typed), m_text(plain(typed)), m_elements(elements)
    {}

    Formula read()
    {
        const Charge charge = readCharge();
        m_end = charge.start;
        skip(u" ");
        if (m_at == m_end)
            fail(m_at, u"type a formula"_s);
        readParts();
        m_formula.charge = charge.value;
        return m_formula;
    }

private:
    using Atoms = QMap<QString, double>;

    [[noreturn]] static void fail(qsizetype position, const QString &reason)
    {
        throw FormulaError{int(position), reason};
    }

    QChar peek() const { return m_at < m_end ? m_text[m_at] : QChar(); }
    void skip(QStringView characters)
    {
        while (m_at < m_end && characters.contains(m_text[m_at]))
            ++m_at;
    }

    Charge readCharge() const;
    void readParts();
    Atoms readUnits(QChar closing);
    Atoms readUnit();
    Atoms readBracket();
    QString takeGroup();
    double readCount(bool decimals);

    static void add(Atoms &sum, const Atoms &atoms, double times)
    {
        for (auto [symbol, count] : atoms.asKeyValueRange())
            sum[symbol] += times * count;
    }

    const QString m_typed;
    const QString m_text; ///< the same in plain characters
    const QSet<QString> &m_elements;
    qsizetype m_at = 0;
    qsizetype m_end = 0;
    int m_depth = 0; ///< of open brackets
    Formula m_formula;
};

// The charge is what superscripts, a blank or "^" set apart ("SO4 2-"), or the sign at the end. "NH4+" has
// four hydrogens and "Ca2+" two charges; "SO42-" and "O2-" could be read either way.
Charge Parser::readCharge() const
{
    static const QRegularExpression raised(uR"([⁰¹²³⁴⁵⁶⁷⁸⁹]*[⁺⁻]+\s*$)"_s);
    static const QRegularExpression apart(uR"((\s+|\s*\^\s*)\(?\d*[+-]+\d*\)?\s*$)"_s);
    static const QRegularExpression ofAnAtom(uR"(^\s*[A-Z][a-z]?\K\d\+\s*$)"_s);
    static const QRegularExpression unclear(uR"((\d\d|^\s*[A-Z][a-z]?\d)[+-]\s*$)"_s);
    static const QRegularExpression sign(uR"([+-]+\s*$)"_s);
    qsizetype start = raised.match(m_typed).capturedStart();
    for (const QRegularExpression *pattern : {&apart, &ofAnAtom, &unclear, &sign}) {
        if (start >= 0)
            break;
        start = pattern->match(m_text).capturedStart();
        if (start >= 0 && pattern == &unclear)
            fail(start, u"put a blank before the charge, as in \"SO4 2-\""_s);
    }
    if (start < 0)
        return {m_text.size()};

    const QString written = m_text.sliced(start);
    QString digits = written;
    digits.removeIf([](QChar c) { return !c.isDigit(); });
    const auto minus = written.count(u'-');
    const auto size = digits.isEmpty() ? int(minus + written.count(u'+')) : digits.toInt();
    return {start, minus > 0 ? -size : size};
}

// "CuSO4·5H2O": each part with its own coefficient.
void Parser::readParts()
{
    while (true) {
        skip(u" ");
        const double times = peek().isDigit() ? readCount(true) : 1;
        add(m_formula.atoms, readUnits({}), times);
        if (m_at == m_end)
            return;
        ++m_at; // the dot between the parts
    }
}

// Up to the closing bracket, or the end of the part.
Parser::Atoms Parser::readUnits(QChar closing)
{
    static constexpr QStringView Bonds = u" -=";
    Atoms atoms;
    skip(Bonds);
    const qsizetype start = m_at;
    while (m_at < m_end && peek() != closing && !(closing.isNull() && (peek() == u'·' || peek() == u'.'))) {
        const Atoms unit = readUnit();
        add(atoms, unit, peek().isDigit() ? readCount(false) : 1);
        skip(Bonds);
    }
    if (m_at == start)
        fail(m_at, u"an element is missing here"_s);
    return atoms;
}

Parser::Atoms Parser::readUnit()
{
    if (Opening.contains(peek()))
        return readBracket();
    if (const QString group = takeGroup(); !group.isEmpty()) {
        if (!m_formula.groups.contains(group))
            m_formula.groups << group;
        return Parser(FormulaGroups::formula(group), m_elements).read().atoms;
    }
    if (!peek().isUpper())
        fail(m_at, peek().isDigit() ? u"a number needs an element before it"_s
                   : Closing.contains(peek())
                       ? u"this bracket was not opened"_s
                       : u"\"%1\" is no element; symbols begin with a capital"_s.arg(peek()));
    const qsizetype start = m_at++;
    skip(u"abcdefghijklmnopqrstuvwxyz");
    const QString symbol = m_text.sliced(start, m_at - start);
    if (!m_elements.contains(symbol) && symbol != "D"_L1 && symbol != "T"_L1)
        fail(start, u"\"%1\" is neither an element nor a group"_s.arg(symbol));
    return {{symbol, 1}};
}

Parser::Atoms Parser::readBracket()
{
    constexpr int Deepest = 20; // a pasted text must not exhaust the stack
    const qsizetype opened = m_at;
    if (++m_depth > Deepest)
        fail(opened, u"more than %1 brackets in one another"_s.arg(Deepest));
    const QChar closing = Closing[Opening.indexOf(m_text[m_at++])];
    const Atoms atoms = readUnits(closing);
    if (m_at == m_end)
        fail(opened, u"this bracket is not closed"_s);
    ++m_at;
    --m_depth;
    return atoms;
}

// "Ac" and "Ts" are groups in a compound; alone they are the elements.
QString Parser::takeGroup()
{
    const QStringView rest = QStringView(m_text).sliced(m_at, m_end - m_at);
    for (const Group &group : Groups) {
        const QLatin1StringView abbreviation(group.abbreviation);
        const bool goesOn = rest.size() > abbreviation.size() && rest[abbreviation.size()].isLower();
        const bool element = abbreviation == "Ac"_L1 || abbreviation == "Ts"_L1;
        if (!rest.startsWith(abbreviation) || goesOn || (element && m_text.trimmed() == abbreviation))
            continue;
        m_at += abbreviation.size();
        return abbreviation;
    }
    return {};
}

// After an element a point ends the number ("CuSO4.5H2O"), unless the number begins with 0 ("Fe0.95O").
// Before one it is a decimal point ("1.5H2O").
double Parser::readCount(bool decimals)
{
    const qsizetype start = m_at;
    skip(u"0123456789");
    const bool zero = QStringView(m_text).sliced(start, m_at - start) == u"0";
    if ((decimals || zero) && peek() == u'.' && m_at + 1 < m_end && m_text[m_at + 1].isDigit()) {
        ++m_at;
        skip(u"0123456789");
    }
    const double count = QStringView(m_text).sliced(start, m_at - start).toDouble();
    if (count <= 0 || count > 1e6)
        fail(start, u"a number of atoms is between 0 and a million"_s);
    return count;
}

} // namespace

std::variant<Formula, FormulaError> Formula::parse(const QString &text, const QSet<QString> &elements)
{
    try {
        return Parser(text, elements).read();
    } catch (const FormulaError &error) {
        return error;
    }
}

QStringList Formula::hillOrder() const
{
    QStringList symbols = atoms.keys();
    if (!atoms.contains(u"C"_s))
        return symbols;
    static const QStringList first{u"C"_s, u"H"_s, u"D"_s, u"T"_s};
    std::stable_sort(symbols.begin(), symbols.end(), [](const QString &a, const QString &b) {
        const auto rank = [](const QString &symbol) { return size_t(first.indexOf(symbol)); };
        return rank(a) < rank(b); // one that is not among the first has the highest
    });
    return symbols;
}

QString Formula::hill() const
{
    QString text;
    for (const QString &symbol : hillOrder()) {
        const double count = atoms[symbol];
        text += symbol + (count == 1 ? QString() : QString::number(count, 'g', 10));
    }
    return text;
}

QString FormulaGroups::formula(const QString &abbreviation)
{
    const auto found = std::find_if(Groups.begin(), Groups.end(), [&](const Group &group) {
        return abbreviation == QLatin1StringView(group.abbreviation);
    });
    return found == Groups.end() ? QString() : QString::fromLatin1(found->formula);
}
