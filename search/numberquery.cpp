#include "search/numberquery.h"

#include "search/folding.h"

#include <QHash>
#include <QStringList>
#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Quantities = NumberQuery::Quantities;
using Term = NumberQuery::Term;

constexpr qsizetype LongestPhrase = 3; // words

struct Token
{
    enum Kind { Word, Unit, Solvent, PlainSolvent, Filler, Number };

    Kind kind = Filler;
    Quantities quantities = {}; ///< of a word or a unit
    int solvent = -1;
    double factor = 1; ///< of a unit
    QString text = {}; ///< a number as typed, a unit as in the grammar
    NumberSpan span = {};
};

QString folded(const QString &text)
{
    return QString::fromStdString(Folding::fold(text));
}

QStringList phrases(const char *list)
{
    return QString::fromUtf8(list).split(u"; "_s, Qt::SkipEmptyParts);
}

double factorOf(const QString &unit)
{
    for (const UnitMultiple &multiple : NumberGrammar::multiples()) {
        if (unit == QLatin1StringView(multiple.unit))
            return multiple.factor;
    }
    return 1;
}

// The tokens of all words of the grammar, by their folded text.
QHash<QString, Token> makeVocabulary()
{
    QHash<QString, Token> vocabulary;
    for (const QString &filler : phrases(NumberGrammar::Fillers))
        vocabulary[filler] = {};
    for (size_t index = 0; const SoughtQuantity &quantity : NumberGrammar::quantities()) {
        for (const QString &unit : phrases(quantity.units)) {
            Token &token = vocabulary[folded(unit)];
            token.quantities.set(index);
            token = {Token::Unit, token.quantities, -1, factorOf(unit), unit};
        }
        for (const QString &word : phrases(quantity.words)) {
            Token &token = vocabulary[folded(word)];
            token.kind = Token::Word;
            token.quantities.set(index);
        }
        ++index;
    }
    for (int index = 0; const NmrSolvent &solvent : NumberGrammar::solvents()) {
        for (const QString &word : phrases(solvent.words))
            vocabulary[folded(word)] = {Token::Solvent, {}, index};
        for (const QString &word : phrases(solvent.plain))
            vocabulary[folded(word)] = {Token::PlainSolvent, {}, index};
        ++index;
    }
    return vocabulary;
}

const QHash<QString, Token> &vocabulary()
{
    static const QHash<QString, Token> words = makeVocabulary();
    return words;
}

// The longest phrase first: "dry ice" is not "ice".
std::optional<Token> takePhrase(QStringList &words)
{
    for (qsizetype length = std::min(LongestPhrase, words.size()); length > 0; --length) {
        const auto found = vocabulary().constFind(words.first(length).join(u' '));
        if (found != vocabulary().constEnd()) {
            words.remove(0, length);
            return *found;
        }
    }
    return {};
}

// A unit may follow without a blank; it becomes the next word.
std::optional<Token> takeNumber(QStringList &words)
{
    const QString word = words.takeFirst();
    QStringView rest;
    const std::optional<NumberSpan> span = NumberSpan::typed(word, &rest);
    if (!span)
        return {};
    if (!rest.isEmpty()) {
        const Token unit = vocabulary().value(rest.toString());
        if (unit.kind != Token::Unit)
            return {};
        words.prepend(rest.toString());
    }
    return Token{Token::Number, {}, -1, 1, word.chopped(rest.size()), *span};
}

// Nothing if the grammar lacks a word.
std::optional<QList<Token>> tokensOf(const QString &typed)
{
    QStringList words = folded(typed).replace(u'=', u' ').simplified().split(u' ', Qt::SkipEmptyParts);
    for (QString &word : words) {
        while (word.endsWith(u',') || word.endsWith(u';') || word.endsWith(u':'))
            word.chop(1);
    }
    words.removeAll(QString());
    QList<Token> tokens;
    while (!words.isEmpty()) {
        std::optional<Token> token = takePhrase(words);
        if (!token)
            token = takeNumber(words);
        if (!token)
            return {};
        if (token->kind != Token::Filler)
            tokens << *token;
    }
    return tokens;
}

// "29.9 13C" as "13C 29.9": the first words in front of the numbers.
void moveWordsToFront(QList<Token> &tokens)
{
    const auto isWord = [](const Token &token) { return token.kind == Token::Word; };
    const auto first = std::ranges::find_if(tokens, isWord);
    std::rotate(tokens.begin(), first, std::find_if_not(first, tokens.end(), isWord));
}

Quantities quantitiesThat(bool (*has)(const SoughtQuantity &))
{
    Quantities found;
    for (size_t index = 0; const SoughtQuantity &quantity : NumberGrammar::quantities())
        found.set(index++, has(quantity));
    return found;
}

// What a number without a word may be, as far as a unit says so.
Quantities withoutWord()
{
    return quantitiesThat([](const SoughtQuantity &quantity) { return *quantity.only == '\0'; });
}

Quantities shifts()
{
    return quantitiesThat([](const SoughtQuantity &quantity) { return quantity.hasSolvents(); });
}

/// Builds the query from its tokens.
class Assembly final
{
public:
    void add(const Token &token)
    {
        switch (token.kind) {
        case Token::Word: // "13C NMR" is carbon: words in a row choose together
            m_chosen = m_isAfterWord ? m_chosen & token.quantities : token.quantities;
            m_pending = m_query.terms.size();
            break;
        case Token::Unit:
            apply(token);
            break;
        case Token::Number:
            m_query.terms << Term{m_chosen, token.span, token.text, {}};
            break;
        default:
            m_query.solvent = token.solvent;
            m_plainSolvent = token.kind == Token::PlainSolvent;
        }
        m_isAfterWord = token.kind == Token::Word;
    }

    // Nothing if a number may be anything, or nothing.
    std::optional<NumberQuery> finished()
    {
        for (Term &term : m_query.terms) {
            if (m_query.solvent >= 0 && (term.quantities != withoutWord() || isShift(term.number)))
                term.quantities &= shifts();
            if (term.quantities.none() || term.quantities == withoutWord())
                return {};
        }
        return m_query.terms.isEmpty() ? std::nullopt : std::optional(m_query);
    }

private:
    // A unit is that of the numbers before it, back to the last word or unit. "ppm 2.05" is understood too.
    void apply(const Token &unit)
    {
        if (m_query.terms.isEmpty())
            m_chosen &= unit.quantities;
        for (; m_pending < m_query.terms.size(); ++m_pending) {
            Term &term = m_query.terms[m_pending];
            term.quantities &= unit.quantities;
            term.span = {term.span.low * unit.factor, term.span.high * unit.factor};
            term.unit = unit.text;
        }
    }

    // A whole number beside "acetone" may belong to a name.
    bool isShift(const QString &number) const
    {
        return !m_plainSolvent || number.contains(u'.') || number.contains(u',');
    }

    NumberQuery m_query;
    Quantities m_chosen = withoutWord();
    qsizetype m_pending = 0; ///< the first term that may meet a unit
    bool m_isAfterWord = false;
    bool m_plainSolvent = false;
};

QString joined(QStringList texts, const QString &last)
{
    texts.removeDuplicates();
    const QString end = texts.takeLast();
    return texts.isEmpty() ? end : texts.join(u", "_s) + last + end;
}

template<class Text>
QStringList each(Quantities quantities, Text text)
{
    QStringList texts;
    for (size_t index = 0; const SoughtQuantity &quantity : NumberGrammar::quantities()) {
        if (quantities.test(index++))
            texts << std::invoke(text, quantity);
    }
    return texts;
}

// "1H shift 2.05 ppm in CDCl3, within 0.05 ppm, or 13C shift, within 0.5 ppm, nearest first"
QString wordsOf(const QList<Term> &terms, const QString &solvent)
{
    const Quantities quantities = terms.constFirst().quantities;
    QStringList names = each(quantities, &SoughtQuantity::name);
    const QStringList scopes = each(quantities, &SoughtQuantity::scope);
    if (scopes.count(scopes.constFirst()) == scopes.size())
        names = {joined(names, u" or "_s)};
    QStringList numbers;
    for (const Term &term : terms)
        numbers << term.number;
    const QString typed = terms.constLast().unit;
    const QString unit = typed.isEmpty() ? each(quantities, &SoughtQuantity::unit).constFirst() : typed;
    names.first() += u' ' + (joined(numbers, u" and "_s) + u' ' + unit).trimmed() + solvent;
    for (qsizetype index = 0; index < names.size(); ++index)
        names[index] += u", "_s + scopes[index];
    return names.join(u", or "_s) + u", "_s + each(quantities, &SoughtQuantity::order).constFirst();
}

} // namespace

std::optional<NumberQuery> NumberQuery::parse(const QString &typed)
{
    std::optional<QList<Token>> tokens = tokensOf(typed);
    if (!tokens)
        return {};
    moveWordsToFront(*tokens);
    Assembly assembly;
    for (const Token &token : *tokens)
        assembly.add(token);
    return assembly.finished();
}

QString NumberQuery::understood() const
{
    const QString where =
        u" in "_s + (solvent < 0 ? "any solvent" : NumberGrammar::solvents()[size_t(solvent)].name);
    QStringList parts;
    for (qsizetype begin = 0, end = 0; begin < terms.size(); begin = end) {
        while (end < terms.size() && terms[end].quantities == terms[begin].quantities)
            ++end;
        const bool hasSolvent = (terms[begin].quantities & shifts()).any();
        parts << wordsOf(terms.sliced(begin, end - begin), hasSolvent ? where : QString());
    }
    if (terms.size() > 1)
        parts << u"what has %1 comes first"_s.arg(terms.size() == 2 ? u"both"_s : u"all"_s);
    return parts.join(u"; "_s);
}
