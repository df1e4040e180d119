#include "browsers/browserpane.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QKeyEvent>

namespace {

// Tab reaches the option that is on; the arrow keys go on from there.
constexpr Qt::FocusPolicy NotByTab = Qt::ClickFocus;

/// The nearest visible sibling below @p strip, or null.
RowListView *listBelow(const QTabBar &strip)
{
    RowListView *nearest = nullptr;
    for (auto *list :
         strip.parentWidget()->findChildren<RowListView *>(QString(), Qt::FindDirectChildrenOnly)) {
        const bool below = list->y() > strip.y() && list->x() <= strip.geometry().right() &&
                           strip.x() <= list->geometry().right();
        if (below && Controls::isOnTop(*list, *strip.parentWidget()) &&
            (!nearest || list->y() < nearest->y()))
            nearest = list;
    }
    return nearest;
}

/// Passes what is typed to the visible list below, which takes the focus: a name can be typed right after a
/// click on a tab.
class Tabs final : public QTabBar
{
public:
    using QTabBar::QTabBar;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const QString text = event->text();
        RowListView *list = !text.isEmpty() && text.front().isLetterOrNumber() ? listBelow(*this) : nullptr;
        if (!list)
            return QTabBar::keyPressEvent(event);
        list->setFocus();
        QCoreApplication::sendEvent(list, event);
    }
};

} // namespace

RowListView *BrowserPane::makeList(const QString &name, RowList &list, const QList<ListColumn> &columns,
                                   const QRect &place, QWidget *parent)
{
    auto *view = new RowListView(name, list, columns, parent);
    view->setGeometry(place);
    return view;
}

QTabBar *BrowserPane::makeTabs(const QString &name, const QStringList &captions, const QRect &place,
                               QWidget *parent)
{
    auto *tabs = Controls::named(new Tabs(parent), name);
    tabs->setExpanding(false);
    for (const QString &caption : captions)
        tabs->addTab(caption);
    tabs->setGeometry(place);
    tabs->setFocusPolicy(Qt::StrongFocus); // also by a click
    return tabs;
}

void BrowserPane::placeOptions(const QList<QRadioButton *> &options, const QPoint &place)
{
    constexpr int Gap = 16;
    auto *group = new QButtonGroup(this);
    int left = place.x();
    for (QRadioButton *option : options) {
        option->setGeometry(QRect(QPoint(left, place.y()), option->sizeHint()));
        group->addButton(option);
        option->setFocusPolicy(NotByTab);
        left += option->width() + Gap;
    }
    options.constFirst()->setChecked(true);
    options.constFirst()->setFocusPolicy(Qt::StrongFocus);
    connect(group, &QButtonGroup::buttonClicked, this, &BrowserPane::showChoice);
}

void BrowserPane::addOptions(ControlArray<QRadioButton> &array, const QList<QPair<int, QString>> &captions,
                             const QPoint &place, QWidget *parent)
{
    QList<QRadioButton *> options;
    for (const auto &[index, caption] : captions)
        options << &array.add(index, new QRadioButton(caption, parent));
    placeOptions(options, place);
}

void BrowserPane::showChoice()
{
    applyChoice();
    keepFocusOffCoveredControls();
}

// Covered controls are still on, so Tab would reach them.
void BrowserPane::keepFocusOffCoveredControls()
{
    const auto set = [this](QWidget *each, Qt::FocusPolicy policy) {
        const bool onTop = Controls::isOnTop(*each, *this);
        if (!onTop)
            each->setFocusPolicy(Qt::NoFocus);
        else if (each->focusPolicy() == Qt::NoFocus)
            each->setFocusPolicy(policy);
    };
    for (RowListView *list : findChildren<RowListView *>())
        set(list, Qt::StrongFocus);
    for (QRadioButton *option : findChildren<QRadioButton *>())
        set(option, option->isChecked() ? Qt::StrongFocus : NotByTab);
}
