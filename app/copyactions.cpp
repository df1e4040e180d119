#include "app/copyactions.h"

#include "app/ownactions.h"
#include "widgets/controls.h"
#include "widgets/rowlistview.h"

#include <QApplication>
#include <QMenuBar>

CopyActions::CopyActions(const OwnActions &actions, QWidget &window)
    : m_window(window), m_copyRow(actions.action(OwnAction::CopyRow)),
      m_copyTable(actions.action(OwnAction::CopyTable))
{
    // The menu only shows the shortcuts. A list has its own, and a text copies its selection.
    m_copyRow.setShortcutContext(Qt::WidgetShortcut);
    m_copyTable.setShortcutContext(Qt::WidgetShortcut);
    connect(&m_copyRow, &QAction::triggered, this, [this] { list()->copyRow(); });
    connect(&m_copyTable, &QAction::triggered, this, [this] { list()->copyTable(); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now && !qobject_cast<QMenuBar *>(now))
            m_focused = qobject_cast<RowListView *>(now);
    });
}

void CopyActions::update()
{
    const RowListView *copied = list();
    m_copyRow.setEnabled(copied && copied->selectedRow() >= 0);
    m_copyTable.setEnabled(copied && copied->model()->rowCount() > 0);
}

RowListView *CopyActions::list() const
{
    if (m_focused && m_focused->isVisible())
        return m_focused;
    QList<RowListView *> lists = m_window.findChildren<RowListView *>();
    lists.removeIf([](const RowListView *each) {
        return !each->isVisible() || !Controls::isOnTop(*each, *each->parentWidget());
    });
    return lists.size() == 1 ? lists.constFirst() : nullptr;
}
