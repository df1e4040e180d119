#include "charts/spectroscopypane.h"

#include "charts/chartgeometry.h"
#include "charts/chartpicture.h"
#include "charts/chartscroll.h"
#include "charts/chartviewport.h"
#include "charts/ircharts.h"
#include "charts/scalelabel.h"
#include "core/desktop.h"
#include "core/module1.h"
#include "core/symboltext.h"
#include "store/datastore.h"
#include "widgets/dropdown.h"
#include "widgets/picturebox.h"
#include "widgets/picturefile.h"
#include "widgets/titleframe.h"
#include "widgets/tooltips.h"
#include "widgets/windowunits.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels. Selector and list are on the left, the chart with its title on the right.
constexpr int Margin = 4;
constexpr int StripHeight = 30; // with the selector and the title
constexpr int ListTop = StripHeight + 2 + TitleFrame::OneLine + 2;
constexpr int ListWidth = 260;
constexpr int ListHeight = ModulePanel::Size.height() - Margin - ListTop;
constexpr int ChartLeft = Margin + ListWidth + Margin; // of grdFrame17(0) in the pane
constexpr int ViewportLeft = 3;                        // of grdFrame19 in grdFrame17(0)
constexpr int ViewportWidth = 11 + ChartGeometry::Width + 1;
constexpr int ScrollBarWidth = 16;
constexpr int CreditTop = 516;

constexpr int RepaintPause = 10; // ms

QFrame *makeFrame(const char *name, const QRect &place, QWidget *parent)
{
    auto *frame = Controls::named(new QFrame(parent), name);
    frame->setGeometry(place);
    return frame;
}

} // namespace

SpectroscopyPane::SpectroscopyPane(Module1 &module1, DataStore &store, Desktop &desktop, QWidget *parent)
    : ModulePanel("frmana", parent), m_module1(module1), m_store(store), m_desktop(desktop)
{}

int SpectroscopyPane::mode() const
{
    return Comboana ? Comboana->currentIndex() : 0;
}

void SpectroscopyPane::selectMode(int mode)
{
    build();
    Comboana->choose(mode);
}

bool SpectroscopyPane::isListView3_27Shown() const
{
    return isBuilt() && Controls::isShown(ListView3[27]);
}

void SpectroscopyPane::buildContents()
{
    buildHiddenControls();
    buildSelector();
    buildLists();
    buildChart();
    buildScales();
    buildIrTable();
    applyMode(SpectroscopyMode(mode()));
    placeIrLabels();
    connectControls();
}

void SpectroscopyPane::buildSelector()
{
    Shape2.add(6, makeFrame("", {0, 0, width(), StripHeight}, this));
    auto *line = makeFrame("Line12(3)", {0, StripHeight, width(), 1}, this);
    line->setFrameStyle(int(QFrame::HLine) | int(QFrame::Plain));
    line->setForegroundRole(QPalette::Mid);

    Comboana = new DropDown(u"Comboana"_s, this);
    Comboana->setAccessibleName(u"Kind of spectra"_s);
    Comboana->addItems({u"Proton NMR (1H NMR)"_s, u"Carbon NMR (13C NMR)"_s, u"Infrared (IR) - Charts"_s,
                        u"Infrared (IR) - Table"_s});
    Comboana->setGeometry(Margin, 2, ListWidth, StripHeight - 4);
}

void SpectroscopyPane::buildLists()
{
    Shape2.add(7, makeFrame("", {Margin, ListTop, ListWidth, ListHeight}, this));
    addChartList(15);
    addChartList(16);
    auto &list = addChartList(5);
    auto *titles = new TitleFrame({}, this, TitleFrame::OneLine);
    titles->addTitles(list, Label2, {104});
    grdFrame17.add(1, titles);
}

RowListView &SpectroscopyPane::addChartList(int index)
{
    // Motifs can be long; they wrap instead of being cut off.
    const ListColumn column{u"Functional group"_s, ListWidth - ScrollBarWidth - 4, ListColumn::Kind::Wrapped};
    auto *list = new RowListView({}, m_store.lists.ListView3[index], {column}, this);
    list->setGeometry(Margin, ListTop, ListWidth, ListHeight);
    return ListView3.add(index, list);
}

void SpectroscopyPane::buildChart()
{
    auto *box = makeFrame("", {ChartLeft, 0, width() - ChartLeft, height()}, this);
    box->setAutoFillBackground(true); // over the strip of the selector
    grdFrame17.add(0, box);

    Label20 = Controls::heading(u"Label20"_s, {}, box);
    Label20->setGeometry(ViewportLeft + 11, 2, ViewportWidth - 60, StripHeight - 4);
    Shape2.add(4, makeFrame("", {0, StripHeight, box->width(), 1}, box));
    Shape2[4].setFrameStyle(int(QFrame::HLine) | int(QFrame::Plain));
    Shape2[4].setForegroundRole(QPalette::Mid);
    Shape2.add(5, makeFrame("", {}, box));
    Shape2[5].setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    Shape2[5].setForegroundRole(QPalette::Mid);

    VScroll10 = Controls::named(new QScrollBar(Qt::Vertical, box), u"VScroll10"_s);
    VScroll10->setMinimum(ChartScroll::Minimum);
    VScroll10->setSingleStep(20 * WindowUnits::TwipsPerPixel);
    grdFrame19 = new ChartViewport(u"grdFrame19"_s, *VScroll10, Shape2[5], box);
    grdFrame19->setAccessibleName(u"Chart"_s);
    Picture3 = new ChartPicture(u"Picture3"_s, grdFrame19);
    SourceImage = new PictureBox(u"SourceImage"_s, box);
    SourceImage->hide();

    m_credit = Controls::label(u"Label19(25)"_s,
                               u"Shifts: nmrshiftdb2, open database of NMR spectra (MRC-15-582)"_s, box);
    m_credit->setGeometry(ViewportLeft + 11, CreditTop, ViewportWidth - 60, 20);

    Command1 = Controls::named(new QPushButton(u"?"_s, box), u"Command1"_s);
    Command1->setAccessibleName(u"Explanation of the chart"_s);
    // A refresh knows one text for all modes; the choice of a mode sets its own.
    ToolTips::setText(*Command1, SpectroscopyModes::References);
    Command1->setGeometry(box->width() - Margin - 28, 2, 28, StripHeight - 4);
}

void SpectroscopyPane::buildScales()
{
    QFrame &box = grdFrame17[0];
    const int pictureLeft = WindowUnits::pixels(SpectroscopyModes::IrPlaces.Picture3Left) +
                            WindowUnits::pixels(IrCharts::PaintLeft);
    const auto makeScale = [&](const char *name, const char *text) {
        auto *scale = new ScaleLabel(name, text, pictureLeft, &box);
        scale->setGeometry(ViewportLeft, 51, ViewportWidth, 20);
        return scale;
    };
    Label24 = makeScale("Label24", IrCharts::WaveNumbers);
    Label27 = makeScale("Label27", IrCharts::Wavelengths);
    Label25 = Controls::label(u"Label25"_s, {}, &box);
    Label26 = Controls::label(u"Label26"_s, {}, &box);
    Label25->setGeometry(0, StripHeight + 3, 140, 18);
    Label26->setGeometry(0, StripHeight + 3, 11, 18);
    captionIrScale();
}

void SpectroscopyPane::buildIrTable()
{
    auto *list =
        new RowListView({}, m_store.lists.ListView3[27],
                        {{u"Functional group"_s, 330}, {u"Bond"_s, 380}, {u"Frequency (cm-1)"_s, 200}}, this);
    list->showAsRecipes(); // rows without bands are headings
    list->setGeometry(Margin, ListTop, width() - 2 * Margin, ListHeight);
    ListView3.add(27, list);
    auto *titles = new TitleFrame(u"frmirb"_s, this, TitleFrame::OneLine);
    titles->addTitles(*list, Label2, {106, 107, 108});
    frmirb = titles;
}

// Never visible.
void SpectroscopyPane::buildHiddenControls()
{
    Text3 = Controls::named(new QLineEdit(this), u"Text3"_s);
    Text3->hide();
    grdFrame17.add(2, makeFrame("", {}, this)).hide();
    Shape2.add(8, makeFrame("", {}, this)).hide();
    Shape2.add(9, makeFrame("", {}, this)).hide();
}

void SpectroscopyPane::connectControls()
{
    connect(Comboana, &DropDown::chosen, this, &SpectroscopyPane::changeMode);
    const auto connectList = [this](int index, auto handler) {
        connect(&ListView3[index], &RowListView::rowClicked, this,
                [this, handler](int row) { endOnError(m_desktop, [&] { handler(row); }); });
    };
    connectList(15, [this](int row) { showNmrChart(ProtonCharts, row); });
    connectList(16, [this](int row) { showNmrChart(CarbonCharts, row); });
    connectList(5, [this](int row) { showIrChart(row); });
    connect(VScroll10, &QScrollBar::valueChanged, this, &SpectroscopyPane::scroll);
    connect(Command1, &QPushButton::clicked, this, [this] {
        if (Controls::isShown(ListView3[5]))
            Q_EMIT colourCodeRequested();
        else
            Q_EMIT referencesRequested();
    });
}

void SpectroscopyPane::changeMode()
{
    Picture3->clear();
    // Let a pending repaint finish before the lists change.
    m_desktop.pause(RepaintPause);
    applyMode(SpectroscopyMode(mode()));
    if (SpectroscopyMode(mode()) == SpectroscopyMode::IrTable)
        showBands();
    Q_EMIT modeChanged();
}

void SpectroscopyPane::applyMode(SpectroscopyMode mode)
{
    showControls(mode);
    grdFrame19->setScrollable(false);
    const SpectroscopyModes::Settings &settings = SpectroscopyModes::AllSettings[size_t(mode)];
    if (settings.emptiesTitle)
        Label20->clear();
    Label20->setEnabled(settings.emptiesTitle); // a remaining title belongs to no chart shown
    if (settings.toolTip && m_module1.OptionSlots(Slot::ToolTips).equals(1))
        Command1->setToolTip(settings.toolTip);
    if (const auto &places = settings.places) {
        Picture3->moveTo(places->Picture3Left, places->Picture3Top);
        grdFrame19->setGeometry(ViewportLeft, WindowUnits::pixels(places->grdFrame19Top), ViewportWidth,
                                WindowUnits::pixels(places->grdFrame19Height));
        VScroll10->setGeometry(ViewportLeft + ViewportWidth + 1, WindowUnits::pixels(places->VScroll10Top),
                               ScrollBarWidth, WindowUnits::pixels(places->VScroll10Height));
        VScroll10->setPageStep(places->grdFrame19Height);
        Shape2[5].setGeometry(grdFrame19->geometry().adjusted(-1, -1, 1, 1));
    }
}

void SpectroscopyPane::showControls(SpectroscopyMode mode)
{
    const bool nmr = mode == SpectroscopyMode::ProtonNmr || mode == SpectroscopyMode::CarbonNmr;
    const bool chart = mode != SpectroscopyMode::IrTable;
    const std::pair<QWidget *, bool> visibility[]{
        {&ListView3[15], mode == SpectroscopyMode::ProtonNmr},
        {&ListView3[16], mode == SpectroscopyMode::CarbonNmr},
        {&ListView3[5], mode == SpectroscopyMode::IrCharts},
        {&ListView3[27], !chart},
        {frmirb, !chart},
        {&grdFrame17[0], chart},
        {&Shape2[4], chart},
        {&Shape2[5], chart},
        {m_credit, nmr},
        {Label20, chart},
        {Label24, false},
        {Label25, false},
        {Label26, false},
        {Label27, false},
        {Command1, chart},
    };
    for (const auto &[control, shown] : visibility)
        control->setVisible(shown);
}

void SpectroscopyPane::showNmrChart(const NmrCharts &charts, int row)
{
    const int number = charts.number(row + 1);
    m_module1.SelectedChart = number;
    if (charts.fillsText3)
        Text3->setText(QString::number(number + 1));
    SourceImage->setPicture(PictureFile::load(m_module1.shippedFile(charts.file(number))));
    Picture3->paint(SourceImage->picture(), charts.paintLeft);
    setScrollRange();
    Picture3->setTop(0);
    Label20->setText(m_store.lists.ListView3[charts.list].text(row));
    ListView3[charts.list].setFocus();
}

void SpectroscopyPane::showIrChart(int row)
{
    const QString ChartKey = m_store.lists.ListView3[5].subItem(row, 1);
    if (const auto title = IrCharts::title(ChartKey))
        Label20->setText(*title);
    Label20->setEnabled(true);
    m_pendingBandsRow = row;
    showIrScale();
    SourceImage->setPicture(PictureFile::load(m_module1.shippedFile(IrCharts::file(ChartKey))));
    Picture3->moveTo(SpectroscopyModes::IrPlaces.Picture3Left, SpectroscopyModes::IrPlaces.Picture3Top);
    Picture3->paint(SourceImage->picture(), IrCharts::PaintLeft);
    setScrollRange();
    ListView3[5].setFocus();
}

// Scrolls the table to the bands of the chart chosen last.
void SpectroscopyPane::showBands()
{
    if (m_pendingBandsRow < 0)
        return;
    const RowList &charts = m_store.lists.ListView3[5];
    const int row =
        IrCharts::bandsOf(m_store.lists.ListView3[27], charts.cell(m_pendingBandsRow, 0),
                          IrCharts::title(charts.subItem(m_pendingBandsRow, 1)).value_or(QString()));
    m_pendingBandsRow = -1;
    if (row < 0)
        return;
    RowListView &table = ListView3[27];
    table.selectRow(row);
    table.scrollTo(table.currentIndex(), QAbstractItemView::PositionAtTop);
}

void SpectroscopyPane::setScrollRange()
{
    const auto maximum = ChartScroll::maximum(WindowUnits::pictureUnits(SourceImage->picture().height()));
    grdFrame19->setScrollable(maximum.has_value());
    if (!maximum)
        return;
    VScroll10->setMaximum(*maximum);
    VScroll10->setValue(ChartScroll::Minimum);
}

// The scroll range is too short for charts of more than 800 pixels. The picture makes up for the missing part
// by rising within its area, in proportion to the scroll value.
void SpectroscopyPane::scroll(int value)
{
    const bool infrared = Controls::isShown(ListView3[5]);
    const int maximum = VScroll10->maximum();
    const int foot = WindowUnits::pixels(ChartScroll::pictureTop(maximum, infrared)) + Picture3->height();
    const int missing = qMax(0, foot - grdFrame19->height());
    Picture3->setTop(ChartScroll::pictureTop(value, infrared));
    Picture3->setRise(missing * (value - ChartScroll::Minimum) / (maximum - ChartScroll::Minimum));
}

void SpectroscopyPane::captionIrScale()
{
    const IrCharts::Graduation &graduation = IrCharts::graduation(m_module1.OptionSlots);
    Label26->setText(SymbolText::toUnicode(graduation.quantity));
    Label25->setText(graduation.unit);
}

void SpectroscopyPane::showIrScale()
{
    const bool inWaveNumbers = IrCharts::graduation(m_module1.OptionSlots).inWaveNumbers;
    captionIrScale();
    Label24->setVisible(inWaveNumbers);
    Label27->setVisible(!inWaveNumbers);
    Label25->show();
    Label26->show();
}

void SpectroscopyPane::placeIrLabels()
{
    if (!isBuilt())
        return;
    const IrCharts::Graduation &graduation = IrCharts::graduation(m_module1.OptionSlots);
    Label26->move(WindowUnits::pixels(graduation.quantityLeft), Label26->y());
    Label25->move(WindowUnits::pixels(graduation.unitLeft), Label25->y());
}

void SpectroscopyPane::applyIrGraduation()
{
    if (!isBuilt())
        return;
    placeIrLabels();
    captionIrScale();
    if (Controls::isShown(ListView3[5]))
        showIrScale();
}

void SpectroscopyPane::ClearChartPanels()
{
    if (!isBuilt())
        return;
    Picture3->clear();
    Label20->clear();
    for (QWidget *scale : QList<QWidget *>{Label26, Label25, Label24, Label27})
        scale->hide();
    grdFrame19->setScrollable(false);
}
