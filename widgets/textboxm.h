#pragma once

#include <QLineEdit>

class FieldHint;
struct NumberEntry;

/// An entry field for free text or for a decimal number in the user's locale.
///
/// The limits apply to typing and pasting. setText() takes any length and notation ("1.66053906892E-27");
/// from such a text the user may delete as long as a number is left. A refused key or paste leaves the field
/// as it is, marks it and shows a hint with the limits. The mark goes with the next change, the hint after
/// some seconds, both when the focus leaves.
class TextBoxM final : public QLineEdit
{
    Q_OBJECT
    // Set before the field is used, so without a change signal.
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(int tipodedato READ tipodedato WRITE setTipodedato)
    Q_PROPERTY(int decimales READ decimales WRITE setDecimales)
    Q_PROPERTY(int maxlength READ maxlength WRITE setMaxlength)

public:
    /// Values of `tipodedato`.
    enum Entry { AnyText = 0, UnsignedNumber = 2, SignedNumber = 3 };

    explicit TextBoxM(QWidget *parent = nullptr);
    TextBoxM(Entry tipodedato, int decimales, int maxlength, QWidget *parent = nullptr);

    int tipodedato() const { return m_tipodedato; }
    void setTipodedato(int tipodedato) { m_tipodedato = tipodedato; }

    /// Maximum number of decimals; 0 or less rejects the decimal sign.
    int decimales() const { return m_decimales; }
    void setDecimales(int decimales) { m_decimales = decimales; }

    /// Maximum number of characters; 0 is no limit.
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
    QString m_text;            ///< before the edit being validated
    QString m_key;             ///< text of the key being handled
    QAction *m_mark = nullptr; ///< mark and hint are made by the first refusal
    FieldHint *m_hint = nullptr;
};
