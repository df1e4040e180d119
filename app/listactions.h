#pragma once

#include <QObject>
#include <QPointer>

class OwnActions;
class QAction;
class QWidget;
class RowListView;

/// What can be done with a row, a cell or the whole of a list: the same actions in the menu Edit and in the
/// context menu of every list. They apply to the list with the focus or the only visible list.
class ListActions final : public QObject
{
    Q_OBJECT

public:
    /// @p window is the main window.
    ListActions(const OwnActions &actions, QWidget &window);

    /// Enables the actions that apply.
    void update();

    /// The list that they apply to; null for none.
    RowListView *list() const;

Q_SIGNALS:
    /// The list(), its rows or its selection may have changed.
    void changed(const RowListView *list);

private:
    void adopt(RowListView &list);

    const OwnActions &m_actions;
    QWidget &m_window;
    QAction &m_copyCell;
    QAction &m_copyRow;
    QAction &m_copyTable;
    QPointer<RowListView> m_focused; ///< or was before the menu bar
};
