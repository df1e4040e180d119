#include "app/searchactions.h"

#include "app/history.h"
#include "app/listactions.h"
#include "app/ownactions.h"
#include "calc/units.h"
#include "core/module1.h"
#include "search/searcheverything.h"
#include "sidewindows/frmsearch.h"
#include "sidewindows/helpbook.h"
#include "store/datastore.h"
#include "widgets/rowlistview.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

QList<NamedPlaces> namesOutsideTheStore(const OptionSlots &slots)
{
    QList<NamedPlaces> all;
    for (const Quantity &each : Units::quantities())
        all << NamedPlaces{u"List%1"_s.arg(each.inputList), Units::names(each, slots)};
    NamedPlaces pages{QLatin1StringView(Places::HelpPages), {}};
    for (const HelpBook::Topic &page : HelpBook::contents())
        pages.names << page.title;
    return all << pages;
}

QString selectedName(const RowListView *list)
{
    return list && list->selectedRow() >= 0 ? list->tableRow(list->selectedRow()).texts.value(0) : QString();
}

} // namespace

SearchActions::SearchActions(const OwnActions &actions, const ListActions &lists, const Module1 &module,
                             const DataStore &store, History &history, QWidget &form1)
    : m_module(module), m_store(store), m_history(history), m_form1(form1),
      m_searchAll(actions.action(OwnAction::SearchAll))
{
    connect(&m_searchAll, &QAction::triggered, this, [this] { open({}); });
    QAction &searchThis = actions.action(OwnAction::SearchThis);
    connect(&searchThis, &QAction::triggered, this, [this, &lists] { open(selectedName(lists.list())); });
    connect(&lists, &ListActions::changed, &searchThis, [this, &searchThis](const RowListView *list) {
        searchThis.setEnabled(m_form1.isEnabled() && !selectedName(list).isEmpty());
    });
    for (const ListPlace &where : Places::all()) {
        if (where.rows)
            connect(&where.rows(store.lists), &RowList::reset, this, [this] { m_search.reset(); });
    }
    qApp->installEventFilter(this);
}

void SearchActions::open(const QString &text)
{
    if (!m_search)
        m_search = std::make_shared<SearchEverything>(m_store, namesOutsideTheStore(m_module.OptionSlots));
    auto *window = new frmSearch(m_search, text, m_form1);
    connect(window, &frmSearch::chosen, &m_history, &History::go);
    window->showAboveOwner();
}

bool SearchActions::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    return m_form1.isActiveWindow() && QKeySequence(key->keyCombination()) == m_searchAll.shortcut();
}
