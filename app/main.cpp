#include "app/program.h"
#include "core/desktop.h"
#include "widgets/qtdesktop.h"

#include <QApplication>
#include <QDir>
#include <cstdio>

namespace {

constexpr int WrongUsage = 2; // the status of the process

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Alembra_uk"));
    // The menu entry, by which a desktop finds the icon of a window.
    QApplication::setDesktopFileName(QStringLiteral("alembra"));
    QApplication::setQuitOnLastWindowClosed(false);

    const QStringList arguments = QApplication::arguments();
    if (arguments.size() > 2 || arguments.value(1).startsWith(QLatin1Char('-'))) {
        std::fprintf(stderr, "usage: %s [folder for your options and database]\n", argv[0]);
        return WrongUsage;
    }

    const QString executables = QApplication::applicationDirPath();
    const QString appFolder = QDir(arguments.value(1, executables)).absolutePath();
    const QString shippedFolder = appFolder == executables ? QString() : executables;
    QtDesktop desktop;
    int status = 1;
    atEdge(desktop, [&] { status = Main(desktop, appFolder, shippedFolder); });
    return status;
}
