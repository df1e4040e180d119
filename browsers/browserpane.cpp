#include "browsers/browserpane.h"

#include "widgets/typeahead.h"
#include "widgets/windowunits.h"

#include <QButtonGroup>
#include <QLabel>

namespace {

// Of the options of one choice Tab leads to the one that is on; from there the arrow keys go on.
constexpr Qt::FocusPolicy NotByTab = Qt::ClickFocus;

} // namespace

RowListView *BrowserPane::makeList(const QString &name, RowList &list, const QList<ListColumn> &columns,
                                   const QRect &place, QWidget *parent)
{
    auto *view = new RowListView(name, list, columns, parent);
    view->setGeometry(place);
    return view;
}

QTabBar *BrowserPane::makeTabs(const QString &name, const QStringList &captions, const QRect &place,
                               const std::function<void(int)> &handler, QWidget *parent)
{
    auto *tabs = Controls::named(new QTabBar(parent), name);
    tabs->setExpanding(false);
    for (const QString &caption : captions)
        tabs->addTab(caption);
    tabs->setGeometry(place);
    tabs->setFocusPolicy(Qt::StrongFocus); // also by a click
    TypeAhead::install(*tabs);
    connect(tabs, &QTabBar::currentChanged, this, [handler](int index) { handler(index + 1); });
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
}

void BrowserPane::apply(const Effects &effects)
{
    for (const Effect &effect : effects) {
        if (!holds(effect))
            continue;
        for (const QString &name : effect.hidden)
            control(name).hide();
        for (const QString &name : effect.shown)
            control(name).show();
        for (const auto &[name, top] : effect.tops)
            control(name).move(control(name).x(), WindowUnits::pixels(top));
        for (const auto &[name, caption] : effect.captions)
            qobject_cast<QLabel *>(&control(name))->setText(caption);
    }
    keepFocusOffCoveredControls();
}

void BrowserPane::apply(const EffectTable &table, int number)
{
    const auto found = table.find(number);
    if (found != table.end())
        apply(found->second);
}

bool BrowserPane::holds(const Effect &effect)
{
    const auto isOn = [this](const QString &option) {
        return qobject_cast<QRadioButton *>(&control(option))->isChecked();
    };
    return (effect.ifOn.isEmpty() || isOn(effect.ifOn)) && (effect.ifOff.isEmpty() || !isOn(effect.ifOff));
}

QWidget &BrowserPane::control(const QString &name)
{
    QWidget *&found = m_controls[name];
    if (!found)
        found = findChild<QWidget *>(name);
    Q_ASSERT_X(found, "BrowserPane", qPrintable(name));
    return *found;
}

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
