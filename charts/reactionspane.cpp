#include "charts/reactionspane.h"

#include "charts/chartpicture.h"
#include "charts/chartscroll.h"
#include "charts/reactioncharts.h"
#include "core/desktop.h"
#include "core/module1.h"
#include "store/datastore.h"
#include "widgets/picturebox.h"
#include "widgets/picturefile.h"
#include "widgets/tablesnotice.h"
#include "widgets/titleframe.h"
#include "widgets/windowunits.h"

#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels. The list is on the left, the picture on the right, as on the Spectroscopy pane.
constexpr int Margin = 4;
constexpr int StripHeight = 30;
constexpr int ListTop = StripHeight + 2 + TitleFrame::OneLine + 2;
constexpr int ListWidth = 240;
constexpr int PictureLeft = Margin + ListWidth + 8;
constexpr int PictureTop = StripHeight + 2;
constexpr int ScrollBarWidth = 16;
constexpr int FrameWidth = ModulePanel::Size.width() - PictureLeft - ScrollBarWidth - Margin;
constexpr int FrameHeight = ModulePanel::Size.height() - PictureTop - Margin;

/// Reacts only to a mouse release over it: a view chosen by the keyboard applies to the next reaction.
class OptionButton final : public QRadioButton
{
public:
    using QRadioButton::QRadioButton;

    std::function<void()> mouseReleased;

protected:
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        QRadioButton::mouseReleaseEvent(event);
        if (rect().contains(event->position().toPoint()))
            mouseReleased();
    }
};

} // namespace

ReactionsPane::ReactionsPane(const Module1 &module1, DataStore &store, LaterTables &tables, Desktop &desktop,
                             QWidget *parent)
    : ModulePanel("frmrea", parent), m_module1(module1), m_store(store), m_tables(tables), m_desktop(desktop)
{}

void ReactionsPane::buildContents()
{
    buildIdleControls();
    buildList();
    buildViews();
    buildPicture();
    connect(&m_store.lists.ListView3[31], &RowList::reset, this, &ReactionsPane::takeRows);
    takeRows();
}

// Combo5 has no effect on the list. The other two are never visible.
void ReactionsPane::buildIdleControls()
{
    auto *Combo5 = Controls::named(new QComboBox(this), u"Combo5"_s);
    Combo5->setAccessibleName(u"Order of the reactions"_s);
    Combo5->addItems({u"Reaction name"_s, u"Type of transformation"_s, u"Protecting groups"_s});
    Combo5->setGeometry(Margin, 2, ListWidth, StripHeight - 4);
    Controls::named(new QLineEdit(this), u"Text4"_s)->hide();
    Controls::named(new QPushButton(this), u"Command3"_s)->hide();
}

void ReactionsPane::buildList()
{
    auto *list =
        new RowListView({}, m_store.lists.ListView3[31], {{u"Nom de réaction"_s, ListWidth - 22}}, this);
    list->setGeometry(Margin, ListTop, ListWidth, height() - Margin - ListTop);
    ListView3.add(31, list);
    (new TitleFrame({}, this, TitleFrame::OneLine))->addTitles(*list, Label2, {105});
    connect(list, &RowListView::rowClicked, this,
            [this](int row) { endOnError(m_desktop, [&] { chooseRow(row); }); });
}

void ReactionsPane::buildViews()
{
    const auto addOption = [this](View view, const QString &caption) {
        auto *option = new OptionButton(caption, this);
        option->mouseReleased = [this] { endOnError(m_desktop, [this] { changeView(); }); };
        optorga.add(view, option);
    };
    addOption(Equation, u"Bilan général"_s);
    addOption(Mechanism, u"Mécanisme"_s);
    optorga[Equation].setChecked(true);
    int right = width() - Margin - ScrollBarWidth;
    for (const View view : {Mechanism, Equation}) {
        const QSize size = optorga[view].sizeHint();
        optorga[view].setGeometry({{right - size.width(), (StripHeight - size.height()) / 2}, size});
        right -= size.width() + 16;
    }
    setTabOrder(&optorga[Equation], &optorga[Mechanism]);

    Label55 = Controls::heading(u"Label55"_s, {}, this);
    Label55->setGeometry(PictureLeft + 7, 2, right - PictureLeft - 7, StripHeight - 4);
}

void ReactionsPane::buildPicture()
{
    auto *outline = new QFrame(this);
    outline->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    outline->setForegroundRole(QPalette::Mid);
    outline->setGeometry(PictureLeft, PictureTop, FrameWidth, FrameHeight);
    auto *grdFrame35 = Controls::named(new QWidget(this), u"grdFrame35"_s);
    grdFrame35->setGeometry(outline->geometry().adjusted(1, 1, -1, -1));
    Picture4 = new ChartPicture(u"Picture4"_s, grdFrame35);
    SourceImage2 = new PictureBox(u"SourceImage2"_s, this);
    SourceImage2->hide();

    // Moving it does not scroll the picture.
    VScroll1 = Controls::named(new QScrollBar(Qt::Vertical, this), u"VScroll1"_s);
    VScroll1->setGeometry(PictureLeft + FrameWidth, PictureTop, ScrollBarWidth, FrameHeight);
    VScroll1->hide();

    auto *notice = new TablesNotice(1, m_tables, m_desktop, this);
    notice->adjustSize();
    notice->move(outline->geometry().center() - notice->rect().center());
}

// The views need a selected row.
void ReactionsPane::takeRows()
{
    const bool anyRows = m_store.lists.ListView3[31].rowCount() > 0;
    ClearChartPanels();
    optorga[Equation].setChecked(true);
    for (const auto &[view, option] : optorga)
        option->setEnabled(anyRows);
    if (anyRows)
        ListView3[31].selectRow(0);
}

void ReactionsPane::chooseRow(int row)
{
    optorga[Equation].setChecked(true);
    showReaction(row);
}

void ReactionsPane::changeView()
{
    const int row = ListView3[31].selectedRow();
    if (row < 0)
        throw RuntimeError(ErrorNumber::ObjectNotSet, u"ListView3(31)"_s);
    showReaction(row);
}

void ReactionsPane::showReaction(int row)
{
    const int ChartKey = row + 1;
    const bool mechanism = !optorga[Equation].isChecked();
    SourceImage2->setPicture(
        PictureFile::load(m_module1.shippedFile(ReactionCharts::file(ChartKey, mechanism))));
    Picture4->paint(SourceImage2->picture(), ReactionCharts::PaintLeft);
    setScrollRange();
    const double pictureWidth = WindowUnits::pictureUnits(SourceImage2->picture().width());
    const double frameWidth = Picture4->parentWidget()->width() * WindowUnits::TwipsPerPixel;
    Picture4->moveTo(ReactionCharts::left(frameWidth, pictureWidth), ReactionCharts::Top);
    Label55->setText(m_store.lists.ListView3[31].text(row));
    ListView3[31].setFocus();
}

void ReactionsPane::setScrollRange()
{
    const auto maximum = ChartScroll::maximum(WindowUnits::pictureUnits(SourceImage2->picture().height()));
    VScroll1->setVisible(maximum.has_value());
    if (!maximum)
        return;
    VScroll1->setRange(ChartScroll::Minimum, *maximum);
    VScroll1->setValue(ChartScroll::Minimum);
}

void ReactionsPane::ClearChartPanels()
{
    if (!isBuilt())
        return;
    Picture4->clear();
    Label55->clear();
}
