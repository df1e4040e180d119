#include "browsers/solutionspane.h"

#include "browsers/paneeffects.h"
#include "core/symboltext.h"
#include "store/datastore.h"

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
constexpr int OptionsTop = 33;
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
    Option4.connectEach(&QRadioButton::clicked, this,
                        [this](int index) { apply(PaneEffects::Option4(), index); });
    for (const int first : {0, 2, 4})
        apply(PaneEffects::Option4(), first);
    apply(PaneEffects::TabStrip2(), 1);
    apply(PaneEffects::TabStrip10(), 1);
    apply(PaneEffects::TabStrip7(), 1);
}

QWidget *SolutionsPane::makeBlock(const QPoint &place, const QString &headingName, const QString &heading)
{
    auto *block = new QWidget(this);
    block->setGeometry(QRect(place, BlockSize));
    QLabel *label = Controls::heading(headingName, heading, block);
    label->setGeometry(2, 0, HeadingWidth, TabsHeight);
    return block;
}

RowListView &SolutionsPane::addList(int index, const QList<ListColumn> &columns, int titleTop, QWidget *block)
{
    const int top = titleTop + TitleFrame::OneLine;
    const QRect place(0, top, BlockSize.width(), BlockSize.height() - top);
    return ListView3.add(index, makeList({}, m_store.lists.ListView3[index], columns, place, block));
}

void SolutionsPane::addOptions(const QList<QPair<int, QString>> &captions, QWidget *block)
{
    QList<QRadioButton *> options;
    for (const auto &[index, caption] : captions)
        options << &Option4.add(index, new QRadioButton(caption, block));
    placeOptions(options, {6, OptionsTop});
}

void SolutionsPane::buildCouples()
{
    QWidget *block = makeBlock(TopLeft, QStringLiteral("Label3"), QStringLiteral("Couples"));
    makeTabs(
        QStringLiteral("TabStrip2"), {"Acid/Base", "RedOx"},
        {HeadingWidth, 0, BlockSize.width() - HeadingWidth, TabsHeight},
        [this](int number) { apply(PaneEffects::TabStrip2(), number); }, block);
    addOptions({{0, "Inorganic"}, {1, "Organic"}}, block);

    const QList<ListColumn> acids{{"Acid/Base", 136, Kind::Wrapped}, {"Formula", 118, Kind::Wrapped},
                                  {"pKa1", 50, Kind::Number},        {"pKa2", 50, Kind::Number},
                                  {"pKa3", 50, Kind::Number},        {"pKa4", 50, Kind::Number}};
    auto *grdFrame8 = new TitleFrame(QStringLiteral("grdFrame8"), block, TitleFrame::OneLine);
    grdFrame8->addTitles(addList(2, acids, TitlesBelowOptions, block), Label2, {46, 47, 48, 49, 50, 51});
    addList(3, acids, TitlesBelowOptions, block);

    auto &redox =
        addList(4, {{"Reaction", 348}, {"E° (V)", 100, Kind::Number}}, TitlesInPlaceOfOptions, block);
    auto *grdFrame4 = new TitleFrame(QStringLiteral("grdFrame4"), block, TitleFrame::OneLine);
    grdFrame4->addTitles(redox, Label2, {52, 53});
}

void SolutionsPane::buildConstants()
{
    QWidget *block = makeBlock(TopRight, QStringLiteral("Label4"), QStringLiteral("Constants"));
    makeTabs(
        QStringLiteral("TabStrip10"), {"Solubility of salts", "Formation of complexes"},
        {HeadingWidth, 0, BlockSize.width() - HeadingWidth, TabsHeight},
        [this](int number) { apply(PaneEffects::TabStrip10(), number); }, block);

    auto &salts = addList(24, {{"Name", 248}, {"Formula", 126}, {"Ks", 74}}, TitlesInPlaceOfOptions, block);
    auto *grdFrame29 = new TitleFrame(QStringLiteral("grdFrame29"), block, TitleFrame::OneLine);
    grdFrame29->addTitles(salts, Label2, {54, 55, 56});

    auto &complexes = addList(25, {{"Equilibrium", 348}, {"Kf", 100}}, TitlesInPlaceOfOptions, block);
    auto *grdFrame28 = new TitleFrame(QStringLiteral("grdFrame28"), block, TitleFrame::OneLine);
    grdFrame28->addTitles(complexes, Label2, {57, 58});
}

void SolutionsPane::buildIndicators()
{
    QWidget *block = makeBlock(BottomLeft, QStringLiteral("Label14"), QStringLiteral("Colored indicators"));
    makeTabs(
        QStringLiteral("TabStrip7"), {"Acid/Base", "Fluorescence"},
        {HeadingWidth, 0, BlockSize.width() - HeadingWidth, TabsHeight},
        [this](int number) { apply(PaneEffects::TabStrip7(), number); }, block);
    addOptions({{2, "Merck"}, {3, "Riedel-deHaën"}}, block);

    const QList<ListColumn> columns{{"Name", 196, Kind::Wrapped}, {"pH", 84}, {"Colors", 168}};
    auto &first = addList(0, columns, TitlesBelowOptions, block);
    addList(1, columns, TitlesBelowOptions, block);
    addList(6, columns, TitlesInPlaceOfOptions, block);
    auto *grdFrame1 = new TitleFrame(QStringLiteral("grdFrame1"), block, TitleFrame::OneLine);
    grdFrame1->addTitles(first, Label2, {59, 60, 40});
}

void SolutionsPane::buildFluorochromes()
{
    QWidget *block = makeBlock(BottomRight, QStringLiteral("Label12"), QStringLiteral("Fluorochroms"));
    addOptions({{4, "Carl-Zeiss"}, {5, "Olympus"}}, block);

    const QList<ListColumn> columns{
        {"Name", 258}, {"ex (nm)", 95, Kind::Number}, {"em (nm)", 95, Kind::Number}};
    auto &first = addList(7, columns, TitlesBelowOptions, block);
    addList(8, columns, TitlesBelowOptions, block);
    auto *grdFrame9 = new TitleFrame(QStringLiteral("grdFrame9"), block, TitleFrame::OneLine);
    grdFrame9->addTitles(first, Label2, {61, 62, 64});
    addWavelength(63, 62);
    addWavelength(65, 64);
}

// The letter of the wavelength before the title Label2(title), which makes room for it.
void SolutionsPane::addWavelength(int index, int title)
{
    constexpr int Width = 14;
    QLabel &named = Label2[title];
    auto &letter =
        Label2.add(index, new QLabel(SymbolText::toUnicode(QStringLiteral("l")), named.parentWidget()));
    const QRect place = named.geometry();
    letter.setGeometry(place.x() + 8, place.y(), Width, place.height());
    letter.setAlignment(named.alignment());
    named.setGeometry(place.adjusted(8 + Width, 0, 0, 0));
    named.setAlignment(Qt::AlignLeft | Qt::AlignBottom);
}
