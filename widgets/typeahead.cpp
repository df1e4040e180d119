#include "widgets/typeahead.h"

#include "widgets/controls.h"
#include "widgets/rowlistview.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTabBar>

namespace {

/// The nearest visible sibling below @p strip, or null.
RowListView *listBelow(const QTabBar &strip)
{
    RowListView *nearest = nullptr;
    for (auto *list :
         strip.parentWidget()->findChildren<RowListView *>(QString(), Qt::FindDirectChildrenOnly)) {
        const bool below = list->y() > strip.y() && list->x() <= strip.geometry().right() &&
                           strip.x() <= list->geometry().right();
        if (below && Controls::isOnTop(*list, *strip.parentWidget()) &&
            (!nearest || list->y() < nearest->y()))
            nearest = list;
    }
    return nearest;
}

class TypedOnTabs final : public QObject
{
public:
    explicit TypedOnTabs(QTabBar &strip) : QObject(&strip), m_strip(strip) { strip.installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return QObject::eventFilter(watched, event);
        const QString text = static_cast<QKeyEvent *>(event)->text();
        RowListView *list = !text.isEmpty() && text.front().isLetterOrNumber() ? listBelow(m_strip) : nullptr;
        if (!list)
            return QObject::eventFilter(watched, event);
        list->setFocus();
        QCoreApplication::sendEvent(list, event);
        return true;
    }

private:
    const QTabBar &m_strip;
};

} // namespace

void TypeAhead::install(QTabBar &strip)
{
    new TypedOnTabs(strip);
}
