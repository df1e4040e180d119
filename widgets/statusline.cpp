#include "widgets/statusline.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QStatusTipEvent>

StatusLine::StatusLine(const QString &name, QWidget &window) : QLabel(&window)
{
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    // A long note must not widen the window.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    window.installEventFilter(this);
}

// Qt passes a status tip up to the main window.
void StatusLine::show(QWidget &from, const QString &note)
{
    QStatusTipEvent event(note);
    QCoreApplication::sendEvent(&from, &event);
}

bool StatusLine::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::StatusTip)
        return QLabel::eventFilter(watched, event);
    const QString note = static_cast<QStatusTipEvent *>(event)->tip();
    setText(note);
    if (!note.isEmpty()) {
        QAccessibleEvent announcement(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&announcement);
    }
    return true;
}
