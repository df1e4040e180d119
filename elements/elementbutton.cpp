#include "elements/elementbutton.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

const QColor GridLine(0x8a, 0x93, 0x9c);
const QColor Mark(0x1f, 0x6f, 0xd6);

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
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
        raise();
    update();
}

// Drawn by hand: no style promises black on white, and neighbours share the line between them.
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
    QFont fitting = font();
    if (text().size() > 2)
        fitting.setPixelSize(fitting.pixelSize() * 4 / 5);
    painter.setFont(fitting);
    painter.drawText(rect(), Qt::AlignCenter, text());
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
        raise();
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave)
        update();
    return QPushButton::event(event);
}
