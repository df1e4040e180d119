#include "sidewindows/legends.h"

#include "core/symboltext.h"
#include "sidewindows/legendcolumn.h"
#include "store/memorytables.h"
#include "store/rowlist.h"
#include "widgets/controls.h"
#include "widgets/modulepanel.h"
#include "widgets/rowlistview.h"
#include "widgets/sidewindow.h"
#include "widgets/titleframe.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QPushButton>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// A side window with its contents in one column and OK below.
class Legend : public SideWindow
{
public:
    Legend(const char *name, const QString &caption, QWidget &form1)
        : SideWindow(name, form1), m_column(new QVBoxLayout(this))
    {
        setWindowTitle(caption);
        m_column->setSizeConstraint(QLayout::SetFixedSize);
        m_column->setSpacing(8);
    }

    void add(QWidget *part) { m_column->addWidget(part); }
    void add(QLayout *part) { m_column->addLayout(part); }

    void showWithOk()
    {
        m_column->addWidget(makeOkButton(u"cmdOK"_s), 0, Qt::AlignRight);
        showAboveOwner();
    }

private:
    QVBoxLayout *const m_column;
};

/// A framed area for a table of signs.
QFrame *framedPanel(QWidget *parent)
{
    auto *panel = new QFrame(parent);
    panel->setFrameShape(QFrame::StyledPanel);
    panel->setAutoFillBackground(true);
    panel->setBackgroundRole(QPalette::Base);
    panel->setForegroundRole(QPalette::Text);
    return panel;
}

// --- Captions

struct Sample
{
    const char *value;
    const char *meaning;
};

// The values of potassium as in the element panel, from top to bottom.
constexpr std::array Samples{
    Sample{"K", "symbol"},
    Sample{"Potassium", "name"},
    Sample{"19", "atomic number"},
    Sample{"39.0983", "atomic mass (u)"},
    Sample{"[Ar] 4s1", "electronic configuration"},
    Sample{"+1", "oxidation number(s)"},
    Sample{"0.82", "electronegativity (Pauling)"},
    Sample{"4.3407", "1st ionization potential (eV)"},
    Sample{"2.03 / 2.35 / 2.75", "covalent / metallic / Van der Waals radius (Å)"},
    Sample{"0.89", "density (g/cm³)"},
    Sample{"63.5", "melting point (°C)"},
    Sample{"759", "boiling point (°C)"},
    Sample{"Solid", "state"},
    Sample{"Alkali metal", "family"},
    Sample{"Body-centered cubic", "crystal structure"},
};

constexpr const char *TimeUnits = "= second     = minute       = hour          = day             = year";
constexpr const char *DecayModes =
    "= alpha particle               = negative electron           = positron                  "
    "     = electron capture          = isomeric transition       = spontaneous fission";

/// Title of a group of signs.
QLabel *italic(const QString &text, QWidget *parent)
{
    QLabel *title = Controls::label({}, text, parent);
    title->setContentsMargins(0, 8, 0, 0);
    QFont font = title->font();
    font.setItalic(true);
    title->setFont(font);
    return title;
}

QWidget *makeValues(QWidget *parent)
{
    QFrame *panel = framedPanel(parent);
    auto *grid = new QGridLayout(panel);
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(0);
    int row = 0;
    const auto addLine = [&](const QString &shown, const QString &meaning) {
        QLabel *label = Controls::heading({}, shown, panel);
        label->setFixedHeight(LegendColumn::LineHeight);
        grid->addWidget(label, row, 0);
        grid->addWidget(Controls::label({}, meaning, panel), row, 1);
        ++row;
    };
    for (const Sample &sample : Samples)
        addLine(sample.value, sample.meaning);
    grid->addWidget(italic(u"Melting and boiling point"_s, panel), row++, 0, 1, 2);
    addLine(u"sp"_s, u"= sublimation point"_s);
    addLine(u"tp"_s, u"= triple point"_s);
    grid->setRowStretch(row, 1);
    return panel;
}

void addSigns(QGridLayout &grid, const QString &heading, const QString &signs, const QString &meanings)
{
    QWidget *panel = grid.parentWidget();
    const int row = grid.rowCount();
    grid.addWidget(italic(heading, panel), row, 0, 1, 2);
    if (signs.isEmpty()) {
        grid.addWidget(new LegendColumn(meanings, panel), row + 1, 0, 1, 2);
        return;
    }
    auto *column = new LegendColumn(signs, panel);
    QFont bold = column->font();
    bold.setBold(true);
    column->setFont(bold);
    grid.addWidget(column, row + 1, 0);
    grid.addWidget(new LegendColumn(meanings, panel), row + 1, 1);
}

QWidget *makeIsotopes(QWidget *parent)
{
    QFrame *panel = framedPanel(parent);
    auto *grid = new QGridLayout(panel);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    grid->addWidget(Controls::heading({}, u"Radioactive isotopes"_s, panel), 0, 0, 1, 2);
    QLabel *example =
        Controls::heading({}, u"40*   1.248E9 y   "_s + SymbolText::decayModes(u"b-, e"_s), panel);
    example->setFixedHeight(LegendColumn::LineHeight);
    grid->addWidget(example, 1, 0, 1, 2);
    addSigns(*grid, u"Isotope number"_s, {}, u"* = natural existence"_s);
    addSigns(*grid, u"Half-life"_s, u"s  m  h  d  y"_s, TimeUnits);
    addSigns(*grid, u"Decay"_s, SymbolText::decayModes(u"a  b-  b+  e  IT  SF"_s), DecayModes);
    grid->setRowStretch(grid->rowCount(), 1);
    return panel;
}

// --- Journals

class Journals final : public Legend
{
public:
    Journals(const MemoryTables &tables, QWidget &form1) : Legend("Formhelp2", u"Abréviations"_s, form1)
    {
        constexpr int Step = 29;
        m_journals.setOrigin({Step, 0});
        const auto &table = tables.NmrReferenceData;
        for (int row = 1; row < table.rowCount() && !table(row, 0).isEmpty(); ++row) {
            m_journals.append(table(row, 0));
            m_journals.appendSubItem(table(row, 1));
        }
        add(makeCode());
        add(Controls::heading(u"Label3(1)"_s, u"Abbreviations"_s, this));
        add(makeList());
    }

private:
    QLayout *makeCode()
    {
        QLabel *example = Controls::label(
            u"Label2"_s, u"J. Org. Chem 1989, 54, 4436 = JOC-89-4436 or JOC-(54)-4436"_s, this);
        example->setMargin(1); // the J of some fonts extends to the left
        auto *row = new QHBoxLayout;
        row->setSpacing(4);
        row->addWidget(Controls::heading(u"Label3(0)"_s, u"Code : "_s, this));
        row->addWidget(example, 1);
        return row;
    }

    QWidget *makeList()
    {
        constexpr int AbbreviationWidth = 100;
        constexpr int JournalWidth = 330;
        constexpr int ScrollBarWidth = 24;
        constexpr int ListHeight = 290;
        auto *area = new QWidget(this);
        area->setFont(ModulePanel::fittingFont(font())); // fixed size, like the panes
        auto *ListView100 =
            new RowListView(u"ListView100"_s, m_journals,
                            {{u"Abbrev."_s, AbbreviationWidth}, {u"Journal"_s, JournalWidth}}, area);
        ListView100->setGeometry(0, TitleFrame::OneLine, AbbreviationWidth + JournalWidth + ScrollBarWidth,
                                 ListHeight);
        ControlArray<QLabel> titles("Label1");
        (new TitleFrame(u"grdFrame1"_s, area, TitleFrame::OneLine))->addTitles(*ListView100, titles, {0, 1});
        area->setFixedSize(ListView100->width(), TitleFrame::OneLine + ListHeight);
        return area;
    }

    RowList m_journals;
};

// --- Bond colours

struct Bond
{
    int index; ///< of `Label2`; 3 is the heading
    const char *partner;
    QRgb colour; ///< that of the bars in the chart pictures
};

constexpr std::array Bonds{
    Bond{0, "Oxygen (O)", 0xFFFF0000},
    Bond{1, "Bromine (Br)", 0xFF0000C0},
    Bond{2, "Hydrogen (H),  Carbon (C)", 0xFF008000},
    Bond{4, "Phosphorous (P), Iodine (I)", 0xFFC000C0},
    Bond{5, "Sulfur (S), Fluorine (F)", 0xFFC0C000},
    Bond{6, "Nitrogen (N)", 0xFF0000FF},
    Bond{7, "Others", 0xFF808080},
    Bond{8, "Chlorine (Cl)", 0xFF00C0C0},
};

void paint(QWidget &widget, QPalette::ColorRole role, const QColor &colour)
{
    QPalette palette = widget.palette();
    palette.setColor(role, colour);
    widget.setPalette(palette);
}

/// A bar as in the charts: light colours are hard to distinguish in text.
QFrame *bar(QRgb colour, QSize size, QWidget *parent)
{
    auto *bar = new QFrame(parent);
    bar->setFixedSize(size);
    bar->setAutoFillBackground(true);
    bar->setBackgroundRole(QPalette::Window);
    paint(*bar, QPalette::Window, colour);
    return bar;
}

/// White even on a dark desktop, like the charts: the colours need it.
QFrame *makeBonds(QWidget *parent)
{
    auto *sheet = new QFrame(parent);
    sheet->setFrameShape(QFrame::StyledPanel);
    sheet->setAutoFillBackground(true);
    paint(*sheet, QPalette::Window, Qt::white);
    auto *grid = new QGridLayout(sheet);
    grid->setContentsMargins(16, 12, 24, 12);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(8);
    int row = 0;
    for (const Bond &bond : Bonds) {
        QLabel *label = Controls::heading(Controls::indexedName("Label2", bond.index), bond.partner, sheet);
        paint(*label, QPalette::WindowText, bond.colour);
        grid->addWidget(bar(bond.colour, {36, 10}, sheet), row, 0);
        grid->addWidget(label, row, 1);
        ++row;
    }
    return sheet;
}

// --- Mnemonic

struct Digit
{
    const char *word;
    const char *colourName;
    QRgb colour; ///< that of the bands on the Electronics pane
};

constexpr std::array Digits{
    Digit{"Big", "Black", 0xFF000000},    Digit{"Bottles", "Brown", 0xFF8B4513},
    Digit{"Rarely", "Red", 0xFFFF0000},   Digit{"Overflow:", "Orange", 0xFFFFA500},
    Digit{"Your", "Yellow", 0xFFFFFF00},  Digit{"Glass", "Green", 0xFF008000},
    Digit{"Beakers", "Blue", 0xFF0000FF}, Digit{"Very", "Violet", 0xFF9400D3},
    Digit{"Gladly", "Grey", 0xFF808080},  Digit{"Will", "White", 0xFFFFFFFF},
};

/// The colours of the digits 0 to 9 on resistors (IEC 60062), each with a word that has the same initial. The
/// words make a sentence.
QFrame *makeMnemonic(QWidget *parent)
{
    QFrame *panel = framedPanel(parent);
    auto *grid = new QGridLayout(panel);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(10);
    QStringList words;
    for (int digit = 0; digit < int(Digits.size()); ++digit) {
        const auto &[word, colourName, colour] = Digits[size_t(digit)];
        QFrame *band = bar(colour, {56, 18}, panel);
        // The outline makes black visible on a dark desktop and white on a light one.
        band->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
        grid->addWidget(Controls::heading({}, QChar(u'0' + digit), panel), digit, 0);
        grid->addWidget(band, digit, 1);
        grid->addWidget(Controls::heading({}, word, panel), digit, 2);
        grid->addWidget(Controls::label({}, colourName, panel), digit, 3);
        words << word;
    }
    panel->setAccessibleName(words.join(u' '));
    return panel;
}

} // namespace

void openCaptions(QWidget &form1)
{
    auto *legend = new Legend("Formhelp", u"Captions"_s, form1);
    auto *row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(makeValues(legend));
    row->addWidget(makeIsotopes(legend));
    legend->add(row);
    QObject::connect(legend, &SideWindow::unloaded, &form1, [&form1] {
        if (auto *Form2 = form1.findChild<QWidget *>(u"Form2"_s))
            Form2->close();
    });
    legend->showWithOk();
}

void openJournals(const MemoryTables &tables, QWidget &form1)
{
    (new Journals(tables, form1))->showWithOk();
}

void openColourCode(QWidget &form1)
{
    auto *legend = new Legend("Formhelp3", u"Code couleur"_s, form1);
    legend->add(Controls::heading(u"Label3"_s, u"Color code"_s, legend));
    legend->add(Controls::label(u"Label2(3)"_s, u"Bond between Carbon (C) or Hydrogen (H) and:"_s, legend));
    legend->add(makeBonds(legend));
    legend->showWithOk();
}

void openMnemonic(QWidget &form1)
{
    auto *legend = new Legend("Formhelp4", u"Form3"_s, form1); // this caption is intended
    legend->add(Controls::heading(u"Label3"_s, u"Mnemonic:"_s, legend));
    legend->add(Controls::named(makeMnemonic(legend), u"Image3"_s));
    legend->showWithOk();
}
