#pragma once

#include "search/samecompound.h"

#include <QObject>
#include <functional>
#include <optional>

class Desktop;
class History;
class ListActions;
class OwnActions;
class QMenu;
class RowListView;
struct Module1;

/// "Show in" of the menu Edit and of the lists' context menus: the other tables that have the compound of the
/// selected row, and its structure.
class ShowInAction final : public QObject
{
    Q_OBJECT

public:
    /// @p form1 is the main window.
    ShowInAction(const OwnActions &actions, const ListActions &lists, History &history, const RowLists &rows,
                 Module1 &module, Desktop &desktop, QWidget &form1);

private:
    struct Target
    {
        QString caption;
        std::function<void()> show;
    };

    QList<Target> targets(const RowListView *list);
    void fill();
    void openStructure(const Place &place);

    const ListActions &m_lists;
    History &m_history;
    const RowLists &m_rows;
    Module1 &m_module;
    Desktop &m_desktop;
    QWidget &m_form1;
    std::optional<SameCompound> m_compounds; ///< none before they are asked for
    QMenu *m_menu;
};
