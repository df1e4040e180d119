#pragma once

#include "search/places.h"

#include <QObject>
#include <functional>

class ModulePanel;
class PaneSwitch;

/// Goes to a place of the main window and knows the one on the screen.
class PlaceSwitch final : public QObject
{
    Q_OBJECT

public:
    /// @p form is the main window, @p execute runs a command of it.
    PlaceSwitch(QWidget &form, const PaneSwitch &panes, std::function<void(int)> execute);

    /// Shows pane, tab and option, selects the row as a click on it and scrolls it into view. The list gets
    /// the focus when control returns to the event loop. A row that is not there is left out.
    void show(const Place &place);

    /// The list with the focus or else the first one on the screen, with its selected row.
    Place current() const;

Q_SIGNALS:
    /// A page of the help, in the order of the book.
    void helpPageWanted(int page);

private:
    void choose(const ListPlace &where);
    void selectRow(QWidget &control, int row);
    QWidget *controlOnScreen(const ModulePanel &pane) const;

    QWidget &m_form;
    const PaneSwitch &m_panes;
    const std::function<void(int)> m_execute;
};
