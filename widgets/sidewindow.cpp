#include "widgets/sidewindow.h"

#include "widgets/controls.h"

#include <QCloseEvent>
#include <QPushButton>

SideWindow::SideWindow(const char *name, QWidget &owner) : QDialog(&owner), m_owner(owner)
{
    setObjectName(QLatin1StringView(name));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_WindowPropagation); // palette and font of the main window
}

void SideWindow::showAboveOwner()
{
    m_owner.setEnabled(false);
    setEnabled(true); // a window of a disabled owner is disabled with it
    show();
}

void SideWindow::closeEvent(QCloseEvent *event)
{
    m_owner.setEnabled(true);
    m_owner.activateWindow();
    event->accept();
    Q_EMIT unloaded();
}

QPushButton *SideWindow::makeOkButton(const QString &name)
{
    auto *button = Controls::named(new QPushButton(QStringLiteral("OK"), this), name);
    button->setDefault(true);
    connect(button, &QPushButton::clicked, this, &QDialog::accept);
    return button;
}
