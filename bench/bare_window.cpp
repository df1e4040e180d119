// The limit for the start of the program: a main window with a menu and a label behind the same kind of
// splash, and nothing else. bench/run measures the program against it.

#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int Ticks = 37;
constexpr int SplashPause = 50; // ms

/// The splash: labels and a progress bar that is repainted at every tick.
class Splash final : public QWidget
{
public:
    Splash() : QWidget(nullptr, Qt::SplashScreen)
    {
        auto *layout = new QVBoxLayout(this);
        for (const char *text : {"Bare window", "Version 0", "Loading data..."})
            layout->addWidget(new QLabel(QString::fromLatin1(text)));
        layout->addWidget(&m_progress);
        m_progress.setMaximum(Ticks);
        resize(400, 260);
    }

    void tick()
    {
        m_progress.setValue(m_progress.value() + 1);
        setWindowTitle(QStringLiteral("%1%").arg(100 * m_progress.value() / Ticks));
        repaint();
    }

private:
    QProgressBar m_progress;
};

void splashPause()
{
    QEventLoop loop;
    QTimer::singleShot(SplashPause, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    {
        Splash splash;
        splash.show();
        splashPause();
        for (int tick = 0; tick < Ticks; ++tick)
            splash.tick();
        window.setWindowTitle(QStringLiteral("Bare window"));
        window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("&Quit"));
        window.setCentralWidget(new QLabel(QStringLiteral("Nothing")));
        window.resize(980, 640);
        window.show();
    }
    return QApplication::exec();
}
