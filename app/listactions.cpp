#include "app/listactions.h"

#include "app/ownactions.h"
#include "widgets/controls.h"
#include "widgets/rowlistview.h"

#include <QApplication>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array InContextMenu{OwnAction::CopyCell, OwnAction::CopyRow, OwnAction::CopyTable,
                                   OwnAction::SaveCsv,  OwnAction::ShowIn,  OwnAction::SearchThis,
                                   OwnAction::WhereFrom};

// The entry shows what it copies.
QString copyCellCaption(QString cell)
{
    constexpr int Longest = 40;
    if (cell.size() > Longest)
        cell = cell.first(Longest) + u'…';
    const QString caption = u"Copy ce&ll"_s;
    return cell.isEmpty() ? caption : caption + u": "_s + cell.replace(u'&', u"&&"_s);
}

} // namespace

ListActions::ListActions(const OwnActions &actions, QWidget &window)
    : m_actions(actions), m_window(window), m_copyCell(actions.action(OwnAction::CopyCell)),
      m_copyRow(actions.action(OwnAction::CopyRow)), m_copyTable(actions.action(OwnAction::CopyTable))
{
    for (const OwnAction each : InContextMenu)
        actions.action(each).setShortcutVisibleInContextMenu(true);
    // Keys of the list with the focus alone: elsewhere, a text copies its selection.
    for (QAction *copy : {&m_copyCell, &m_copyRow, &m_copyTable})
        copy->setShortcutContext(Qt::WidgetShortcut);
    connect(&m_copyCell, &QAction::triggered, this, [this] { list()->copyCell(); });
    connect(&m_copyRow, &QAction::triggered, this, [this] { list()->copyRow(); });
    connect(&m_copyTable, &QAction::triggered, this, [this] { list()->copyTable(); });
    // Lists are made when their pane is first shown. A right click gives the list the focus before its menu.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (!now || qobject_cast<QMenuBar *>(now))
            return;
        m_focused = qobject_cast<RowListView *>(now);
        if (m_focused)
            adopt(*m_focused);
        update();
    });
}

void ListActions::adopt(RowListView &list)
{
    if (list.actions().contains(&m_copyRow))
        return;
    for (const OwnAction each : InContextMenu)
        list.addAction(&m_actions.action(each));
    const QItemSelectionModel *selection = list.selectionModel();
    connect(selection, &QItemSelectionModel::currentChanged, this, &ListActions::update);
    connect(selection, &QItemSelectionModel::selectionChanged, this, &ListActions::update);
    connect(list.model(), &QAbstractItemModel::modelReset, this, &ListActions::update);
}

void ListActions::update()
{
    const RowListView *from = list();
    const QString cell = from ? from->cellText() : QString();
    m_copyCell.setText(copyCellCaption(cell));
    m_copyCell.setEnabled(!cell.isEmpty());
    m_copyRow.setEnabled(from && from->selectedRow() >= 0);
    m_copyTable.setEnabled(from && from->model()->rowCount() > 0);
    Q_EMIT changed(from);
}

RowListView *ListActions::list() const
{
    if (m_focused && m_focused->isVisible())
        return m_focused;
    QList<RowListView *> lists = m_window.findChildren<RowListView *>();
    lists.removeIf([](const RowListView *each) {
        return !each->isVisible() || !Controls::isOnTop(*each, *each->parentWidget());
    });
    return lists.size() == 1 ? lists.constFirst() : nullptr;
}
