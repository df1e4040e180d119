#include "app/program.h"
#include "core/desktop.h"
#include "widgets/qtdesktop.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Alembra_uk"));
    // The menu entry, by which a desktop finds the icon of a window.
    QApplication::setDesktopFileName(QStringLiteral("alembra"));
    QApplication::setQuitOnLastWindowClosed(false);

    QtDesktop desktop;
    int status = 1;
    atEdge(desktop, [&] { status = Main(desktop, QApplication::applicationDirPath()); });
    return status;
}
