#include "widgets/textboxm.h"

#include "core/numbers.h"

#include <QLocale>
#include <QSignalBlocker>
#include <QValidator>
#include <algorithm>

namespace {

bool isMinus(QChar c)
{
    static const QString minus = QLocale::system().negativeSign();
    return c == QLatin1Char('-') || minus == c;
}

/// True if @p text is @p whole with one stretch taken out: what Delete, Backspace and Cut can leave.
bool isReductionOf(const QString &text, const QString &whole)
{
    if (text.size() >= whole.size())
        return false;
    const auto head = std::mismatch(text.begin(), text.end(), whole.begin()).first - text.begin();
    const auto tail = std::mismatch(text.rbegin(), text.rend(), whole.rbegin()).first - text.rbegin();
    return head + tail >= text.size();
}

/// The text without the exponent sign that lost its digits: "1E-" is on its way to "1".
QString withoutBareExponent(QString text)
{
    const auto isDigit = [](QChar c) { return c.isDigit(); };
    const qsizetype exponent = text.indexOf(QLatin1Char('E'), 0, Qt::CaseInsensitive);
    if (exponent > 0 && std::none_of(text.begin() + exponent, text.end(), isDigit))
        text.truncate(exponent);
    return text;
}

} // namespace

class TextBoxM::Limits final : public QValidator
{
public:
    explicit Limits(TextBoxM *box) : QValidator(box), m_box(*box) {}

    State validate(QString &text, int &position) const override
    {
        if (text.isEmpty() || text == m_box.m_text)
            return Acceptable;
        QString entry = m_box.m_tipodedato == AnyText ? text : completed(text.trimmed());
        if (fits(entry)) {
            adopt(text, position, entry);
            return Acceptable;
        }
        if (!isReductionOf(text, m_box.m_text))
            return Invalid;
        entry = withoutBareExponent(text);
        if (m_box.m_tipodedato != AnyText && !Numbers::read(entry))
            return Invalid;
        adopt(text, position, entry);
        return Acceptable;
    }

private:
    // Never an entry that is no number and cannot be told from one: a separator alone gets its zero.
    static QString completed(QString entry)
    {
        const QString point = Numbers::decimalPoint();
        entry.replace(QLatin1Char('.'), point);
        const bool noDigit = std::none_of(entry.begin(), entry.end(), [](QChar c) { return c.isDigit(); });
        if (noDigit && entry.endsWith(point))
            entry.insert(entry.size() - point.size(), QLatin1Char('0'));
        return entry;
    }

    bool fits(const QString &entry) const
    {
        if (m_box.m_maxlength > 0 && entry.size() > m_box.m_maxlength)
            return false;
        if (m_box.m_tipodedato == AnyText)
            return true;
        const bool minus = !entry.isEmpty() && isMinus(entry.front());
        if (minus && m_box.m_tipodedato != SignedNumber)
            return false;
        return (minus && entry.size() == 1) ||
               (isDecimal(entry.sliced(minus ? 1 : 0)) && Numbers::read(entry));
    }

    // Digits with at most one separator; signs and exponents are no part of it.
    bool isDecimal(const QString &digits) const
    {
        const QStringList parts = digits.split(Numbers::decimalPoint());
        const auto isDigits = [](const QString &part) {
            return std::all_of(part.begin(), part.end(), [](QChar c) { return c.isDigit(); });
        };
        if (parts.size() > 2 || !std::all_of(parts.begin(), parts.end(), isDigits))
            return false;
        return parts.size() == 1 || (m_box.m_decimales > 0 && parts.last().size() <= m_box.m_decimales);
    }

    static void adopt(QString &text, int &position, const QString &entry)
    {
        position = std::clamp(position + int(entry.size() - text.size()), 0, int(entry.size()));
        text = entry;
    }

    const TextBoxM &m_box;
};

TextBoxM::TextBoxM(QWidget *parent) : QLineEdit(parent), m_limits(new Limits(this))
{
    setValidator(m_limits);
    // The first to hear of a change, before any handler that writes into the field again.
    connect(this, &QLineEdit::textChanged, this, &TextBoxM::rememberText);
}

TextBoxM::TextBoxM(Entry tipodedato, int decimales, int maxlength, QWidget *parent) : TextBoxM(parent)
{
    m_tipodedato = tipodedato;
    m_decimales = decimales;
    m_maxlength = maxlength;
}

void TextBoxM::rememberText(const QString &text)
{
    const bool judgedWell = hasAcceptableInput();
    m_text = text;
    if (judgedWell)
        return;
    // A text of the program's that nobody could type. The line edit took it, but having met an invalid text
    // it would let the next key press pass unjudged; so it gets the text once more, as the one known to be
    // right.
    const QSignalBlocker silence(this);
    const int position = cursorPosition();
    setText({});
    m_text = text;
    setText(text);
    setCursorPosition(position);
}
