#include "sidewindows/colourmnemonic.h"

#include <QPainter>
#include <array>

namespace {

struct Line
{
    const char *word;
    const char *colourName;
    QRgb colour; ///< that of the bands on the Electronics pane
};

// By digit.
constexpr std::array Lines{
    Line{"Big", "Black", 0xFF000000},    Line{"Bottles", "Brown", 0xFF8B4513},
    Line{"Rarely", "Red", 0xFFFF0000},   Line{"Overflow:", "Orange", 0xFFFFA500},
    Line{"Your", "Yellow", 0xFFFFFF00},  Line{"Glass", "Green", 0xFF008000},
    Line{"Beakers", "Blue", 0xFF0000FF}, Line{"Very", "Violet", 0xFF9400D3},
    Line{"Gladly", "Grey", 0xFF808080},  Line{"Will", "White", 0xFFFFFFFF},
};

constexpr int Margin = 12;
constexpr int LineHeight = 28;
constexpr int DigitLeft = Margin;
constexpr int BandLeft = 40;
constexpr int BandWidth = 56;
constexpr int WordLeft = 112;
constexpr int ColourNameLeft = 224;
constexpr int Width = 310;

} // namespace

ColourMnemonic::ColourMnemonic(QWidget *parent) : QWidget(parent)
{
    QStringList words;
    for (const Line &line : Lines)
        words << line.word;
    setAccessibleName(words.join(u' '));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ColourMnemonic::sizeHint() const
{
    return {Width, int(Lines.size()) * LineHeight + 2 * Margin};
}

void ColourMnemonic::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    for (int digit = 0; digit < int(Lines.size()); ++digit)
        paintLine(painter, digit);
}

void ColourMnemonic::paintLine(QPainter &painter, int digit) const
{
    const Line &line = Lines[size_t(digit)];
    const int top = Margin + digit * LineHeight;
    const auto write = [&](int left, const QString &text, bool bold) {
        QFont font = painter.font();
        font.setBold(bold);
        painter.setFont(font);
        painter.drawText(QRect(left, top, Width - left, LineHeight), int(Qt::AlignLeft | Qt::AlignVCenter),
                         text);
    };
    painter.setPen(palette().color(QPalette::Text));
    write(DigitLeft, QString(QChar(u'0' + digit)), true);
    write(WordLeft, line.word, true);
    write(ColourNameLeft, line.colourName, false);
    // The outline makes black visible on a dark desktop and white on a light one.
    QColor outline = palette().color(QPalette::Text);
    outline.setAlphaF(0.5F);
    painter.setPen(outline);
    painter.setBrush(QColor(line.colour));
    painter.drawRect(QRect(BandLeft, top + 5, BandWidth, LineHeight - 10));
}
