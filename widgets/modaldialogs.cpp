#include "widgets/modaldialogs.h"

#include <QApplication>
#include <QWidget>

bool ModalDialogs::raise()
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (!dialog)
        return false;
    dialog->setWindowState(dialog->windowState() & ~Qt::WindowMinimized);
    dialog->raise();
    dialog->activateWindow();
    return true;
}

bool ModalDialogs::rejectBeforeClosing(QWidget &window)
{
    bool found = false;
    for (QWidget *dialog : QApplication::topLevelWidgets()) {
        if (!dialog->isModal()) // modal until exec() returns, even when hidden
            continue;
        found = true;
        QObject::connect(dialog, &QObject::destroyed, &window, &QWidget::close, Qt::QueuedConnection);
        dialog->close();
    }
    return found;
}
