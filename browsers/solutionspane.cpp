#include "browsers/solutionspane.h"

#include "core/symboltext.h"
#include "store/datastore.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = ListColumn::Kind;

constexpr int Margin = 4;
constexpr QSize BlockSize{472, 262};
constexpr QPoint TopLeft{Margin, 2};
constexpr QPoint TopRight{484, 2};
constexpr QPoint BottomLeft{Margin, 274};
constexpr QPoint BottomRight{484, 274};

// Inside a block, logical pixels.
constexpr int TabsHeight = 28;
constexpr int HeadingWidth = 142;
constexpr QPoint OptionsPlace{6, 33};
constexpr int TitlesBelowOptions = 56;
constexpr int TitlesInPlaceOfOptions = 42;

} // namespace

SolutionsPane::SolutionsPane(DataStore &store, QWidget *parent)
    : BrowserPane("frmsolution", parent), m_store(store)
{}

void SolutionsPane::buildContents()
{
    buildCouples();
    buildConstants();
    buildIndicators();
    buildFluorochromes();
    showChoice();
}

QWidget *SolutionsPane::makeBlock(const QPoint &place, const QString &headingName, const QString &heading)
{
    auto *block = new QWidget(this);
    block->setGeometry(QRect(place, BlockSize));
    QLabel *label = Controls::heading(headingName, heading, block);
    label->setGeometry(2, 0, HeadingWidth, TabsHeight);
    return block;
}

QTabBar *SolutionsPane::addTabs(const QString &name, const QStringList &captions, QWidget *block)
{
    QTabBar *tabs =
        makeTabs(name, captions, {HeadingWidth, 0, BlockSize.width() - HeadingWidth, TabsHeight}, block);
    connect(tabs, &QTabBar::currentChanged, this, &SolutionsPane::showChoice);
    return tabs;
}

RowListView &SolutionsPane::addList(int index, const QList<ListColumn> &columns, int titleTop, QWidget *block)
{
    const int top = titleTop + TitleFrame::OneLine;
    const QRect place(0, top, BlockSize.width(), BlockSize.height() - top);
    return ListView3.add(index, makeList({}, m_store.lists.ListView3[index], columns, place, block));
}

TitleFrame *SolutionsPane::addTitles(const QString &name, const RowListView &list, const QList<int> &labels)
{
    auto *titles = new TitleFrame(name, list.parentWidget(), TitleFrame::OneLine);
    titles->addTitles(list, Label2, labels);
    return titles;
}

void SolutionsPane::buildCouples()
{
    QWidget *block = makeBlock(TopLeft, u"Label3"_s, u"Couples"_s);
    TabStrip2 = addTabs(u"TabStrip2"_s, {"Acid/Base", "RedOx"}, block);
    addOptions(Option4, {{0, "Inorganic"}, {1, "Organic"}}, OptionsPlace, block);

    const QList<ListColumn> acids{{"Acid/Base", 136, Kind::Wrapped}, {"Formula", 118, Kind::Wrapped},
                                  {"pKa1", 50, Kind::Number},        {"pKa2", 50, Kind::Number},
                                  {"pKa3", 50, Kind::Number},        {"pKa4", 50, Kind::Number}};
    addTitles(u"grdFrame8"_s, addList(2, acids, TitlesBelowOptions, block), {46, 47, 48, 49, 50, 51});
    addList(3, acids, TitlesBelowOptions, block);
    addList(4, {{"Reaction", 348}, {"E° (V)", 100, Kind::Number}}, TitlesInPlaceOfOptions, block);
    grdFrame4 = addTitles(u"grdFrame4"_s, ListView3[4], {52, 53});
}

void SolutionsPane::buildConstants()
{
    QWidget *block = makeBlock(TopRight, u"Label4"_s, u"Constants"_s);
    TabStrip10 = addTabs(u"TabStrip10"_s, {"Solubility of salts", "Formation of complexes"}, block);
    addList(24, {{"Name", 248}, {"Formula", 126}, {"Ks", 74}}, TitlesInPlaceOfOptions, block);
    grdFrame29 = addTitles(u"grdFrame29"_s, ListView3[24], {54, 55, 56});
    addList(25, {{"Equilibrium", 348}, {"Kf", 100}}, TitlesInPlaceOfOptions, block);
    grdFrame28 = addTitles(u"grdFrame28"_s, ListView3[25], {57, 58});
}

void SolutionsPane::buildIndicators()
{
    QWidget *block = makeBlock(BottomLeft, u"Label14"_s, u"Colored indicators"_s);
    TabStrip7 = addTabs(u"TabStrip7"_s, {"Acid/Base", "Fluorescence"}, block);
    addOptions(Option4, {{2, "Merck"}, {3, "Riedel-deHaën"}}, OptionsPlace, block);

    const QList<ListColumn> columns{{"Name", 196, Kind::Wrapped}, {"pH", 84}, {"Colors", 168}};
    addList(0, columns, TitlesBelowOptions, block);
    addList(1, columns, TitlesBelowOptions, block);
    addList(6, columns, TitlesInPlaceOfOptions, block);
    grdFrame1 = addTitles(u"grdFrame1"_s, ListView3[0], {59, 60, 40});
}

void SolutionsPane::buildFluorochromes()
{
    QWidget *block = makeBlock(BottomRight, u"Label12"_s, u"Fluorochroms"_s);
    addOptions(Option4, {{4, "Carl-Zeiss"}, {5, "Olympus"}}, OptionsPlace, block);

    const QList<ListColumn> columns{
        {"Name", 258}, {"ex (nm)", 95, Kind::Number}, {"em (nm)", 95, Kind::Number}};
    addTitles(u"grdFrame9"_s, addList(7, columns, TitlesBelowOptions, block), {61, 62, 64});
    addList(8, columns, TitlesBelowOptions, block);
    addWavelength(63, 62);
    addWavelength(65, 64);
}

void SolutionsPane::applyChoice()
{
    // The list that each option shows. Red-ox couples and fluorescence cover the lists of their block.
    constexpr std::array ListOfOption{2, 3, 0, 1, 7, 8};
    for (const auto &[index, option] : Option4)
        ListView3[ListOfOption[size_t(index)]].setVisible(option->isChecked());

    const bool redox = TabStrip2->currentIndex() == 1;
    ListView3[4].setVisible(redox);
    grdFrame4->setVisible(redox);

    const bool complexes = TabStrip10->currentIndex() == 1;
    ListView3[24].setVisible(!complexes);
    grdFrame29->setVisible(!complexes);
    ListView3[25].setVisible(complexes);
    grdFrame28->setVisible(complexes);

    const bool fluorescence = TabStrip7->currentIndex() == 1;
    ListView3[6].setVisible(fluorescence);
    grdFrame1->move(0, fluorescence ? TitlesInPlaceOfOptions : TitlesBelowOptions);
    Label2[40].setText(fluorescence ? u"Fluorescence"_s : u"Colors"_s);

    for (const int option : {0, 1})
        Option4[option].setVisible(!redox);
    for (const int option : {2, 3})
        Option4[option].setVisible(!fluorescence);
}

// Puts the letter of the wavelength before the title Label2(title).
void SolutionsPane::addWavelength(int index, int title)
{
    constexpr int Width = 14;
    QLabel &named = Label2[title];
    auto &letter = Label2.add(index, new QLabel(SymbolText::toUnicode(u"l"_s), named.parentWidget()));
    const QRect place = named.geometry();
    letter.setGeometry(place.x() + 8, place.y(), Width, place.height());
    letter.setAlignment(named.alignment());
    named.setGeometry(place.adjusted(8 + Width, 0, 0, 0));
    named.setAlignment(Qt::AlignLeft | Qt::AlignBottom);
}
