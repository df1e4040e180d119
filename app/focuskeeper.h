#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

class ModulePanel;
class PaneSwitch;
class QWidget;

/// Keeps the focus on a visible control, without the panes' help.
///
/// When the pane changes, a change hides or covers the focused control, or a side window closes, the focus
/// goes to the control of the pane that had it last, or to the first of the Tab order.
class FocusKeeper final : public QObject
{
    Q_OBJECT

public:
    /// @p form is the main window.
    FocusKeeper(QWidget &form, const PaneSwitch &panes);

protected:
    /// Of the application: shows and hides in the main window, and its own enabling.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void keep();
    bool isChange(const QObject &watched, const QEvent &event) const;
    bool isInSight(const QWidget &control) const;
    QWidget &entry(bool paneChanged) const;

    QWidget &m_form;
    const PaneSwitch &m_panes;
    ModulePanel *m_pane = nullptr;                        ///< last given the focus
    QHash<const ModulePanel *, QPointer<QWidget>> m_last; ///< the pane's control that had the focus last
    bool m_isWaiting = false;                             ///< for the end of the current change
};
