#pragma once

#include <QObject>
#include <QPointer>

class OwnActions;
class QAction;
class QWidget;
class RowListView;

/// "Copy row" and "Copy table" of the menu bar, for the list with the focus or the only visible list.
class CopyActions final : public QObject
{
    Q_OBJECT

public:
    /// @p window is the main window.
    CopyActions(const OwnActions &actions, QWidget &window);

    /// Enables the actions that can copy something.
    void update();

    /// The list that they copy from; null for none.
    RowListView *list() const;

private:
    QWidget &m_window;
    QAction &m_copyRow;
    QAction &m_copyTable;
    QPointer<RowListView> m_focused; ///< or had it before the menu bar
};
