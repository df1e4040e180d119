#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

class ModulePanel;
class PaneSwitch;
class QWidget;

/// Keeps the keyboard on what the user can see.
///
/// A change of pane gives the focus to the control that had it there last, or to the first one of the Tab
/// order. A change inside a pane that hides or covers the control with the focus does the same, and so does
/// the end of a side window, while which the main window is disabled. No pane has to know of it.
class FocusKeeper final : public QObject
{
    Q_OBJECT

public:
    /// @p form is the main window.
    FocusKeeper(QWidget &form, const PaneSwitch &panes);

protected:
    /// Of the application: something in the main window was shown or hidden, or the window was enabled.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void keep();
    bool isChange(const QObject &watched, const QEvent &event) const;
    bool isInSight(const QWidget &control) const;
    QWidget &entry(bool paneChanged) const;

    QWidget &m_form;
    const PaneSwitch &m_panes;
    ModulePanel *m_pane = nullptr;                        ///< that the focus was given to
    QHash<const ModulePanel *, QPointer<QWidget>> m_last; ///< control of the pane that had the focus last
    bool m_isWaiting = false;                             ///< for the end of the change under way
};
