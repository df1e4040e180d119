// Typeface, colours and text layout for all pictures. All lengths are in pixels.
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QString>

inline const QColor Ink(0x20, 0x24, 0x28);     ///< texts and outlines
inline const QColor SoftInk(0x5c, 0x64, 0x6c); ///< captions, notes
inline const QColor Grid(0xdd, 0xe1, 0xe6);    ///< grid lines

/// Throws BuildError unless the typeface of all pictures, DejaVu Sans, is installed.
void requireTypeface();

QFont textFont(int pixels, bool bold = false);

/// The colour and the type of the texts that @p painter draws next.
void setType(QPainter &painter, const QColor &colour, int pixels, bool bold = false);

/// A white picture.
QImage blankPicture(int width, int height);

/// The colour at @p share of the way from one to the other.
QColor mixed(const QColor &from, const QColor &to, double share);

/// The colour mixed with white; 0 gives white, 1 the colour itself.
QColor tint(const QColor &colour, double share);

/// The picture in greys, by luminance.
QImage inGreys(const QImage &picture);

/// The text broken into lines that are no wider than @p width; a single word may be wider.
QStringList wrapped(const QString &text, const QFont &font, int width);

/// One line of text with raised or lowered digits.
class ScriptText
{
public:
    /// Digits after an element, a bracket or R are subscripts: "CH3-CO-NR2". Not in a word of one letter and
    /// a number, such as positions ("furan C2-H") and E2, nor in SN2.
    static ScriptText formula(const QString &text, int pixels, bool bold = false);

    /// The numbers after the letter of a subshell are superscripts: "[Ar] 3d6 4s2".
    static ScriptText configuration(const QString &text, int pixels);

    double width() const { return m_width; }

    /// Paints it in the painter's pen with its left end at @p x.
    void paint(QPainter &painter, double x, double baseline) const;

private:
    using IsScript = bool (*)(const QString &text, int digit);

    ScriptText(const QString &text, const QFont &font, double shift, IsScript isScript);

    struct Run
    {
        QString text;
        bool script;
    };

    QList<Run> m_runs;
    QFont m_font;
    QFont m_small;
    double m_shift;
    double m_width = 0;
};
