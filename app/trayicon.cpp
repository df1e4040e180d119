#include "app/trayicon.h"

#include "core/optionslots.h"
#include "widgets/modaldialogs.h"

#include <QApplication>
#include <QGuiApplication>
#include <QStyleHints>
#include <QTimer>
#include <QWindow>
#include <array>

namespace {

const auto MinimizeCaption = QLatin1StringView("Minimize Alembra");
const auto OpenCaption = QLatin1StringView("Open Alembra");

constexpr int BalloonMilliseconds = 10000;

// The windows that the way into the tray unloads, in this order. Others stay open.
constexpr std::array UnloadedWindows{"Form2",       "Form4",    "Form5", "Formhelp",
                                     "Formoptions", "frmAbout", "frmTip"};

} // namespace

TrayIcon::TrayIcon(QWidget &form, const OptionSlots &options)
    : QObject(&form), m_form(form), m_options(options), m_icon(QApplication::windowIcon(), this),
      m_doubleClick(QGuiApplication::styleHints()->mouseDoubleClickInterval())
{
    m_clock.start();
    m_icon.setObjectName(QStringLiteral("TrayIcon"));
    m_mnuTray.setObjectName(QStringLiteral("mnuTray"));
    addItem("menuaide", QStringLiteral("Help"), &TrayIcon::helpWanted);
    addItem("menuabout", QStringLiteral("About..."), &TrayIcon::aboutWanted);
    addItem("siteweb", QStringLiteral("Alembra website"), &TrayIcon::webSiteWanted);
    addItem("traydon", QStringLiteral("Donate"), &TrayIcon::donationPageWanted);
    m_mnuTray.addSeparator()->setObjectName(QStringLiteral("oi"));
    trayminimax = addItem("trayminimax", QStringLiteral("&Open Alembra..."), &TrayIcon::turn);
    addItem("trayquit", QStringLiteral("Quit"), &TrayIcon::quitWanted);
    m_mnuTray.setDefaultAction(trayminimax);
    m_icon.setContextMenu(&m_mnuTray);

    connect(&m_icon, &QSystemTrayIcon::activated, this, &TrayIcon::activate);
}

QAction *TrayIcon::addItem(const char *name, const QString &caption, void (TrayIcon::*handler)())
{
    QAction *item = m_mnuTray.addAction(caption);
    item->setObjectName(QLatin1StringView(name));
    connect(item, &QAction::triggered, this, [this, handler] {
        if (!ModalDialogs::raise())
            (this->*handler)();
    });
    return item;
}

void TrayIcon::load()
{
    m_icon.setToolTip(QStringLiteral("Alembra"));
    trayminimax->setText(MinimizeCaption);
    // On X11 a notification area that comes up later takes the icon in; elsewhere nothing would.
    if (QGuiApplication::platformName() == QLatin1StringView("xcb") ||
        QSystemTrayIcon::isSystemTrayAvailable())
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
    // Window managers forget the state of a window that leaves the screen.
    m_form.setWindowState(fromTray ? m_state : m_form.windowState() & ~Qt::WindowMinimized);
    if (fromTray && m_state == Qt::WindowNoState) {
        // A window manager places anew what comes up, unless it was moved; Qt takes a move to where the
        // window was for none.
        m_form.windowHandle()->setPosition(m_place + QPoint(1, 0));
        m_form.windowHandle()->setPosition(m_place);
    }
    m_form.show();
    m_form.raise();
    m_form.activateWindow();
    windowChanged();
}

void TrayIcon::windowChanged()
{
    // Window managers go on changing the state of a window that has left the screen.
    if (m_form.isHidden() || !m_options(Slot::MinimiseToTray).equals(1))
        return;
    if (!m_form.isMinimized()) {
        trayminimax->setText(MinimizeCaption);
        return;
    }
    // Hidden from inside the change of state, the window would come up again half minimised.
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
        m_icon.showMessage(
            QStringLiteral("Alembra information "),
            QStringLiteral("Alembra is still active, just double-click on this icon to open its window"),
            QSystemTrayIcon::Information, BalloonMilliseconds);
}

void TrayIcon::unloadSideWindows()
{
    for (const char *name : UnloadedWindows) {
        if (auto *window = m_form.findChild<QWidget *>(QLatin1StringView(name), Qt::FindDirectChildrenOnly))
            window->close();
    }
}
