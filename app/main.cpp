#include "app/program.h"
#include "app/startagain.h"
#include "core/desktop.h"
#include "core/platform.h"
#include "widgets/qtdesktop.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int WrongUsage = 2; // the status of the process
constexpr char FactorVariable[] = "QT_SCALE_FACTOR";

/// Qt reads its scale factor when the application object is made. Programs that this one starts must not
/// inherit it.
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

/// Sets the font back by the factor that follows the desktop's font, so that it is not enlarged twice.
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
    QApplication::setApplicationName(u"Alembra_uk"_s);
    // By this name of the menu entry desktops find a window's icon.
    QApplication::setDesktopFileName(u"alembra"_s);
    QApplication::setQuitOnLastWindowClosed(false);

    const QStringList arguments = QApplication::arguments();
    if (arguments.size() > 2 || arguments.value(1).startsWith(u'-')) {
        std::fprintf(stderr, "usage: %s [folder for your options and database]\n", argv[0]);
        return WrongUsage;
    }

    scale.byDesktop = Scale::forFontSize(QApplication::font().pointSizeF());
    const int wanted = Scale::chosenOr(scale.byDesktop);
    if (!left.percent && wanted != scale.percent) {
        StartAgain::leave({wanted, {}}); // the desktop's font has changed since the last run
        return 0;
    }
    setFont(scale);

    const QString executables = QApplication::applicationDirPath();
    const QString appFolder = QDir(arguments.value(1, Platform::defaultFolder(executables))).absolutePath();
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
        Platform::startAgain(argv);
    return status;
}
