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

namespace {

// Logical pixels, as on the pane of the spectra: a column with the list, the picture right of it.
constexpr int Margin = 4;
constexpr int StripHeight = 30;
constexpr int ListTop = StripHeight + 2 + TitleFrame::OneLine + 2;
constexpr int ListWidth = 240;
constexpr int PictureLeft = Margin + ListWidth + 8;
constexpr int PictureTop = StripHeight + 2;
constexpr int ScrollBarWidth = 16;
constexpr int FrameWidth = ModulePanel::Size.width() - PictureLeft - ScrollBarWidth - Margin;
constexpr int FrameHeight = ModulePanel::Size.height() - PictureTop - Margin;

/// Answers to the release of the mouse over it alone: a view that is chosen by the keyboard waits for the
/// next.
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

// Combo5 chooses nothing: the list is the same for all its entries. The others are never seen.
void ReactionsPane::buildIdleControls()
{
    auto *Combo5 = Controls::named(new QComboBox(this), QStringLiteral("Combo5"));
    Combo5->setAccessibleName(tr("Order of the reactions"));
    Combo5->addItems({QStringLiteral("Reaction name"), QStringLiteral("Type of transformation"),
                      QStringLiteral("Protecting groups")});
    Combo5->setGeometry(Margin, 2, ListWidth, StripHeight - 4);
    Controls::named(new QLineEdit(this), QStringLiteral("Text4"))->hide();
    Controls::named(new QPushButton(this), QStringLiteral("Command3"))->hide();
}

void ReactionsPane::buildList()
{
    auto *list = new RowListView({}, m_store.lists.ListView3[31],
                                 {{QStringLiteral("Nom de réaction"), ListWidth - 22}}, this);
    list->setAccessibleName(tr("Reactions"));
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
    addOption(Equation, QStringLiteral("Bilan général"));
    addOption(Mechanism, QStringLiteral("Mécanisme"));
    optorga[Equation].setChecked(true);
    int right = width() - Margin - ScrollBarWidth;
    for (const View view : {Mechanism, Equation}) {
        QRadioButton &option = optorga[view];
        const QSize size = option.sizeHint();
        option.setGeometry(right - size.width(), (StripHeight - size.height()) / 2, size.width(),
                           size.height());
        right -= size.width() + 16;
    }
    setTabOrder(&optorga[Equation], &optorga[Mechanism]);

    Label55 = Controls::heading(QStringLiteral("Label55"), {}, this);
    Label55->setGeometry(PictureLeft + 7, 2, right - PictureLeft - 7, StripHeight - 4);
}

void ReactionsPane::buildPicture()
{
    auto *outline = new QFrame(this);
    outline->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    outline->setForegroundRole(QPalette::Mid);
    outline->setGeometry(PictureLeft, PictureTop, FrameWidth, FrameHeight);
    grdFrame35 = Controls::named(new QWidget(this), QStringLiteral("grdFrame35"));
    grdFrame35->setGeometry(outline->geometry().adjusted(1, 1, -1, -1));
    Picture4 = new ChartPicture(QStringLiteral("Picture4"), grdFrame35);
    SourceImage2 = new PictureBox(QStringLiteral("SourceImage2"), this);
    SourceImage2->hide();

    // Has a range and moves, but the picture stays where it is.
    VScroll1 = Controls::named(new QScrollBar(Qt::Vertical, this), QStringLiteral("VScroll1"));
    VScroll1->setGeometry(PictureLeft + FrameWidth, PictureTop, ScrollBarWidth, FrameHeight);
    VScroll1->hide();

    auto *notice = new TablesNotice(1, m_tables, m_desktop, this);
    notice->adjustSize();
    notice->move(outline->geometry().center() - notice->rect().center());
}

// The views read the selected row, so there is one as soon as there are rows.
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
        throw RuntimeError(ErrorNumber::ObjectNotSet, QStringLiteral("ListView3(31)"));
    showReaction(row);
}

void ReactionsPane::showReaction(int row)
{
    ChartKey = row + 1;
    const bool mechanism = !optorga[Equation].isChecked();
    SourceImage2->setPicture(
        PictureFile::load(m_module1.shippedFile(ReactionCharts::file(ChartKey, mechanism))));
    Picture4->clear();
    Picture4->paint(SourceImage2->picture(), ReactionCharts::PaintLeft);
    setScrollRange();
    const double pictureWidth = WindowUnits::pictureUnits(SourceImage2->picture().width());
    const double frameWidth = grdFrame35->width() * WindowUnits::TwipsPerPixel;
    Picture4->moveTo(ReactionCharts::left(frameWidth, pictureWidth), ReactionCharts::Top);
    Label55->setText(m_store.lists.ListView3[31].text(ChartKey - 1));
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
