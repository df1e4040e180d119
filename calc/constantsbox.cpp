#include "calc/constantsbox.h"

#include "store/rowlists.h"
#include "widgets/tabstrip.h"
#include "widgets/titleframe.h"

namespace {

constexpr int Gap = 6;

// The titles that some tabs have no data for, and their columns.
constexpr int Dimension = 29;
constexpr int DimensionInUnits = 38;
constexpr int DimensionColumn = 3;
constexpr int DimensionInUnitsColumn = 4;

constexpr int BaseUnits = 1;
constexpr int MolecularPhysics = 6;

bool hasDimensions(int tab)
{
    return tab != BaseUnits;
}

bool hasDimensionsInUnits(int tab)
{
    return tab != BaseUnits && tab != MolecularPhysics;
}

/// A tab strip across the top of @p place, behind a heading where it needs one; what is left of the place is
/// for the lists.
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

/// One list above the other; the first one shows. A click on a tab shows its list and hides the others.
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
        QStringLiteral("TabStrip6"), QStringLiteral("Constants"),
        {"Universal", "Electromagnetic", "Atomic / nuclear", "Physico-chemical", "Mathematical"}, room, this);
    makeStack(ListView2, lists.ListView2, 5, {{"Name", 310}, {"Symbol", 90}, {"Value", 170}, {"Units", 130}},
              room, *strip);
    auto *frmunit1 = new TitleFrame(QStringLiteral("frmunit1"), this, TitleFrame::OneLine);
    frmunit1->addTitles(ListView2[0], Label2, {0, 1, 2, 3});
}

void ConstantsBox::buildUnits(RowLists &lists, const QRect &place)
{
    QRect room = place;
    TabStrip *strip = makeStrip(QStringLiteral("TabStrip5"), {},
                                {"SI units", "Space / Time", "Mecanical", "Temperature / Heat",
                                 "Electromagnetism", "Molecular physics", "Radiations"},
                                room, this);
    makeStack(ListView7, lists.ListView7, 7,
              {{"Name", 213}, {"Unit", 175}, {"Symb.", 80}, {"Dimension", 118}, {"Dimension SI units", 130}},
              room, *strip);
    auto *frmunit2 = new TitleFrame(QStringLiteral("frmunit2"), this, TitleFrame::OneLine);
    frmunit2->addTitles(ListView7[0], Label2, {37, 36, 35, Dimension, DimensionInUnits});
    for (const auto &[index, view] : ListView7) {
        view->setColumnHidden(DimensionColumn, !hasDimensions(index + 1));
        view->setColumnHidden(DimensionInUnitsColumn, !hasDimensionsInUnits(index + 1));
    }
    connect(strip, &TabStrip::tabClicked, this, &ConstantsBox::showUnitTitles);
    showUnitTitles(1);
}

void ConstantsBox::showUnitTitles(int tab)
{
    Label2[Dimension].setVisible(hasDimensions(tab));
    Label2[DimensionInUnits].setVisible(hasDimensionsInUnits(tab));
}
