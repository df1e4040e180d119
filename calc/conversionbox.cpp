#include "calc/conversionbox.h"

#include "calc/calctabs.h"
#include "core/desktop.h"
#include "core/module1.h"
#include "widgets/controls.h"

#include <QKeyEvent>
#include <QLabel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int Decimals = 10; // until slot 0 is read
constexpr int MaxLength = 25;

QStringList captions()
{
    QStringList captions;
    for (const Quantity &quantity : Units::quantities())
        captions << quantity.caption;
    return captions;
}

/// Elides long unit names before their symbol: "millimeter of merc… (mmHg)".
class UnitNames final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const qsizetype symbol = option->text.lastIndexOf(u" ("_s);
        const int margin = option->widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
        const int room = option->rect.width() - 2 * margin;
        const QFontMetrics &metrics = option->fontMetrics;
        if (symbol < 0 || metrics.horizontalAdvance(option->text) <= room)
            return;
        const QString kept = option->text.sliced(symbol);
        option->text = metrics.elidedText(option->text.first(symbol), Qt::ElideRight,
                                          room - metrics.horizontalAdvance(kept)) +
                       kept;
    }
};

} // namespace

ConversionBox::ConversionBox(const Module1 &module, Desktop &desktop, QWidget *parent)
    : QWidget(parent), m_module(module), m_desktop(desktop), m_converter([this](int tab) {
          return UnitPair{list(Units::quantity(tab).inputList).currentRow(),
                          list(Units::quantity(tab).resultList).currentRow()};
      }),
      TabStrip3(new TabStrip(u"TabStrip3"_s, captions(), TabStrip::Down, this)),
      TextBoxM1(
          Controls::named(new TextBoxM(TextBoxM::SignedNumber, Decimals, MaxLength, this), u"TextBoxM1"_s)),
      TextBoxM2(Controls::named(new TextBoxM(TextBoxM::SignedNumber, 0, 0, this), u"TextBoxM2"_s))
{
    TextBoxM2->setReadOnly(true);
    TextBoxM1->installEventFilter(this);
    TextBoxM2->installEventFilter(this);
    buildLists();
    connect(TabStrip3, &TabStrip::tabClicked, this,
            [this](int tab) { endOnError(m_desktop, [&] { clickTab(tab); }); });
    // A mouse paste or a drop has no key event.
    connect(TextBoxM1, &QLineEdit::textEdited, this, &ConversionBox::convert);
    showLists(1);
    reset();
}

void ConversionBox::buildLists()
{
    for (const Quantity &each : Units::quantities()) {
        const QStringList names = Units::names(each, m_module.OptionSlots);
        buildList(each.inputList, names, each.startInput);
        buildList(each.resultList, names, each.startResult);
    }
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(3);
    column->addWidget(Controls::heading({}, u"Conversions"_s, this));
    column->addWidget(TabStrip3);
    QWidget *before = TabStrip3; // in Tab order
    const auto addNext = [&](QWidget *next, int stretch) {
        column->addWidget(next, stretch);
        setTabOrder(std::exchange(before, next), next);
    };
    const auto addHalf = [&](const QString &caption, TextBoxM *box, int Quantity::*which) {
        QLabel *label = Controls::label({}, caption, this);
        label->setBuddy(box);
        column->addSpacing(3);
        column->addWidget(label);
        addNext(box, 0);
        for (const Quantity &each : Units::quantities())
            addNext(&list(each.*which), 1);
    };
    addHalf(u"From"_s, TextBoxM1, &Quantity::inputList);
    addHalf(u"To"_s, TextBoxM2, &Quantity::resultList);
}

void ConversionBox::buildList(int number, const QStringList &names, int start)
{
    auto *list = Controls::named(new QListWidget(this), u"List%1"_s.arg(number));
    m_lists[size_t(number - 1)] = list;
    list->addItems(names);
    for (int row = 0; row < list->count(); ++row)
        list->item(row)->setToolTip(names[row]);
    list->setItemDelegate(new UnitNames(list));
    list->setCurrentRow(start);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setAccessibleName(number % 2 == 1 ? u"Unit of the number"_s : u"Unit of the result"_s);
    connect(list, &QListWidget::itemClicked, this, [this, number] { clickList(number); });
    connect(list, &QListWidget::currentRowChanged, this, [this, number] { clickList(number); });
}

void ConversionBox::clickTab(int tab)
{
    const auto unit = [this](int number) {
        const QListWidgetItem *item = list(number).currentItem();
        return item ? item->text() : QString();
    };
    m_converter.selectTab(tab, unit(Units::quantity(tab).inputList), unit(Units::quantity(tab).resultList));
    TextBoxM1->setFocus();
    showLists(tab);
    reset();
}

void ConversionBox::showLists(int tab)
{
    for (int number = 1; number <= int(m_lists.size()); ++number)
        list(number).setVisible(number == Units::quantity(tab).inputList ||
                                number == Units::quantity(tab).resultList);
    scrollToUnits();
}

// Keeps the selected units in view.
void ConversionBox::scrollToUnits()
{
    layout()->activate();
    const Quantity &shown = Units::quantity(TabStrip3->selectedTab());
    for (const int number : {shown.inputList, shown.resultList})
        list(number).scrollToItem(list(number).currentItem(), QAbstractItemView::PositionAtCenter);
}

void ConversionBox::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    scrollToUnits();
}

void ConversionBox::reset()
{
    TextBoxM1->setText({});
    TextBoxM2->setText(u"0"_s);
}

void ConversionBox::convert()
{
    endOnError(m_desktop, [this] {
        const int decimals = CalcTabs::decimals(m_module.OptionSlots);
        TextBoxM1->setDecimales(decimals);
        TextBoxM2->setDecimales(decimals);
        TextBoxM2->setText(m_converter.keyReleased(TabStrip3->selectedTab(), TextBoxM1->text()));
    });
}

void ConversionBox::clickList(int number)
{
    if (const std::optional<QString> result = m_converter.listClicked(number, TextBoxM1->text()))
        TextBoxM2->setText(*result);
}

bool ConversionBox::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == TextBoxM1 && event->type() == QEvent::KeyRelease)
        convert();
    // The result is read-only; a sign or a point must not reach the pane either.
    if (watched == TextBoxM2 && event->type() == QEvent::KeyPress) {
        const QString text = static_cast<QKeyEvent *>(event)->text();
        return text == u"-" || text == u".";
    }
    return QWidget::eventFilter(watched, event);
}
