#pragma once

#include <QObject>
#include <memory>

class History;
class ListActions;
class OwnActions;
class SearchEverything;
class QAction;
class QWidget;
struct DataStore;
struct Module1;

/// "Search everything" of the menu bar, with its window, and "Search everything for this" of the menu Edit
/// and of the lists' context menus, for the name of the selected row.
///
/// The texts for it are prepared when the window is first opened, and again after the data have changed.
class SearchActions final : public QObject
{
    Q_OBJECT

public:
    /// Everything given outlives it; @p form1 is the main window.
    SearchActions(const OwnActions &actions, const ListActions &lists, const Module1 &module,
                  const DataStore &store, History &history, QWidget &form1);

    /// Opens the window with @p text in its field.
    void open(const QString &text);

protected:
    /// A text field would take the shortcut for "delete to the end".
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const Module1 &m_module;
    const DataStore &m_store;
    History &m_history;
    QWidget &m_form1;
    QAction &m_searchAll;
    std::shared_ptr<const SearchEverything> m_search; ///< null until it is needed
};
