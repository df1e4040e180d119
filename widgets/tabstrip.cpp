#include "widgets/tabstrip.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionTab>
#include <QStylePainter>

namespace {

// Left and right of a caption, logical pixels. Less than the styles' own, for the long captions of the
// calculators; the least where they would not all be seen.
constexpr int CaptionMargin = 7;
constexpr int LeastCaptionMargin = 3;
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

int TabStrip::captionMargin() const
{
    int room = width();
    for (int index = 0; index < count(); ++index)
        room -= captionWidth(index);
    return isDown() ? CaptionMargin : qBound(LeastCaptionMargin, room / (2 * count()), CaptionMargin);
}

// Without the sign of a mnemonic.
int TabStrip::captionWidth(int index) const
{
    return fontMetrics().horizontalAdvance(tabText(index).remove(QLatin1Char('&')));
}

QSize TabStrip::tabSizeHint(int index) const
{
    const int caption = captionWidth(index) + 2 * captionMargin();
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

void TabStrip::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    if (isDown()) {
        painter.fillRect(rect(), palette().base());
        QStyleOptionFrame frame;
        frame.initFrom(this);
        frame.lineWidth = 1;
        frame.state |= QStyle::State_Sunken;
        painter.drawPrimitive(QStyle::PE_Frame, frame);
    } else {
        QStyleOptionTabBarBase base;
        base.initFrom(this);
        base.shape = shape();
        base.tabBarRect = QRect(tabRect(0).topLeft(), tabRect(count() - 1).bottomRight());
        base.selectedTabRect = tabRect(currentIndex());
        const int overlap = style()->pixelMetric(QStyle::PM_TabBarBaseOverlap, &base, this);
        base.rect = QRect(0, height() - overlap, width(), overlap);
        painter.drawPrimitive(QStyle::PE_FrameTabBarBase, base);
    }
    for (int index = 0; index < count(); ++index) {
        if (index != currentIndex())
            paintTab(painter, index);
    }
    paintTab(painter, currentIndex()); // above its neighbours
}

void TabStrip::paintTab(QStylePainter &painter, int index)
{
    QStyleOptionTab tab;
    initStyleOption(&tab, index);
    const bool selected = index == currentIndex();
    if (!isDown())
        painter.drawControl(QStyle::CE_TabBarTabShape, tab);
    else if (selected)
        painter.fillRect(tab.rect.adjusted(1, 1, -1, -1), tab.palette.highlight());

    const Qt::Alignment alignment = isDown() ? Qt::AlignLeft : Qt::AlignHCenter;
    const QPalette::ColorRole colour = !isDown()  ? QPalette::WindowText
                                       : selected ? QPalette::HighlightedText
                                                  : QPalette::Text;
    const int margin = captionMargin();
    painter.drawItemText(tab.rect.adjusted(margin, 0, -margin, 0),
                         alignment | Qt::AlignVCenter | Qt::TextShowMnemonic, tab.palette, isEnabled(),
                         tab.text, colour);
}
