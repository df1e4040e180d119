#pragma once

#include <QLineEdit>

class FieldHint;
struct NumberEntry;

/// An entry field that knows what may be typed into it: free text, or a decimal number by the user's locale.
///
/// The limits bind typing and pasting alone. What the program writes with setText() stays whole, whatever its
/// length or notation ("1.66053906892E-27"); from such a text the user may take away, as long as a number is
/// left. A key or a text that is refused leaves the field as it is, marks it and shows a hint beside it that
/// says what the field takes. The mark goes with the next change, the hint after some seconds, and both when
/// the focus leaves the field.
class TextBoxM final : public QLineEdit
{
    Q_OBJECT
    // Set before the field is used; nobody waits for a change.
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(int tipodedato READ tipodedato WRITE setTipodedato)
    Q_PROPERTY(int decimales READ decimales WRITE setDecimales)
    Q_PROPERTY(int maxlength READ maxlength WRITE setMaxlength)

public:
    /// Kinds of entry, the numbers of `tipodedato`.
    enum Entry { AnyText = 0, UnsignedNumber = 2, SignedNumber = 3 };

    explicit TextBoxM(QWidget *parent = nullptr);
    TextBoxM(Entry tipodedato, int decimales, int maxlength, QWidget *parent = nullptr);

    int tipodedato() const { return m_tipodedato; }
    void setTipodedato(int tipodedato) { m_tipodedato = tipodedato; }

    /// Most digits after the decimal sign; 0 or less refuses the sign.
    int decimales() const { return m_decimales; }
    void setDecimales(int decimales) { m_decimales = decimales; }

    /// Most characters; 0 is no limit.
    int maxlength() const { return m_maxlength; }
    void setMaxlength(int maxlength) { m_maxlength = maxlength; }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    class Limits;

    NumberEntry numberEntry() const;
    bool isTyping() const { return m_key.size() == 1 && m_key.front().isPrint(); }
    QString limits() const;
    void showRefusal();
    void clearMark();

    int m_tipodedato = AnyText;
    int m_decimales = 0;
    int m_maxlength = 0;
    QString m_text;            ///< before the edit that is being judged
    QString m_key;             ///< what the key that is being handled types
    QAction *m_mark = nullptr; ///< both are made by the first refusal
    FieldHint *m_hint = nullptr;
};
