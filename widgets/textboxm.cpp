#include "widgets/textboxm.h"

#include "core/numberentry.h"
#include "core/numbers.h"
#include "widgets/fieldhint.h"

#include <QAction>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStyle>
#include <QValidator>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// True if @p text is @p whole with one stretch deleted.
bool isReductionOf(const QString &text, const QString &whole)
{
    if (text.size() >= whole.size())
        return false;
    const auto head = std::mismatch(text.begin(), text.end(), whole.begin()).first - text.begin();
    const auto tail = std::mismatch(text.rbegin(), text.rend(), whole.rbegin()).first - text.rbegin();
    return head + tail >= text.size();
}

/// The text without an exponent sign that has no digits: "1" for "1E-".
QString withoutBareExponent(QString text)
{
    const auto isDigit = [](QChar c) { return c.isDigit(); };
    const qsizetype exponent = text.indexOf(u'E', 0, Qt::CaseInsensitive);
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
        // After setText() there is nothing to undo; after an undo, which restores an old text, there is a
        // redo.
        const bool isEdit = m_box.isUndoAvailable() && !m_box.isRedoAvailable();
        if (!isEdit || text.isEmpty() || text == m_box.m_text)
            return Acceptable;
        const std::optional<QString> entry = judge(text);
        if (!entry)
            return Invalid;
        position = std::clamp(position + int(entry->size() - text.size()), 0, int(entry->size()));
        text = *entry;
        return Acceptable;
    }

private:
    std::optional<QString> judge(const QString &text) const
    {
        if (m_box.m_tipodedato == AnyText)
            return m_box.m_maxlength > 0 && text.size() > m_box.m_maxlength ? std::nullopt
                                                                            : std::optional(text);
        if (isReductionOf(text, m_box.m_text))
            return reduced(text);
        if (!m_box.isTyping())
            return m_box.numberEntry().pasted(text);
        // Each key must leave a number, which "1E" is not.
        return m_box.m_key.front().isLetter() ? std::nullopt : m_box.numberEntry().typed(text);
    }

    std::optional<QString> reduced(const QString &text) const
    {
        if (const std::optional<QString> entry = m_box.numberEntry().typed(text))
            return entry;
        const QString entry = withoutBareExponent(text);
        return Numbers::parseLocal(entry) ? std::optional(entry) : std::nullopt;
    }

    const TextBoxM &m_box;
};

TextBoxM::TextBoxM(QWidget *parent) : QLineEdit(parent)
{
    setValidator(new Limits(this));
    // Connected first, before handlers that write into the field again.
    connect(this, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_text = text;
        clearMark();
    });
    connect(this, &QLineEdit::inputRejected, this, &TextBoxM::showRefusal);
}

TextBoxM::TextBoxM(Entry tipodedato, int decimales, int maxlength, QWidget *parent) : TextBoxM(parent)
{
    m_tipodedato = tipodedato;
    m_decimales = decimales;
    m_maxlength = maxlength;
}

void TextBoxM::keyPressEvent(QKeyEvent *event)
{
    const QScopedValueRollback key(m_key, event->text());
    QLineEdit::keyPressEvent(event);
}

void TextBoxM::inputMethodEvent(QInputMethodEvent *event)
{
    const QScopedValueRollback key(m_key, event->commitString());
    QLineEdit::inputMethodEvent(event);
}

void TextBoxM::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    clearMark();
    if (m_hint)
        m_hint->hide();
}

NumberEntry TextBoxM::numberEntry() const
{
    return {m_tipodedato == SignedNumber, m_decimales, m_maxlength};
}

QString TextBoxM::limits() const
{
    QStringList most;
    if (m_tipodedato != AnyText && m_decimales > 0)
        most << u"%1 decimals"_s.arg(m_decimales);
    if (m_maxlength > 0)
        most << u"%1 characters"_s.arg(m_maxlength);
    QStringList lines(isTyping() ? u"\"%1\" is not taken here."_s.arg(m_key)
                                 : u"The text is not taken here."_s);
    if (m_tipodedato != AnyText) {
        const double example = m_decimales > 0 ? 12.5 : 12;
        lines << u"Type a number such as %1, or paste one such as 6E23."_s.arg(
            Numbers::formatLocal(m_tipodedato == SignedNumber ? -example : example));
    }
    if (!most.isEmpty())
        lines << u"At most %1."_s.arg(most.join(u" and "_s));
    return lines.join(u'\n');
}

void TextBoxM::showRefusal()
{
    if (!m_mark) {
        m_mark = addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning), TrailingPosition);
        m_hint = new FieldHint(*this);
    }
    m_mark->setVisible(true);
    setAccessibleDescription(limits());
    m_hint->showText(limits());
}

void TextBoxM::clearMark()
{
    if (!m_mark || !m_mark->isVisible())
        return;
    m_mark->setVisible(false);
    setAccessibleDescription({});
}
