#include "widgets/linklabel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>

LinkLabel::LinkLabel(const QString &text, const QString &target, QWidget *parent)
    : QLabel(text, parent), m_target(target)
{
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setForegroundRole(QPalette::Link);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setToolTip(target);
    setAccessibleDescription(target);
}

void LinkLabel::mouseReleaseEvent(QMouseEvent *event)
{
    QLabel::mouseReleaseEvent(event);
    if (hasSelectedText())
        return; // the text was selected, not the link pressed
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        press();
}

void LinkLabel::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy) && !hasSelectedText()) {
        QGuiApplication::clipboard()->setText(text());
        return;
    }
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        press();
        return;
    default:
        QLabel::keyPressEvent(event);
    }
}
