// The limit for the start of the program: a main window with a menu and a label behind the same splash, and
// nothing else. bench/run measures the program against it.

#include <QApplication>
#include <QEventLoop>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QProgressBar>
#include <QTimer>

namespace {

constexpr int Ticks = 37;
constexpr int SplashPause = 50; // ms

/// The program's splash in size, pieces and course: a picture, lines of text of which one is large, a bar,
/// and a percentage in the caption.
class Splash final : public QWidget
{
public:
    Splash() : QWidget(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    {
        setFixedSize(440, 216);
        QPixmap disc(88, 88);
        disc.fill(Qt::transparent);
        QPainter(&disc).drawEllipse(0, 0, 87, 87);
        addLine({}, {20, 24, 88, 88})->setPixmap(disc);
        QLabel *title = addLine(QStringLiteral("Bare window"), {128, 16, 296, 34});
        QFont large = title->font();
        large.setPointSizeF(large.pointSizeF() * 1.9);
        large.setBold(true);
        title->setFont(large);
        addLine(QStringLiteral("Version 0"), {128, 50, 296, 20});
        addLine(QStringLiteral("A window, a menu and a label, which no program can do without"),
                {128, 72, 296, 54});
        addLine(QStringLiteral("It reads nothing and it knows nothing"), {128, 128, 296, 34});
        addLine(QStringLiteral("Loading data..."), {20, 164, 400, 18});
        m_progress.setTextVisible(false);
        m_progress.setGeometry(20, 186, 400, 14);
        m_progress.setMaximum(Ticks);
    }

    void tick()
    {
        m_progress.setValue(m_progress.value() + 1); // paints at once
        setWindowTitle(QStringLiteral("%1%").arg(100 * m_progress.value() / Ticks));
    }

private:
    QLabel *addLine(const QString &text, const QRect &place)
    {
        auto *line = new QLabel(text, this);
        line->setWordWrap(true);
        line->setGeometry(place);
        return line;
    }

    QProgressBar m_progress{this};
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
