#include "tests/e2e/judge.h"

#include "tests/e2e/paintedtexts.h"
#include "widgets/readable.h"
#include "widgets/rowlistview.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolButton>
#include <QToolTip>
#include <map>

namespace {

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
    const bool ring = widget.objectName().startsWith(QLatin1String("Label18(")) ||
                      widget.objectName() == QLatin1String("lbl2(20)");
    return behind == widget.palette().color(QPalette::Highlight) ||
           widget.window()->objectName() == QLatin1String("Formhelp3") ||
           (ring && colour == QColor(0xe0, 0xe0, 0xe0));
}

QString toolTipOfCell(QAbstractItemView &view, const QPoint &place)
{
    const QPoint global = view.viewport()->mapToGlobal(place);
    QHelpEvent hover(QEvent::ToolTip, place, global);
    QApplication::sendEvent(view.viewport(), &hover);
    return QToolTip::text();
}

} // namespace

QStringList Judge::takeFindings()
{
    m_found.removeDuplicates();
    return std::exchange(m_found, {});
}

void Judge::report(const QString &what, const QString &text, const QWidget &where)
{
    QStringList path;
    for (const QWidget *each = &where; each && path.size() < 2; each = each->parentWidget()) {
        if (!each->objectName().isEmpty())
            path.prepend(each->objectName());
    }
    m_found << QStringLiteral("%1 in %2: \"%3\"").arg(what, path.join(QLatin1Char('/')), text);
}

void Judge::look(QWidget &window)
{
    QApplication::processEvents(); // layouts follow the texts
    for (auto *field : window.findChildren<QLineEdit *>())
        field->deselect(); // a selected part is painted apart from the rest, each cut at the other
    const QImage picture = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QList<PaintedText> texts = PaintedTexts::of(window);
    texts.removeIf([&](const PaintedText &text) { return isOutOfSight(text, window); });
    m_shortened.clear();
    for (const PaintedText &text : texts)
        lookAtText(text, window, picture);
    for (auto view = m_shortened.cbegin(); view != m_shortened.cend(); ++view) {
        constexpr int Few = 2;
        if (view->size() > Few)
            report(QStringLiteral("many cells shortened"), view->join(QLatin1String("\", \"")), *view.key());
    }
    lookAtNeighbours(texts, window);
    lookAtNumbers(texts, window);
    lookAtChildren(window, picture);
}

// Those of a column are in line at their decimal points.
void Judge::lookAtNumbers(const QList<PaintedText> &texts, const QWidget &window)
{
    static const QRegularExpression beforePoint(QStringLiteral("^[-+<>~]*[\\d,]+"));
    std::map<std::pair<const QWidget *, int>, int> points;
    for (const PaintedText &text : texts) {
        const auto *list = qobject_cast<RowListView *>(viewOf(text.by));
        const int column = list ? list->columnAt(text.by->mapFrom(&window, text.ink.center()).x()) : -1;
        const auto number = beforePoint.match(text.text);
        if (column < 0 || list->columns()[column].kind != ListColumn::Kind::Number || !number.hasMatch())
            continue;
        constexpr int Bearing = 3; // between the start of a text and its ink
        const int point = text.ink.left() + list->fontMetrics().horizontalAdvance(number.captured());
        if (qAbs(points.try_emplace({list, column}, point).first->second - point) > Bearing)
            report(QStringLiteral("out of line"), text.text, *list);
    }
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
                report(QStringLiteral("over \"%1\"").arg(a.text), b.text, window);
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
        report(QStringLiteral("partly covered"), text.text, *text.by);
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
        report(
            QStringLiteral("cut by %1 x %2").arg(cut.boundingRect().width()).arg(cut.boundingRect().height()),
            text.text, at);
    if (qobject_cast<const QAbstractButton *>(&at) &&
        !QRect(at.mapTo(&window, QPoint(2, 2)), at.size() - QSize(4, 4)).contains(text.ink))
        report(QStringLiteral("on the edge"), text.text, at);

    if (text.text.contains(Ellipsis)) {
        const QString start = text.text.section(Ellipsis, 0, 0);
        const QString tip = view ? toolTipOfCell(*view, at.mapFrom(&window, seen.center())) : QString();
        if (tip.contains(Ellipsis) || !tip.startsWith(start) || tip.size() <= start.size())
            report(QStringLiteral("shortened"), text.text, at);
        if (view && text.text.front().isDigit() && start.size() < 8)
            report(QStringLiteral("shortened number"), text.text, at);
        m_shortened[&at] << text.text;
    }
    const QColor behind = background(picture, text);
    if (at.isEnabled() && !isGiven(text.colour, behind, at) &&
        Readable::contrast(text.colour, behind) < Readable::TextContrast)
        report(QStringLiteral("%1 on %2, contrast %3")
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
            report(QStringLiteral("beyond its parent"), {}, *child);
        if (qobject_cast<QToolButton *>(child) &&
            (qobject_cast<const QTabBar *>(&parent) ||
             child->objectName().endsWith(QLatin1String("_ext_button"))))
            report(QStringLiteral("no room for all of it"), {}, parent);
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
        report(QStringLiteral("edge is not seen, contrast %1").arg(strongest, 0, 'f', 1), {}, field);
}

void Judge::lookAtBox(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    const int room =
        box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box).width();
    for (int item = 0; item < box.count(); ++item) {
        if (box.fontMetrics().horizontalAdvance(box.itemText(item)) > room)
            report(QStringLiteral("too long"), box.itemText(item), box);
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
        report(QStringLiteral("focus is not seen"), {}, control);
}
