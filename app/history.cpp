#include "app/history.h"

#include "app/ownactions.h"
#include "app/placeswitch.h"

#include <QAction>
#include <QScopedValueRollback>

namespace {

constexpr qsizetype MostPlaces = 100;

} // namespace

History::History(const OwnActions &actions, PlaceSwitch &places)
    : m_back(actions.action(OwnAction::Back)), m_forward(actions.action(OwnAction::Forward)), m_places(places)
{
    connect(&m_back, &QAction::triggered, this, [this] { walk(-1); });
    connect(&m_forward, &QAction::triggered, this, [this] { walk(1); });
    updateActions();
}

void History::go(const Place &place)
{
    leave();
    const QScopedValueRollback going(m_isGoing, true);
    m_places.show(place);
    if (const ListPlace *where = Places::find(place.list); where && where->command != 0)
        arriveAt(place);
}

void History::follow(const std::function<void()> &command)
{
    if (m_isGoing)
        return command();
    leave();
    command();
    arriveAt(m_places.current());
}

void History::leave()
{
    if (m_visited.isEmpty())
        m_visited << Place();
    m_visited[m_at] = m_places.current();
}

void History::arriveAt(const Place &place)
{
    if (place == m_visited[m_at])
        return;
    m_visited.resize(m_at + 1);
    m_visited << place;
    if (m_visited.size() > MostPlaces)
        m_visited.removeFirst();
    m_at = m_visited.size() - 1;
    updateActions();
}

void History::walk(qsizetype step)
{
    leave();
    m_at += step;
    const QScopedValueRollback going(m_isGoing, true);
    m_places.show(m_visited[m_at]);
    updateActions();
}

void History::updateActions()
{
    m_back.setEnabled(m_at > 0);
    m_forward.setEnabled(m_at + 1 < m_visited.size());
}
