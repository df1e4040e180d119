#include "app/trayicon.h"

#include "app/commands.h"
#include "core/optionslots.h"
#include "widgets/modaldialogs.h"
#include "widgets/sidewindow.h"

#include <QApplication>
#include <QGuiApplication>
#include <QStyleHints>
#include <QTimer>
#include <QWindow>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView MinimizeCaption("Minimize Alembra");
constexpr QLatin1StringView OpenCaption("Open Alembra");

constexpr int BalloonMilliseconds = 10000;

// The windows to unload on the way into the tray, in this order. Others stay open.
constexpr std::array UnloadedWindows{"Form2",       "Form4",    "Form5", "Formhelp",
                                     "Formoptions", "frmAbout", "frmTip"};

} // namespace

TrayIcon::TrayIcon(QWidget &form, const OptionSlots &options)
    : QObject(&form), m_form(form), m_options(options), m_icon(QApplication::windowIcon(), this),
      m_doubleClick(QGuiApplication::styleHints()->mouseDoubleClickInterval())
{
    m_clock.start();
    m_icon.setObjectName(u"TrayIcon"_s);
    m_mnuTray.setObjectName(u"mnuTray"_s);
    const auto command = [this](int id) { return [this, id] { Q_EMIT commandWanted(id); }; };
    addItem("menuaide", u"Help"_s, command(CommandId::Help));
    addItem("menuabout", u"About..."_s, command(CommandId::About));
    addItem("siteweb", u"Alembra website"_s, command(CommandId::WebSite));
    addItem("traydon", u"Donate"_s, [this] { Q_EMIT donationPageWanted(); });
    m_mnuTray.addSeparator()->setObjectName(u"oi"_s);
    trayminimax = addItem("trayminimax", u"&Open Alembra..."_s, [this] { turn(); });
    addItem("trayquit", u"Quit"_s, command(CommandId::Quit));
    m_mnuTray.setDefaultAction(trayminimax);
    m_icon.setContextMenu(&m_mnuTray);

    connect(&m_icon, &QSystemTrayIcon::activated, this, &TrayIcon::activate);
}

QAction *TrayIcon::addItem(const char *name, const QString &caption, const std::function<void()> &handler)
{
    QAction *item = m_mnuTray.addAction(caption);
    item->setObjectName(name);
    connect(item, &QAction::triggered, this, [handler] {
        if (!ModalDialogs::raise())
            handler();
    });
    return item;
}

void TrayIcon::load()
{
    m_icon.setToolTip(u"Alembra"_s);
    trayminimax->setText(MinimizeCaption);
    // Only on X11 a tray that starts later takes the icon in.
    if (QGuiApplication::platformName() == u"xcb"_s || QSystemTrayIcon::isSystemTrayAvailable())
        m_icon.show();
}

void TrayIcon::activate(QSystemTrayIcon::ActivationReason reason)
{
    const bool counts =
        (reason == QSystemTrayIcon::Trigger && m_doubleClick.click(m_clock.elapsed())) ||
        (reason == QSystemTrayIcon::DoubleClick && m_doubleClick.doubleClick(m_clock.elapsed()));
    if (counts && !ModalDialogs::raise() && m_options(Slot::MinimiseToTray).equals(1))
        turn();
}

void TrayIcon::turn()
{
    trayminimax->setText(trayminimax->text() != OpenCaption ? OpenCaption : MinimizeCaption);
    ToggleTray();
}

void TrayIcon::ToggleTray()
{
    if (TrayMinimized != 0)
        bringBack();
    else
        hideForm();
}

void TrayIcon::bringBack()
{
    const bool fromTray = TrayMinimized != 0;
    TrayMinimized = 0;
    // Window managers forget the state of a hidden window.
    m_form.setWindowState(fromTray ? m_state : m_form.windowState() & ~Qt::WindowMinimized);
    if (fromTray && m_state == Qt::WindowNoState) {
        // Window managers choose a new place for a window that was not moved, and Qt ignores a move to the
        // old place.
        m_form.windowHandle()->setPosition(m_place + QPoint(1, 0));
        m_form.windowHandle()->setPosition(m_place);
    }
    m_form.show();
    m_form.raise();
    m_form.activateWindow();
    // The main window is disabled while a side window is open: that takes the keys.
    for (SideWindow *window : m_form.findChildren<SideWindow *>(Qt::FindDirectChildrenOnly)) {
        if (window->isVisible())
            window->activateWindow();
    }
    windowChanged();
}

void TrayIcon::windowChanged()
{
    // Window managers change the state of a hidden window too.
    if (m_form.isHidden() || !m_options(Slot::MinimiseToTray).equals(1))
        return;
    if (!m_form.isMinimized()) {
        trayminimax->setText(MinimizeCaption);
        return;
    }
    // If hidden within the change of state, the window would come back half minimised.
    QTimer::singleShot(0, this, [this] {
        if (!m_form.isMinimized() || m_form.isHidden())
            return;
        hideForm();
        trayminimax->setText(OpenCaption);
    });
}

void TrayIcon::hideForm()
{
    if (!QSystemTrayIcon::isSystemTrayAvailable())
        return;
    m_place = m_form.geometry().topLeft();
    m_state = m_form.windowState() & ~Qt::WindowMinimized;
    m_form.hide();
    TrayMinimized = -1;
    unloadSideWindows();
    if (m_options(Slot::TrayBalloon).equals(1))
        m_icon.showMessage(u"Alembra information "_s,
                           u"Alembra is still active, just double-click on this icon to open its window"_s,
                           QSystemTrayIcon::Information, BalloonMilliseconds);
}

void TrayIcon::unloadSideWindows()
{
    for (const char *name : UnloadedWindows) {
        if (auto *window = m_form.findChild<QWidget *>(name, Qt::FindDirectChildrenOnly))
            window->close();
    }
}
