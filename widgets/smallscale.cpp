#include "widgets/smallscale.h"

#include <QApplication>
#include <QEvent>
#include <QGraphicsEffect>
#include <QPainter>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace {

/// Draws its window with a scaled painter.
class ScaledDrawing final : public QGraphicsEffect
{
public:
    explicit ScaledDrawing(QWidget &window) : QGraphicsEffect(&window), m_window(window) {}

protected:
    void draw(QPainter *painter) override
    {
        const double ratio = painter->device()->devicePixelRatio();
        if (ratio >= 1) {
            drawSource(painter);
            return;
        }
        const QTransform unscaled = painter->worldTransform();
        painter->setWorldTransform(unscaled * QTransform::fromScale(ratio, ratio));
        m_window.render(painter, {}, {}, QWidget::DrawWindowBackground | QWidget::DrawChildren);
        painter->setWorldTransform(unscaled);
    }

private:
    QWidget &m_window;
};

class Watcher final : public QObject
{
public:
    using QObject::QObject;

protected:
    // Menus and drop-down lists are windows too.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *window = event->type() == QEvent::Polish ? qobject_cast<QWidget *>(watched) : nullptr;
        if (window && window->isWindow())
            window->setGraphicsEffect(new ScaledDrawing(*window));
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void SmallScale::install()
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    const auto isSmall = [](const QScreen *screen) { return screen->devicePixelRatio() < 1; };
    if (std::any_of(screens.begin(), screens.end(), isSmall))
        qApp->installEventFilter(new Watcher(qApp));
}
