#include "app/placeswitch.h"

#include "app/panescroll.h"
#include "app/paneswitch.h"
#include "elements/elementspane.h"
#include "widgets/dropdown.h"
#include "widgets/rowlistview.h"

#include <QAbstractButton>
#include <QListWidget>
#include <QTabBar>

namespace {

constexpr int NameWidth = 200; // logical pixels, of the first column

// In a window smaller than the pane. Of a list the name of the selected row counts.
void scrollPaneTo(PaneScroll &area, QWidget &control)
{
    const auto *list = qobject_cast<QAbstractItemView *>(&control);
    if (!list || !list->currentIndex().isValid())
        return area.ensureWidgetVisible(&control);
    const int y = list->visualRect(list->currentIndex()).center().y();
    const QPoint name = list->viewport()->mapTo(area.widget(), QPoint(0, y));
    area.ensureVisible(name.x() + NameWidth, name.y());
    area.ensureVisible(name.x(), name.y());
}

} // namespace

PlaceSwitch::PlaceSwitch(QWidget &form, const PaneSwitch &panes, std::function<void(int)> execute)
    : QObject(&form), m_form(form), m_panes(panes), m_execute(std::move(execute))
{}

void PlaceSwitch::show(const Place &place)
{
    const ListPlace *where = Places::find(place.list);
    if (!where)
        return;
    if (where->command == 0)
        return Q_EMIT helpPageWanted(place.row);
    choose(*where);
    auto *control = m_form.findChild<QWidget *>(place.list);
    if (!control)
        return;
    selectRow(*control, place.row);
    // A change of pane gives the focus to the pane's first control when it is done.
    const auto finish = [this, control] {
        control->setFocus();
        scrollPaneTo(*m_form.findChild<PaneScroll *>(), *control);
    };
    QMetaObject::invokeMethod(control, finish, Qt::QueuedConnection);
}

void PlaceSwitch::choose(const ListPlace &where)
{
    m_execute(where.command);
    if (auto *tabs = where.tabs ? m_form.findChild<QTabBar *>(where.tabs) : nullptr)
        tabs->setCurrentIndex(where.tab);
    auto *option = where.option ? m_form.findChild<QAbstractButton *>(where.option) : nullptr;
    if (option && !option->isChecked())
        option->click();
}

void PlaceSwitch::selectRow(QWidget &control, int row)
{
    if (row < 0)
        return;
    if (auto *list = qobject_cast<RowListView *>(&control)) {
        if (row < list->model()->rowCount()) {
            list->selectRow(row);
            list->scrollTo(list->currentIndex(), QAbstractItemView::PositionAtCenter);
            Q_EMIT list->rowClicked(row); // shows its chart
        }
    } else if (auto *units = qobject_cast<QListWidget *>(&control)) {
        units->setCurrentRow(row);
        units->scrollToItem(units->currentItem());
    } else if (auto *names = qobject_cast<DropDown *>(&control)) {
        names->choose(row);
    } else if (auto *elements = qobject_cast<ElementsPane *>(&control)) {
        elements->select(row);
    }
}

Place PlaceSwitch::current() const
{
    ModulePanel *pane = m_panes.shownPanel();
    if (!pane)
        return {};
    if (auto *elements = qobject_cast<ElementsPane *>(pane))
        return {elements->objectName(), elements->panel().shownElement};
    const QWidget *control = controlOnScreen(*pane);
    if (const auto *list = qobject_cast<const RowListView *>(control))
        return {list->objectName(), list->selectedRow()};
    if (const auto *units = qobject_cast<const QListWidget *>(control))
        return {units->objectName(), units->currentRow()};
    if (const auto *names = qobject_cast<const DropDown *>(control))
        return {names->objectName(), names->currentIndex()};
    return {pane->objectName(), -1};
}

QWidget *PlaceSwitch::controlOnScreen(const ModulePanel &pane) const
{
    QWidget *focused = m_form.focusWidget();
    if (focused && pane.isAncestorOf(focused) && Places::find(focused->objectName()))
        return focused;
    RowListView *found = nullptr;
    const ListPlace *first = nullptr; // in the order of the table
    for (auto *list : pane.findChildren<RowListView *>()) {
        const ListPlace *where = Places::find(list->objectName());
        if (where && (!first || where < first) && Controls::isOnTop(*list, pane)) {
            found = list;
            first = where;
        }
    }
    return found;
}
