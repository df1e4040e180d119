#pragma once

#include "search/places.h"

#include <QObject>
#include <functional>

class OwnActions;
class PlaceSwitch;
class QAction;

/// Back and Forward: the places visited, by hand or by a jump. A place is kept as it is left, with the row
/// that is then selected.
class History final : public QObject
{
    Q_OBJECT

public:
    History(const OwnActions &actions, PlaceSwitch &places);

    /// Goes to @p place. A page of the help is shown beside the main window and not kept.
    void go(const Place &place);

    /// Runs @p command and keeps the place that it leads to, if it is another one.
    void follow(const std::function<void()> &command);

private:
    void leave();
    void arriveAt(const Place &place);
    void walk(qsizetype step);
    void updateActions();

    QAction &m_back;
    QAction &m_forward;
    PlaceSwitch &m_places;
    QList<Place> m_visited; ///< the oldest first
    qsizetype m_at = 0;     ///< of the place on the screen
    bool m_isGoing = false; ///< commands then run on its behalf
};
