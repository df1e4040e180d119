#include "tests/e2e/paintedtexts.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

namespace {

/// Draws nothing and writes down the texts.
class Recorder final : public QPaintEngine
{
public:
    Recorder() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &) override {}
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawImage(const QRectF &, const QImage &, const QRectF &, Qt::ImageConversionFlags) override {}
    void drawTiledPixmap(const QRectF &, const QPixmap &, const QPointF &) override {}

    void drawTextItem(const QPointF &place, const QTextItem &item) override
    {
        // Boxes of letters are told in whole pixels, and text may begin between two.
        constexpr double Soft = 1;
        const QTransform toWindow = painter()->deviceTransform();
        const QFontMetricsF metrics(item.font());
        QRectF box = metrics.tightBoundingRect(item.text());
        // Documents set the same text without hints, which may be narrower.
        box.setRight(box.right() * item.width() / metrics.horizontalAdvance(item.text()));
        const QRect ink = toWindow.mapRect(box.translated(place)).adjusted(Soft, Soft, -Soft, -Soft).toRect();
        if (ink.isEmpty())
            return;
        QRegion seen = QRegion(ink) & systemClip();
        if (painter()->hasClipping())
            seen &= toWindow.map(painter()->clipRegion());
        texts.append({item.text(), ink, seen, painter()->pen().color(), painting});
    }

    QList<PaintedText> texts;
    QWidget *painting = nullptr;
};

class RecordingDevice final : public QObject, public QPaintDevice
{
public:
    explicit RecordingDevice(const QWidget &window) : m_window(window) { qApp->installEventFilter(this); }

    QPaintEngine *paintEngine() const override { return &m_recorder; }
    const QList<PaintedText> &texts() const { return m_recorder.texts; }

protected:
    // A painter does not tell whose it is, but each widget gets its paint event first.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_recorder.painting = qobject_cast<QWidget *>(watched);
        return false;
    }

    // Of an ordinary display at 100 %: places come out in logical pixels.
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_window.width();
        case PdmHeight:
            return m_window.height();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return m_window.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return m_window.logicalDpiY();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        case PdmDepth:
            return 32;
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    const QWidget &m_window;
    mutable Recorder m_recorder;
};

} // namespace

QList<PaintedText> PaintedTexts::of(QWidget &window)
{
    RecordingDevice device(window);
    window.render(&device);
    return device.texts();
}
