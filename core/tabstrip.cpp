#include "core/tabstrip.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionTab>
#include <QStylePainter>

namespace {

// Left and right of a caption, logical pixels. Less than the styles' own, for the long captions of the
// calculators.
constexpr int CaptionMargin = 7;
constexpr int DownHeight = 5; // more than the height of the letters

} // namespace

TabStrip::TabStrip(const QString &name, const QStringList &captions, Direction direction, QWidget *parent)
    : QTabBar(parent)
{
    setObjectName(name);
    setExpanding(false);
    setFocusPolicy(Qt::StrongFocus);
    if (direction == Down)
        setShape(RoundedWest);
    for (const QString &caption : captions)
        addTab(caption);
    connect(this, &QTabBar::currentChanged, this, [this](int index) { Q_EMIT tabClicked(index + 1); });
}

QSize TabStrip::tabSizeHint(int index) const
{
    const int caption = fontMetrics().horizontalAdvance(tabText(index)) + 2 * CaptionMargin;
    if (!isDown())
        return {caption, QTabBar::tabSizeHint(index).height()};
    return {qMax(caption, width()), fontMetrics().height() + DownHeight};
}

void TabStrip::mousePressEvent(QMouseEvent *event)
{
    const int before = currentIndex();
    QTabBar::mousePressEvent(event);
    if (event->button() == Qt::LeftButton && tabAt(event->position().toPoint()) == before && before >= 0)
        Q_EMIT tabClicked(before + 1);
}

void TabStrip::keyPressEvent(QKeyEvent *event)
{
    // QTabBar knows the arrows left and right only.
    const int step = !isDown() ? 0 : event->key() == Qt::Key_Down ? 1 : event->key() == Qt::Key_Up ? -1 : 0;
    if (step == 0)
        QTabBar::keyPressEvent(event);
    else
        setCurrentIndex(qBound(0, currentIndex() + step, count() - 1));
}

void TabStrip::paintEvent(QPaintEvent *event)
{
    if (!isDown()) {
        QTabBar::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    for (int index = 0; index < count(); ++index) {
        QStyleOptionTab tab;
        initStyleOption(&tab, index);
        painter.drawControl(QStyle::CE_TabBarTabShape, tab);
        const QRect caption = tab.rect.adjusted(CaptionMargin, 0, 0, 0);
        painter.drawItemText(caption, Qt::AlignLeft | Qt::AlignVCenter, tab.palette, isEnabled(), tab.text,
                             QPalette::WindowText);
        if (tab.state.testFlag(QStyle::State_HasFocus) && index == currentIndex()) {
            QStyleOptionFocusRect focus;
            focus.initFrom(this);
            focus.rect = tab.rect.adjusted(3, 3, -3, -3);
            painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
        }
    }
}
