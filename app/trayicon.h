#pragma once

#include "app/traydoubleclick.h"

#include <QElapsedTimer>
#include <QMenu>
#include <QSystemTrayIcon>

class OptionSlots;

/// The icon in the notification area with its popup `mnuTray`, and the main window's way into the tray and
/// back. While a modal dialog is open, the icon and every item of the popup raise it and do nothing else.
///
/// Where the desktop has no notification area, nothing sends the window there, so that it can never be lost.
class TrayIcon final : public QObject
{
    Q_OBJECT

public:
    TrayIcon(QWidget &form, const OptionSlots &options);

    /// Shows the icon; the load of the main window.
    void load();

    /// Moves the window into the tray, or back if `TrayMinimized` is not 0.
    void ToggleTray();

    /// The window's size or state has changed: minimising sends it to the tray, by the option.
    void windowChanged();

    /// Onto the screen and above other windows, wherever the window is.
    void bringBack();

    /// 0 while the window is on the screen, -1 while it is in the tray.
    qint16 TrayMinimized = 0;

    QAction *trayminimax;

Q_SIGNALS:
    void helpWanted();
    void aboutWanted();
    void webSiteWanted();
    void donationPageWanted();
    void quitWanted();

private:
    QAction *addItem(const char *name, const QString &caption, void (TrayIcon::*handler)());
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
    QPoint m_place; ///< of the window before it went into the tray; a window manager would choose another
    Qt::WindowStates m_state; ///< maximised or not, likewise
};
