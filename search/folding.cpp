#include "search/folding.h"

#include "core/symboltext.h"

#include <QString>
#include <array>

namespace {

// From alpha to omega, in the order of Unicode, which has a second sigma.
constexpr std::array GreekNames{"alpha",   "beta", "gamma", "delta",  "epsilon", "zeta", "eta",
                                "theta",   "iota", "kappa", "lambda", "mu",      "nu",   "xi",
                                "omicron", "pi",   "rho",   "sigma",  "sigma",   "tau",  "upsilon",
                                "phi",     "chi",  "psi",   "omega"};
constexpr char16_t Alpha = u'α';
constexpr char16_t Minus = u'−';
constexpr char16_t Apostrophe = u'’';

const char *nameOfGreek(QChar letter)
{
    const int index = letter.unicode() - Alpha;
    return index >= 0 && index < int(GreekNames.size()) ? GreekNames[size_t(index)] : nullptr;
}

// A character of a decomposed text.
std::string foldedPart(QChar part)
{
    const QChar small = part.toCaseFolded();
    if (const char *greek = nameOfGreek(small))
        return greek;
    if (part.isMark())
        return {};
    if (part.category() == QChar::Punctuation_Dash || part == Minus)
        return "-";
    if (part == Apostrophe)
        return "'";
    return QString(small).toStdString();
}

} // namespace

std::string Folding::fold(QStringView text, QList<qsizetype> *origins)
{
    std::string folded;
    folded.reserve(size_t(text.size()));
    for (qsizetype index = 0; index < text.size(); ++index) {
        const char16_t c = text[index].unicode();
        if (c < 0x80) {
            folded += char(c >= u'A' && c <= u'Z' ? c + (u'a' - u'A') : c);
        } else {
            for (const QChar part : QString(text[index]).normalized(QString::NormalizationForm_KD))
                folded += foldedPart(part);
        }
        if (origins)
            origins->resize(qsizetype(folded.size()), index);
    }
    return folded;
}

std::string Folding::greekName(char letter)
{
    const QString sign = SymbolText::toUnicode(QString(QLatin1Char(letter)));
    const std::string name = fold(sign);
    return name.size() > 1 ? name : std::string();
}

bool Folding::isOfWord(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= '0' && byte <= '9') ||
           static_cast<unsigned char>(byte) >= 0x80;
}
