// The baseline for the start of the program: nothing but the program's own splash and a main window with a
// menu and a label.

#include "app/frmload.h"
#include "widgets/icons.h"
#include "widgets/qtdesktop.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    constexpr int Ticks = 37;
    const QApplication application(argc, argv);
    QApplication::setWindowIcon(Icons::program());
    QApplication::setQuitOnLastWindowClosed(false);
    QtDesktop desktop;
    QMainWindow window;
    {
        frmload splash;
        splash.showAndPause(desktop);
        splash.ProgressTick();
        splash.setMaximum(5 * Ticks);
        for (int tick = 1; tick < Ticks; ++tick)
            splash.ProgressTick();
        window.setWindowTitle(u"Bare window"_s);
        window.menuBar()->addMenu(u"&File"_s)->addAction(u"&Quit"_s);
        window.setCentralWidget(new QLabel(u"Nothing"_s));
        window.resize(980, 640);
        window.show();
        splash.close();
    }
    return QApplication::exec();
}
