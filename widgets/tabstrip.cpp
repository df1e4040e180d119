#include "widgets/tabstrip.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QProxyStyle>
#include <QStyleOptionViewItem>
#include <QStylePainter>

namespace {

// Beside a caption, logical pixels: less than in the styles, for the long captions of the calculators, and
// the least where not all of them would fit.
constexpr int CaptionMargin = 7;
constexpr int LeastCaptionMargin = 3;
constexpr int DownHeight = 5; // more than the height of the letters

} // namespace

class TabStrip::Style final : public QProxyStyle
{
public:
    explicit Style(TabStrip &strip) : m_strip(strip) { setParent(&strip); }

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        return metric == PM_TabBarTabHSpace ? 2 * m_strip.captionMargin()
                                            : QProxyStyle::pixelMetric(metric, option, widget);
    }

private:
    const TabStrip &m_strip;
};

TabStrip::TabStrip(const QString &name, const QStringList &captions, Direction direction, QWidget *parent)
    : QTabBar(parent)
{
    setObjectName(name);
    setStyle(new Style(*this));
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
        room -= fontMetrics().size(Qt::TextShowMnemonic, tabText(index)).width();
    return qBound(LeastCaptionMargin, room / (2 * count()), CaptionMargin);
}

QSize TabStrip::tabSizeHint(int index) const
{
    if (!isDown())
        return QTabBar::tabSizeHint(index);
    const int caption = fontMetrics().horizontalAdvance(tabText(index)) + 2 * CaptionMargin;
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

// Lines of a list: the style would turn the captions of such tabs by 90 degrees.
void TabStrip::paintEvent(QPaintEvent *event)
{
    if (!isDown())
        return QTabBar::paintEvent(event);
    QStylePainter painter(this);
    painter.fillRect(rect(), palette().base());
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.lineWidth = 1;
    frame.state |= QStyle::State_Sunken;
    painter.drawPrimitive(QStyle::PE_Frame, frame);
    for (int index = 0; index < count(); ++index) {
        QStyleOptionViewItem line;
        line.initFrom(this);
        line.state = QStyle::State_Enabled | QStyle::State_Active;
        line.state.setFlag(QStyle::State_Selected, index == currentIndex());
        line.rect = tabRect(index).adjusted(1, 0, -1, 0);
        line.features = QStyleOptionViewItem::HasDisplay;
        line.showDecorationSelected = true; // in its whole width
        line.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
        line.text = tabText(index);
        painter.drawControl(QStyle::CE_ItemViewItem, line);
    }
}
