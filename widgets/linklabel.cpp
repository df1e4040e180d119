#include "widgets/linklabel.h"

#include "widgets/controls.h"

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
    const bool selecting = hasSelectedText();
    if (!selecting && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        press();
}

void LinkLabel::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy) && !hasSelectedText())
        QGuiApplication::clipboard()->setText(text());
    else if (Controls::isPressKey(event->key()))
        press();
    else
        QLabel::keyPressEvent(event);
}
