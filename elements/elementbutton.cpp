#include "elements/elementbutton.h"

#include <QApplication>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QPainter>
#include <numeric>

namespace {

const QColor GridLine(0x8a, 0x93, 0x9c);
const QColor Mark(0x1f, 0x6f, 0xd6);

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

// A desktop without the typeface draws in its own. To look for a like one, or only to ask whether there is
// one, takes it as long as the whole table.
QFont drawnFont(QFont font)
{
    static const bool installed = QFontDatabase::families().contains(font.family());
    if (!installed)
        font.setFamilies(QApplication::font().families());
    return font;
}

} // namespace

ElementButton::ElementButton(const QString &symbol, QWidget *parent) : QPushButton(symbol, parent)
{
    setFocusPolicy(Qt::ClickFocus);
}

void ElementButton::setMarked(bool marked)
{
    if (m_marked == marked)
        return;
    m_marked = marked;
    if (marked)
        raise(); // neighbours share the line between them
    update();
}

// Drawn by hand: no style promises white, and two palettes a hundred times cost more than this.
void ElementButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const bool lively = m_marked || underMouse() || isDown();
    const int thickness = m_marked || isDown() ? 3 : 1;
    painter.fillRect(rect(), lively ? Mark : GridLine);
    painter.fillRect(rect().adjusted(thickness, thickness, -thickness, -thickness), Qt::white);
    if (hasFocus()) // a bar below the symbol: a ring would run into three letters
        painter.fillRect(QRect(width() / 2 - 7, height() - 7, 15, 2), Mark);
    painter.setPen(isEnabled() ? Qt::black : Qt::darkGray);
    drawSymbol(painter);
}

// Each begins at a whole pixel: between pixels, a letter would have to be drawn anew for nearly every cell.
void ElementButton::drawSymbol(QPainter &painter) const
{
    const QFont drawn = drawnFont(font());
    const QFontMetrics metrics(drawn);
    const QString symbol = text();
    const int width = std::accumulate(symbol.begin(), symbol.end(), 0, [&](int sum, QChar letter) {
        return sum + metrics.horizontalAdvance(letter);
    });
    painter.setFont(drawn);
    painter.translate(rect().center());
    if (symbol.size() > 2) // the drawing is smaller, not the type: one more size of it would slow the start
        painter.scale(0.8, 0.8);
    painter.drawText(-width / 2, metrics.capHeight() / 2, symbol);
}

void ElementButton::keyPressEvent(QKeyEvent *event)
{
    if (isArrow(event->key()))
        event->ignore();
    else
        QPushButton::keyPressEvent(event);
}

bool ElementButton::event(QEvent *event)
{
    if (event->type() == QEvent::Enter)
        raise(); // with all four of its lines
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave)
        update();
    return QPushButton::event(event);
}
