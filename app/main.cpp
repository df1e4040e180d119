#include "app/program.h"
#include "app/startagain.h"
#include "core/desktop.h"
#include "widgets/qtdesktop.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <cstdio>
#include <unistd.h>

namespace {

constexpr int WrongUsage = 2; // the status of the process
constexpr char FactorVariable[] = "QT_SCALE_FACTOR";

/// Qt reads its scale factor once, when the application object is made. What the program starts afterwards
/// must not inherit it.
std::unique_ptr<QApplication> makeApplication(int &argc, char **argv, int percent)
{
    if (percent == Scale::Normal)
        return std::make_unique<QApplication>(argc, argv);
    const QByteArray users = qgetenv(FactorVariable);
    const double factor = users.isEmpty() ? 1 : users.toDouble();
    qputenv(FactorVariable, QByteArray::number(factor * percent / Scale::Normal));
    auto application = std::make_unique<QApplication>(argc, argv);
    if (users.isEmpty())
        qunsetenv(FactorVariable);
    else
        qputenv(FactorVariable, users);
    return application;
}

/// The factor enlarges the desktop's type as well, which is the one that asked for it.
void setFont(const Scale &scale)
{
    if (scale.byDesktop == Scale::Normal)
        return;
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * Scale::Normal / scale.byDesktop);
    QApplication::setFont(font);
}

int run(int &argc, char **argv)
{
    const StartAgain::Left left = StartAgain::take();
    Scale scale{.percent = left.percent ? left.percent : Scale::remembered()};
    const std::unique_ptr<QApplication> application = makeApplication(argc, argv, scale.percent);
    QApplication::setApplicationName(QStringLiteral("Alembra_uk"));
    // The menu entry, by which a desktop finds the icon of a window.
    QApplication::setDesktopFileName(QStringLiteral("alembra"));
    QApplication::setQuitOnLastWindowClosed(false);

    const QStringList arguments = QApplication::arguments();
    if (arguments.size() > 2 || arguments.value(1).startsWith(QLatin1Char('-'))) {
        std::fprintf(stderr, "usage: %s [folder for your options and database]\n", argv[0]);
        return WrongUsage;
    }

    scale.byDesktop = Scale::forFontSize(QApplication::font().pointSizeF());
    const int wanted = Scale::chosenOr(scale.byDesktop);
    if (!left.percent && wanted != scale.percent) {
        StartAgain::leave({wanted, {}}); // the desktop's type has changed since the last time
        return 0;
    }
    setFont(scale);

    const QString executables = QApplication::applicationDirPath();
    const QString appFolder = QDir(arguments.value(1, executables)).absolutePath();
    const QString shippedFolder = appFolder == executables ? QString() : executables;
    QtDesktop desktop;
    int status = 1;
    endOnError(desktop, [&] { status = Main(desktop, appFolder, shippedFolder, scale, left.session); });
    return status;
}

} // namespace

int main(int argc, char *argv[])
{
    const int status = run(argc, argv);
    if (StartAgain::isWanted())
        ::execv("/proc/self/exe", argv);
    return status;
}
