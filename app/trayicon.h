#pragma once

#include "app/traydoubleclick.h"

#include <QElapsedTimer>
#include <QMenu>
#include <QSystemTrayIcon>
#include <functional>

class OptionSlots;

/// The tray icon with its popup `mnuTray`; moves the main window into the tray and back. While a modal dialog
/// is open, icon and popup only raise it. On a desktop without a tray the window stays out of it, so that it
/// is never lost.
class TrayIcon final : public QObject
{
    Q_OBJECT

public:
    TrayIcon(QWidget &form, const OptionSlots &options);

    /// Shows the icon, when the main window loads.
    void load();

    /// Moves the window into the tray, or back if `TrayMinimized` is not 0.
    void ToggleTray();

    /// After a change of the window's size or state. Minimising sends it to the tray, by the option.
    void windowChanged();

    /// Shows the window in front, from wherever it is.
    void bringBack();

    /// 0 while the window is on the screen, -1 while it is in the tray.
    qint16 TrayMinimized = 0;

    QAction *trayminimax;

Q_SIGNALS:
    void commandWanted(int id);
    void donationPageWanted();

private:
    QAction *addItem(const char *name, const QString &caption, const std::function<void()> &handler);
    void hideForm();
    void unloadSideWindows();
    void activate(QSystemTrayIcon::ActivationReason reason);
    void turn();

    QWidget &m_form;
    const OptionSlots &m_options;
    QMenu m_mnuTray;
    QSystemTrayIcon m_icon;
    TrayDoubleClick m_doubleClick;
    QElapsedTimer m_clock;
    QPoint m_place;           ///< of the window before it went into the tray
    Qt::WindowStates m_state; ///< maximised or not, likewise
};
