#pragma once

#include <QObject>
#include <QPointer>

class OwnActions;
class QAction;
class QWidget;
class RowListView;

/// "Copy row" and "Copy table" of the menu bar: for the list with the focus, or else for the only list on
/// screen.
class CopyActions final : public QObject
{
    Q_OBJECT

public:
    /// @p window is the main window.
    CopyActions(const OwnActions &actions, QWidget &window);

    /// Enables what can be copied now.
    void update();

    /// The list that they copy from; null for none.
    RowListView *list() const;

private:
    QWidget &m_window;
    QAction &m_copyRow;
    QAction &m_copyTable;
    QPointer<RowListView> m_focused; ///< also while the menu bar has the focus
};
