#include "calc/constantsbox.h"

#include "store/rowlists.h"
#include "widgets/tabstrip.h"
#include "widgets/titleframe.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int Gap = 6;

// Columns of units that some tabs have no data for, and their titles `Label2`.
constexpr int DimensionColumn = 3;
constexpr int DimensionTitle = 29;
constexpr int DimensionInUnitsColumn = 4;
constexpr int DimensionInUnitsTitle = 38;

bool hasDimensions(int tab)
{
    return tab != 1; // base units
}

bool hasDimensionsInUnits(int tab)
{
    return hasDimensions(tab) && tab != 6; // molecular physics
}

/// A tab strip at the top of @p place, after a heading if there is one. Leaves in @p place the room for the
/// lists.
TabStrip *makeStrip(const QString &name, const QString &caption, const QStringList &tabs, QRect &place,
                    QWidget *parent)
{
    auto *strip = new TabStrip(name, tabs, TabStrip::Across, parent);
    const int height = strip->sizeHint().height();
    int left = place.left();
    if (!caption.isEmpty()) {
        QLabel *heading = Controls::heading({}, caption, parent);
        heading->setGeometry(left, place.top(), heading->sizeHint().width(), height);
        left = heading->geometry().right() + 2 * Gap;
    }
    strip->setGeometry(left, place.top(), place.right() + 1 - left, height);
    place.setTop(place.top() + height + TitleFrame::OneLine);
    return strip;
}

/// Lists in the same place, one for each tab. The first is visible.
template<class Array>
void makeStack(ControlArray<RowListView> &views, Array &lists, int count, const QList<ListColumn> &columns,
               const QRect &place, TabStrip &strip)
{
    for (int index = 0; index < count; ++index) {
        auto &view = views.add(index, new RowListView({}, lists[index], columns, strip.parentWidget()));
        view.setGeometry(place);
        view.setVisible(index == 0);
        view.setAccessibleName(strip.tabText(index));
    }
    QObject::connect(&strip, &TabStrip::tabClicked, &strip, [&views](int tab) {
        for (const auto &[index, view] : views)
            view->setVisible(index == tab - 1);
    });
}

} // namespace

ConstantsBox::ConstantsBox(RowLists &lists, QSize size, QWidget *parent) : QWidget(parent)
{
    resize(size);
    const int half = (height() - Gap) / 2;
    buildConstants(lists, {0, 0, width(), half});
    buildUnits(lists, {0, height() - half, width(), half});
}

void ConstantsBox::buildConstants(RowLists &lists, const QRect &place)
{
    QRect room = place;
    TabStrip *strip = makeStrip(
        u"TabStrip6"_s, u"Constants"_s,
        {"Universal", "Electromagnetic", "Atomic / nuclear", "Physico-chemical", "Mathematical"}, room, this);
    makeStack(ListView2, lists.ListView2, 5, {{"Name", 310}, {"Symbol", 90}, {"Value", 170}, {"Units", 130}},
              room, *strip);
    auto *frmunit1 = new TitleFrame(u"frmunit1"_s, this, TitleFrame::OneLine);
    frmunit1->addTitles(ListView2[0], Label2, {0, 1, 2, 3});
}

void ConstantsBox::buildUnits(RowLists &lists, const QRect &place)
{
    QRect room = place;
    TabStrip *strip = makeStrip(u"TabStrip5"_s, {},
                                {"SI units", "Space / Time", "Mecanical", "Temperature / Heat",
                                 "Electromagnetism", "Molecular physics", "Radiations"},
                                room, this);
    makeStack(ListView7, lists.ListView7, 7,
              {{"Name", 213}, {"Unit", 175}, {"Symb.", 80}, {"Dimension", 118}, {"Dimension SI units", 130}},
              room, *strip);
    auto *frmunit2 = new TitleFrame(u"frmunit2"_s, this, TitleFrame::OneLine);
    frmunit2->addTitles(ListView7[0], Label2, {37, 36, 35, DimensionTitle, DimensionInUnitsTitle});
    for (const auto &[index, view] : ListView7) {
        view->setColumnHidden(DimensionColumn, !hasDimensions(index + 1));
        view->setColumnHidden(DimensionInUnitsColumn, !hasDimensionsInUnits(index + 1));
    }
    connect(strip, &TabStrip::tabClicked, this, &ConstantsBox::showUnitTitles);
    showUnitTitles(1);
}

void ConstantsBox::showUnitTitles(int tab)
{
    Label2[DimensionTitle].setVisible(hasDimensions(tab));
    Label2[DimensionInUnitsTitle].setVisible(hasDimensionsInUnits(tab));
}
