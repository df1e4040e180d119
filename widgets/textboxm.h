#pragma once

#include <QLineEdit>

/// An entry field that knows what may be typed into it: free text, or a decimal number by the user's locale.
///
/// The limits bind typing and pasting alone. What the program writes with setText() stands whole, whatever
/// its length or notation ("1.66053906892E-27"); from such a text the user may take away, as long as a number
/// is left.
///
/// Where the locale writes a comma, a "." becomes it, for the sake of numeric keypads. Where it writes ".", a
/// "," is refused: nobody can tell a thousand from a decimal, and 1,5 must never become 15.
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

    /// Highest number of digits behind the decimal separator; 0 or less refuses the separator.
    int decimales() const { return m_decimales; }
    void setDecimales(int decimales) { m_decimales = decimales; }

    /// Highest number of characters; 0 is no limit.
    int maxlength() const { return m_maxlength; }
    void setMaxlength(int maxlength) { m_maxlength = maxlength; }

private:
    class Limits;

    void rememberText(const QString &text);

    int m_tipodedato = AnyText;
    int m_decimales = 0;
    int m_maxlength = 0;
    Limits *m_limits;
    QString m_text; ///< what stood here before the edit that is being judged
};
