#include "app/showinaction.h"

#include "app/history.h"
#include "app/listactions.h"
#include "app/ownactions.h"
#include "core/desktop.h"
#include "core/module1.h"
#include "widgets/rowlistview.h"
#include "widgets/structurewindow.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

// Their rows number the pictures of structures.
constexpr QLatin1StringView Solvents("ListView1");
constexpr QLatin1StringView AminoAcids("ListView3(9)");

} // namespace

ShowInAction::ShowInAction(const OwnActions &actions, const ListActions &lists, History &history,
                           const RowLists &rows, Module1 &module, Desktop &desktop, QWidget &form1)
    : m_lists(lists), m_history(history), m_rows(rows), m_module(module), m_desktop(desktop), m_form1(form1),
      m_menu(new QMenu(&form1))
{
    m_menu->setObjectName(u"mnuShowIn"_s);
    QAction &action = actions.action(OwnAction::ShowIn);
    action.setMenu(m_menu);
    connect(m_menu, &QMenu::aboutToShow, this, &ShowInAction::fill);
    connect(&lists, &ListActions::changed, &action,
            [this, &action](const RowListView *list) { action.setEnabled(!targets(list).isEmpty()); });
    for (const ListPlace &where : Places::all()) {
        if (where.rows)
            connect(&where.rows(rows), &RowList::reset, this, [this] { m_compounds.reset(); });
    }
}

QList<ShowInAction::Target> ShowInAction::targets(const RowListView *list)
{
    if (!list || list->selectedRow() < 0)
        return {};
    if (!m_compounds)
        m_compounds.emplace(m_rows);
    const Place own{list->objectName(), list->selectedRow()};
    const QList<Place> others = m_compounds->of(own);
    QList<Target> found;
    for (const Place &place : others)
        found.append(
            {QString::fromUtf8(Places::find(place.list)->table), [this, place] { m_history.go(place); }});
    for (const Place &place : others + QList{own}) {
        if (place.list == Solvents || place.list == AminoAcids)
            found.append({u"Structure"_s, [this, place] { openStructure(place); }});
    }
    return found;
}

void ShowInAction::fill()
{
    m_menu->clear();
    for (const Target &target : targets(m_lists.list()))
        connect(m_menu->addAction(target.caption), &QAction::triggered, this, target.show);
}

void ShowInAction::openStructure(const Place &place)
{
    const QString name = Places::find(place.list)->rows(m_rows).text(place.row);
    endOnError(m_desktop, [&] { openStructureWindow(m_module, m_form1, place.row + 1, name); });
}
