#include "tests/e2e/judge.h"

#include "widgets/readable.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPaintEngine>
#include <QPainter>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolButton>
#include <QToolTip>

/// A text as a widget paints it, whoever draws it: a label, a style, a delegate or the widget itself. Places
/// are logical pixels of the window that was asked.
struct PaintedText
{
    QString text;
    QRect ink;    ///< what its letters cover
    QRegion seen; ///< of the ink, what is not clipped; what covers the widget does not count
    QColor colour;
    QWidget *by = nullptr; ///< the widget that paints it
};

namespace {

/// Draws nothing and writes down the texts, in the order of painting.
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
        // Boxes of letters are given in whole pixels, and text may begin between two.
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

/// What @p window is rendered to: as large as an ordinary display at 100 %, so that places are logical
/// pixels.
class RecordingDevice final : public QObject, public QImage
{
public:
    explicit RecordingDevice(QWidget &window) : QImage(window.size(), Format_RGB32)
    {
        qApp->installEventFilter(this);
        window.render(this);
    }

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

private:
    mutable Recorder m_recorder;
};

constexpr QChar Ellipsis(u'\u2026');

/// The most frequent colour in and around a text beside its own: what it stands on.
QColor background(const QImage &picture, const PaintedText &text)
{
    const double ratio = picture.devicePixelRatio();
    const QRect ink = text.seen.boundingRect();
    const QRect area =
        QRectF(ink.topLeft() * ratio, ink.size() * ratio).toRect().adjusted(-3, -3, 3, 3) & picture.rect();
    QHash<QRgb, int> counts;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        for (int x = area.left(); x <= area.right(); ++x)
            ++counts[line[x]];
    }
    counts.remove(text.colour.rgb());
    QRgb most = text.colour.rgb();
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        most = count.value() > counts.value(most) ? count.key() : most;
    return QColor(most);
}

/// The view whose rows stand at @p widget, if it is the inside of one.
QAbstractItemView *viewOf(const QWidget *widget)
{
    auto *view = qobject_cast<QAbstractItemView *>(widget->parentWidget());
    return view && view->viewport() == widget ? view : nullptr;
}

/// Whether something that lets nothing through lies over @p widget at @p place.
bool isCovered(const QWidget &widget, const QWidget &window, const QPoint &place)
{
    for (const QWidget *above = window.childAt(place);
         above && above != &widget && !above->isAncestorOf(&widget); above = above->parentWidget()) {
        if (above->autoFillBackground() || qobject_cast<const QAbstractItemView *>(above) ||
            qobject_cast<const QLineEdit *>(above) || qobject_cast<const QComboBox *>(above) ||
            qobject_cast<const QAbstractButton *>(above))
            return true;
    }
    return false;
}

/// Colours that are not ours to choose: the desktop's of a selection, those that the bonds have in the
/// charts, and the light grey of rings that a resistor has not.
bool isGiven(const QColor &colour, const QColor &behind, const QWidget &widget)
{
    const bool ring = widget.objectName().startsWith("Label18(") || widget.objectName() == "lbl2(20)";
    return behind == widget.palette().color(QPalette::Highlight) ||
           widget.window()->objectName() == "Formhelp3" || (ring && colour == QColor(0xe0, 0xe0, 0xe0));
}

QString toolTipOfCell(QAbstractItemView &view, const QPoint &place)
{
    QHelpEvent hover(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
    QApplication::sendEvent(view.viewport(), &hover);
    return QToolTip::text();
}

} // namespace

QStringList Judge::takeFindings()
{
    m_found.removeDuplicates();
    return std::exchange(m_found, {});
}

QStringList Judge::textsOf(QWidget &window)
{
    QStringList texts;
    const RecordingDevice device(window);
    for (const PaintedText &painted : device.texts())
        texts << painted.text;
    return texts;
}

void Judge::report(const QString &what, const QString &text, const QWidget &where)
{
    QStringList path;
    for (const QWidget *each = &where; each && path.size() < 2; each = each->parentWidget()) {
        if (!each->objectName().isEmpty())
            path.prepend(each->objectName());
    }
    m_found << QString("%1 in %2: \"%3\"").arg(what, path.join('/'), text);
}

void Judge::look(QWidget &window)
{
    QApplication::processEvents(); // layouts follow the texts
    for (auto *field : window.findChildren<QLineEdit *>())
        field->deselect(); // a selected part is painted apart from the rest, each cut at the other
    const QImage picture = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QList<PaintedText> texts = RecordingDevice(window).texts();
    texts.removeIf([&](const PaintedText &text) { return isOutOfSight(text, window); });
    if (texts.isEmpty())
        report("no text seen", {}, window);
    m_shortened.clear();
    for (const PaintedText &text : texts)
        lookAtText(text, window, picture);
    for (auto view = m_shortened.cbegin(); view != m_shortened.cend(); ++view) {
        constexpr int Few = 2;
        if (view->size() > Few)
            report("many cells shortened", view->join("\", \""), *view.key());
    }
    lookAtNeighbours(texts, window);
    lookAtChildren(window, picture);
}

void Judge::lookAtNeighbours(const QList<PaintedText> &texts, const QWidget &window)
{
    for (qsizetype one = 0; one < texts.size(); ++one) {
        for (qsizetype other = one + 1; other < texts.size(); ++other) {
            const PaintedText &a = texts[one];
            const PaintedText &b = texts[other];
            if (a.by->isAncestorOf(b.by))
                continue; // a sign in the gap of a formula
            const int gap = a.by == b.by ? 0 : 5;
            if (b.seen.intersects(a.seen.boundingRect().adjusted(-gap, 0, gap, 0)))
                report(QString("over \"%1\"").arg(a.text), b.text, window);
        }
    }
}

// Texts of widgets beneath others; one of which a part peeps out is a fault.
bool Judge::isOutOfSight(const PaintedText &text, const QWidget &window)
{
    const QRect seen = text.seen.boundingRect();
    if (seen.isEmpty())
        return true;
    int covered = 0;
    const QList<QPoint> places{seen.topLeft(), seen.topRight(), seen.center(), seen.bottomLeft(),
                               seen.bottomRight()};
    for (const QPoint &place : places)
        covered += isCovered(*text.by, window, place) ? 1 : 0;
    if (covered > 0 && covered < places.size())
        report("partly covered", text.text, *text.by);
    return covered == places.size();
}

void Judge::lookAtText(const PaintedText &text, QWidget &window, const QImage &picture)
{
    const QRect seen = text.seen.boundingRect();
    QWidget &at = *text.by;
    QAbstractItemView *view = viewOf(&at);
    QRegion cut = QRegion(text.ink) - text.seen;
    if (view) // rows go on above and below
        cut &= QRect(text.ink.left(), seen.top(), text.ink.width(), seen.height());
    if (!cut.isEmpty())
        report(QString("cut by %1 x %2").arg(cut.boundingRect().width()).arg(cut.boundingRect().height()),
               text.text, at);
    if (qobject_cast<const QAbstractButton *>(&at) &&
        !QRect(at.mapTo(&window, QPoint(2, 2)), at.size() - QSize(4, 4)).contains(text.ink))
        report("on the edge", text.text, at);

    if (text.text.contains(Ellipsis)) {
        const QString start = text.text.section(Ellipsis, 0, 0);
        const QString tip = view ? toolTipOfCell(*view, at.mapFrom(&window, seen.center())) : QString();
        if (tip.contains(Ellipsis) || !tip.startsWith(start) || tip.size() <= start.size())
            report("shortened", text.text, at);
        if (view && text.text.front().isDigit() && start.size() < 8)
            report("shortened number", text.text, at);
        m_shortened[&at] << text.text;
    }
    const QColor behind = background(picture, text);
    if (at.isEnabled() && !isGiven(text.colour, behind, at) &&
        Readable::contrast(text.colour, behind) < Readable::TextContrast)
        report(QString("%1 on %2, contrast %3")
                   .arg(text.colour.name(), behind.name())
                   .arg(Readable::contrast(text.colour, behind), 0, 'f', 1),
               text.text, at);
}

void Judge::lookAtChildren(QWidget &window, const QImage &picture)
{
    for (QWidget *child : window.findChildren<QWidget *>()) {
        if (!child->isVisible() || child->isWindow())
            continue;
        const QWidget &parent = *child->parentWidget();
        const auto *label = qobject_cast<QLabel *>(child);
        const bool bearsText = (label && !label->text().isEmpty()) ||
                               qobject_cast<QAbstractButton *>(child) ||
                               qobject_cast<QAbstractItemView *>(child) || qobject_cast<QTabBar *>(child);
        if (bearsText && !parent.rect().contains(child->geometry()))
            report("beyond its parent", {}, *child);
        if (qobject_cast<QToolButton *>(child) &&
            (qobject_cast<const QTabBar *>(&parent) || child->objectName().endsWith("_ext_button")))
            report("no room for all of it", {}, parent);
        if (const auto *box = qobject_cast<QComboBox *>(child))
            lookAtBox(*box);
        const auto *field = qobject_cast<QLineEdit *>(child);
        if (picture.devicePixelRatio() >= 1 && child->isEnabled() &&
            (qobject_cast<QComboBox *>(child) || (field && field->hasFrame())))
            lookAtEdge(*child, window, picture);
    }
}

// The left edge, halfway down: its strongest contrast to what is left and right of it.
void Judge::lookAtEdge(const QWidget &field, const QWidget &window, const QImage &picture)
{
    constexpr double Seen = 1.7; // Fusion's own on a light desktop
    const QPoint middle = field.mapTo(&window, QPoint(0, field.height() / 2));
    const QPoint place = (QPointF(middle) * picture.devicePixelRatio()).toPoint();
    const auto colourAt = [&](int x) { return picture.pixelColor(place + QPoint(x, 0)); };
    double strongest = 1;
    for (int x = -2; x <= 3; ++x) {
        strongest = std::max(strongest, std::min(Readable::contrast(colourAt(x), colourAt(-3)),
                                                 Readable::contrast(colourAt(x), colourAt(4))));
    }
    if (strongest < Seen)
        report(QString("edge is not seen, contrast %1").arg(strongest, 0, 'f', 1), {}, field);
}

void Judge::lookAtBox(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    const int room =
        box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box).width();
    for (int item = 0; item < box.count(); ++item) {
        if (box.fontMetrics().horizontalAdvance(box.itemText(item)) > room)
            report("too long", box.itemText(item), box);
    }
}

void Judge::lookAtFocus(QWidget &control)
{
    QWidget &around = *control.parentWidget();
    const QRect area = control.geometry().adjusted(-3, -3, 3, 3);
    control.clearFocus();
    const QImage without = around.grab(area).toImage();
    control.setFocus(Qt::TabFocusReason);
    const QImage with = around.grab(area).toImage();
    constexpr double Visible = 1.5; // contrast of the styles' own frames around fields
    constexpr int Few = 20;         // pixels
    int marked = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x)
            marked += Readable::contrast(with.pixelColor(x, y), without.pixelColor(x, y)) > Visible ? 1 : 0;
    }
    if (control.hasFocus() && marked < Few)
        report("focus is not seen", {}, control);
}
