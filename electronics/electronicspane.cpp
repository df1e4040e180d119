#include "electronics/electronicspane.h"

#include "core/desktop.h"
#include "core/symboltext.h"
#include "electronics/eia96.h"
#include "electronics/partviews.h"
#include "store/datastore.h"
#include "store/latertables.h"
#include "store/tablecatalog.h"
#include "widgets/tablesnotice.h"
#include "widgets/titleframe.h"

#include <QEvent>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int Margin = 4;
constexpr int TabsHeight = 30;
constexpr QRect Room(0, TabsHeight + 2, ModulePanel::Size.width(),
                     ModulePanel::Size.height() - TabsHeight - 2);
constexpr int FieldHeight = 28;
constexpr int LabelHeight = 20;

// A list of ring colours, below its band.
struct Column
{
    int list;
    int label; ///< of `Label18`
    const char *caption;
    int left;
    int width;
};

constexpr std::array<Column, 6> Columns{{
    {4, 8, "1st", 24, 124},
    {5, 9, "2nd", 160, 124},
    {6, 10, "3rd", 296, 124},
    {7, 4, "Multiplicator:", 444, 136},
    {8, 7, "Tolerance :", 604, 124},
    {9, 5, "Temperature coefficient:", 752, 184},
}};

// Captions of rings that do not apply; the second is readable on a dark desktop.
constexpr QColor LightGrey(0xe0, 0xe0, 0xe0);
constexpr QColor GreyOnDark(0xa0, 0xa0, 0xa0);

QList<int> bandCentres()
{
    QList<int> centres(qsizetype(ResistorCode::rings().size()));
    for (size_t i = 0; i < Columns.size(); ++i)
        centres[ResistorCode::rings()[i].band] = Columns[i].left + Columns[i].width / 2;
    return centres;
}

QString ohm()
{
    return SymbolText::toUnicode(u"W"_s);
}

} // namespace

ElectronicsPane::ElectronicsPane(DataStore &store, LaterTables &tables, Desktop &desktop, QWidget *parent)
    : ModulePanel("frmelec", parent), m_store(store), m_tables(tables), m_desktop(desktop),
      m_code(store.tables.ResistorColourData)
{}

void ElectronicsPane::buildContents()
{
    TabStrip11 = Controls::named(new QTabBar(this), u"TabStrip11"_s);
    TabStrip11->setExpanding(false);
    for (const char *tab : {"Color code", "Normalized values", "EIA-96 coding"})
        TabStrip11->addTab(tab);
    TabStrip11->setGeometry(Margin, 2, width() - 2 * Margin, TabsHeight - 2);
    buildColourCode();
    buildSeries();
    buildEia96();
    m_notice = new TablesNotice(0, m_tables, m_desktop, this);
    m_notice->adjustSize();
    connectControls();
    Combo3->choose(1);
    showTab(TabStrip11->currentIndex());
}

void ElectronicsPane::buildColourCode()
{
    frmgen = Controls::named(new QFrame(this), u"frmgen"_s);
    frmgen->setGeometry(Room);
    const Column &first = Columns.front();
    QLabel *caption = addLabel18(3, u"Number of rings:"_s, {first.left, 18, 136, FieldHeight}, frmgen);
    Combo3 = new DropDown(u"Combo3"_s, frmgen);
    Combo3->addItems(ResistorCode::ringCounts());
    Combo3->setGeometry(first.left + 140, 18, 64, FieldHeight);
    caption->setBuddy(Combo3);

    auto *Command2 = Controls::named(new QPushButton(u"?"_s, frmgen), u"Command2"_s);
    Command2->setAccessibleName(u"Mnemonic of the colours"_s);
    Command2->setGeometry(Columns.back().left + Columns.back().width - 28, 18, 28, FieldHeight);
    connect(Command2, &QPushButton::clicked, this, &ElectronicsPane::mnemonicRequested);

    m_resistor = new ResistorView(bandCentres(), frmgen);
    m_resistor->setGeometry(0, 76, frmgen->width(), 116);
    buildRings();
    buildResults();
    QWidget::setTabOrder(&tbm[9], Command2);
}

void ElectronicsPane::buildRings()
{
    constexpr int LabelTop = 232;
    addLabel18(6, u"Significative numbers:"_s,
               {Columns.front().left, LabelTop - LabelHeight - 2, 396, LabelHeight}, frmgen);
    for (const Column &column : Columns) {
        QLabel *label = addLabel18(column.label, column.caption,
                                   {column.left, LabelTop, column.width, LabelHeight}, frmgen);
        DropDown *list = addList(column.list, column.caption,
                                 {column.left, LabelTop + LabelHeight, column.width, FieldHeight}, frmgen);
        list->showRows(
            new RowListModel(m_store.lists.Combo2[column.list], {{u"Colour"_s, column.width}}, list));
        label->setBuddy(list);
    }
}

void ElectronicsPane::buildResults()
{
    constexpr int Top = 324;
    addResult(7, u"Resistance"_s, 18, ohm(), {Columns[0].left, Top}, frmgen);
    addResult(8, u"Tolerance"_s, 19, u"%"_s, {Columns[3].left, Top}, frmgen);
    addResult(9, u"Temperature coefficient"_s, 20, u"ppm / °C"_s, {Columns[5].left, Top}, frmgen);
}

void ElectronicsPane::buildSeries()
{
    constexpr int ListTop = TabsHeight + 6 + TitleFrame::Height;
    QList<ListColumn> columns;
    for (const char *series : {"E3", "E6", "E12", "E24", "E48", "E96", "E192"})
        columns << ListColumn{series, 130, ListColumn::Kind::Number};
    auto *list = new RowListView({}, m_store.lists.ListView3[28], columns, this);
    list->setGeometry(Margin, ListTop, width() - 2 * Margin, height() - Margin - ListTop);
    ListView3.add(28, list);
    auto *titles = new TitleFrame(u"grdFrame32"_s, this);
    titles->addTitles(*list, Label2, {110, 111, 112, 113, 114, 115, 116});
    auto *unit = new QLabel(u"R (%1)"_s.arg(ohm()), titles);
    unit->setGeometry(8, 0, 120, TitleFrame::Height / 2);
    Label2.add(117, unit);
    grdFrame32 = titles;
}

void ElectronicsPane::buildEia96()
{
    constexpr int ListWidth = 264;
    frmcms = Controls::named(new QFrame(this), u"frmcms"_s);
    frmcms->setGeometry(Room);
    auto *grdFrame31 = Controls::named(new QFrame(frmcms), u"grdFrame31"_s);
    grdFrame31->setGeometry(Margin, 0, ListWidth, Room.height() - Margin);
    auto *list = new RowListView({}, m_store.lists.ListView3[29],
                                 {{u"Code"_s, 110, ListColumn::Kind::Number},
                                  {u"Value (%1)"_s.arg(ohm()), 130, ListColumn::Kind::Number}},
                                 grdFrame31);
    list->setGeometry(0, TitleFrame::OneLine + 4, ListWidth, grdFrame31->height() - TitleFrame::OneLine - 4);
    ListView3.add(29, list);
    (new TitleFrame({}, grdFrame31, TitleFrame::OneLine))->addTitles(*list, Label2, {118, 119});
    buildMarking();
}

void ElectronicsPane::buildMarking()
{
    constexpr int Left = 330;
    constexpr int Width = 150;
    constexpr int Right = Left + Width + 24;
    QLabel *codeLabel = addLabel18(12, u"Code:"_s, {Left, 36, Width, LabelHeight}, frmcms);
    Combo4 = new DropDown(u"Combo4"_s, frmcms);
    Combo4->showRows(new RowListModel(m_store.lists.Combo4, {{u"Code"_s, Width}}, Combo4));
    Combo4->setGeometry(Left, 36 + LabelHeight, Width, FieldHeight);
    codeLabel->setBuddy(Combo4);

    QLabel *letterLabel = addLabel18(11, u"Multiplicator:"_s, {Right, 36, Width, LabelHeight}, frmcms);
    DropDown *letters =
        addList(10, u"Multiplicator"_s, {Right, 36 + LabelHeight, Width, FieldHeight}, frmcms);
    letters->addItems(Eia96::letters());
    letters->setCurrentIndex(-1);
    letterLabel->setBuddy(letters);

    auto *chip = new ChipView(Label18, frmcms);
    chip->setGeometry(Left, 124, Right + Width - Left, 110);
    addResult(10, u"Resistance"_s, 21, ohm(), {Left, 262}, frmcms);
    QLabel *legend =
        addLabel18(14, Eia96::Legend, {Left, 342, Room.width() - Left - Margin, LabelHeight}, frmcms);
    legend->setFont(font());
}

QLabel *ElectronicsPane::addLabel18(int index, const QString &text, const QRect &place, QWidget *parent)
{
    QLabel *label = Controls::heading({}, text, parent);
    label->setGeometry(place);
    Label18.add(index, label);
    return label;
}

DropDown *ElectronicsPane::addList(int index, const QString &accessibleName, const QRect &place,
                                   QWidget *parent)
{
    auto *list = new DropDown({}, parent);
    list->setAccessibleName(accessibleName);
    list->setMaxVisibleItems(13);
    list->setGeometry(place);
    Combo2.add(index, list);
    return list;
}

void ElectronicsPane::addResult(int index, const QString &title, int unitIndex, const QString &unit,
                                const QPoint &place, QWidget *parent)
{
    constexpr int Width = 124;
    QLabel *caption = Controls::heading({}, title, parent);
    caption->setGeometry(place.x(), place.y(), 190, LabelHeight);
    auto *field = new TextBoxM(parent);
    field->setReadOnly(true);
    field->setAlignment(Qt::AlignRight);
    field->setGeometry(place.x(), place.y() + LabelHeight, Width, FieldHeight);
    tbm.add(index, field);
    caption->setBuddy(field);
    QLabel *sign = Controls::label({}, unit, parent);
    sign->setGeometry(place.x() + Width + 6, field->y(), 60, FieldHeight);
    lbl2.add(unitIndex, sign);
}

void ElectronicsPane::connectControls()
{
    const auto endingOnError = [this](auto handler) {
        return [this, handler] { endOnError(m_desktop, handler); };
    };
    connect(TabStrip11, &QTabBar::currentChanged, this, &ElectronicsPane::showTab);
    connect(Combo3, &DropDown::chosen, this, &ElectronicsPane::changeRingCount);
    for (const ResistorCode::Ring &ring : ResistorCode::rings())
        connect(&Combo2[ring.list], &DropDown::chosen, this,
                endingOnError([this, &ring] { chooseRing(ring); }));
    for (DropDown *list : {Combo4, &Combo2[10]})
        connect(list, &DropDown::chosen, this, endingOnError([this] { decodeMarking(); }));
    connect(&m_tables, &LaterTables::changed, this, [this] {
        if (!m_tables.areRead())
            emptyChoices();
    });
}

// The chosen rows are gone.
void ElectronicsPane::emptyChoices()
{
    changeRingCount();
    Combo2[10].setCurrentIndex(-1);
    decodeMarking();
    tbm[10].clear();
}

void ElectronicsPane::showTab(int index)
{
    frmgen->setVisible(index == 0);
    grdFrame32->setVisible(index == 1);
    ListView3[28].setVisible(index == 1);
    frmcms->setVisible(index == 2);
    // Centred in the free area; on the last tab that is right of the list.
    const QPoint middle(index == 2 ? 632 : width() / 2, 466);
    m_notice->move(middle - m_notice->rect().center());
}

void ElectronicsPane::changeRingCount()
{
    for (const int list : {6, 8, 9})
        Combo2[list].setEnabled(ResistorCode::hasRing(Combo3->currentText(), list));
    markRings();
    for (const ResistorCode::Ring &ring : ResistorCode::rings())
        Combo2[ring.list].choose(-1);
    m_resistor->hideBands();
    for (const int result : {7, 8, 9})
        tbm[result].clear();
}

// The labels of the rings that apply have the link colour: of the palette's text colours it comes closest to
// an active title bar.
void ElectronicsPane::markRings()
{
    const QString count = Combo3->currentText();
    for (const Column &column : Columns)
        mark(Label18[column.label], ResistorCode::hasRing(count, column.list), QPalette::Link);
    for (const int label : {3, 6})
        mark(Label18[label], true, QPalette::Link);
    mark(lbl2[20], ResistorCode::hasRing(count, 9), QPalette::ButtonText);
}

void ElectronicsPane::mark(QLabel &label, bool active, QPalette::ColorRole activeRole)
{
    QPalette palette;
    const bool dark = this->palette().color(QPalette::Window).lightness() < 128;
    palette.setColor(QPalette::WindowText, dark ? GreyOnDark : LightGrey);
    label.setPalette(active ? QPalette() : palette);
    label.setForegroundRole(active ? activeRole : QPalette::WindowText);
}

void ElectronicsPane::changeEvent(QEvent *event)
{
    ModulePanel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && isBuilt())
        markRings();
}

void ElectronicsPane::chooseRing(const ResistorCode::Ring &ring)
{
    const DropDown &list = Combo2[ring.list];
    if (list.currentIndex() < 0)
        return;
    if (const auto paint = m_code.choose(ring, list.currentIndex(), list.currentText()))
        m_resistor->paintBand(ring.band, QColor(paint->red, paint->green, paint->blue));
    showResult();
}

// Changes nothing until all rings that apply are chosen.
void ElectronicsPane::showResult()
{
    const QString count = Combo3->currentText();
    for (const ResistorCode::Ring &ring : ResistorCode::rings()) {
        if (ResistorCode::hasRing(count, ring.list) && Combo2[ring.list].currentIndex() < 0)
            return;
    }
    const ResistorCode::Fields fields = m_code.result(count);
    tbm[7].setText(fields.resistance);
    tbm[8].setText(fields.tolerance);
    if (fields.temperature)
        tbm[9].setText(*fields.temperature);
}

void ElectronicsPane::decodeMarking()
{
    const int row = Combo4->currentIndex();
    const QString valeur = row < 0 ? QString() : m_store.lists.ListView3[29].subItem(row, 1);
    const Eia96::Marking marking = Eia96::decode(Combo4->currentText(), valeur, Combo2[10].currentText());
    if (marking.value)
        tbm[10].setText(*marking.value);
    Label18[13].setText(marking.code);
    Label18[15].setText(marking.letter);
}

TableRow ElectronicsPane::currentRow() const
{
    constexpr int ColourStep = 32;
    if (frmcms->isVisible() && Combo4->currentIndex() >= 0)
        return TableCatalog::rowOf(m_store.lists.ListView3[29], Combo4->currentIndex());
    for (const ResistorCode::Ring &ring : ResistorCode::rings()) {
        const auto &colours = m_store.tables.ResistorColourData;
        const QString chosen = frmgen->isVisible() ? Combo2[ring.list].currentText() : QString();
        for (int row = 0; row < colours.rowCount() && !chosen.isEmpty(); ++row) {
            if (colours(row, 0) == chosen)
                return TableCatalog::rowOf(ColourStep, row, {chosen});
        }
    }
    return {};
}
