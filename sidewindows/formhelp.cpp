#include "sidewindows/formhelp.h"

#include "core/symboltext.h"
#include "sidewindows/legendcolumn.h"
#include "widgets/controls.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QPushButton>
#include <array>

namespace {

struct Sample
{
    const char *value;
    const char *meaning;
};

// The values of potassium, as the element panel shows them, from the element's name down.
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

constexpr QLatin1StringView TimeUnits("= second     = minute       = hour          = day             = year");
constexpr QLatin1StringView
    DecayModes("= alpha particle               = negative electron           = positron                  "
               "     = electron capture          = isomeric transition       = spontaneous fission");

QFrame *sheet(QWidget *parent)
{
    auto *frame = new QFrame(parent);
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setAutoFillBackground(true);
    frame->setBackgroundRole(QPalette::Base);
    frame->setForegroundRole(QPalette::Text);
    return frame;
}

QFont bold(QFont font)
{
    font.setBold(true);
    return font;
}

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

} // namespace

Formhelp::Formhelp(QWidget &form1) : SideWindow("Formhelp", form1)
{
    setWindowTitle(QStringLiteral("Captions"));
    auto *cmdOK = Controls::named(new QPushButton(QStringLiteral("OK"), this), QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QWidget::close);
    auto *grid = new QGridLayout(this);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->setSpacing(10);
    grid->addWidget(buildValues(), 0, 0);
    grid->addWidget(buildIsotopes(), 0, 1);
    grid->addWidget(cmdOK, 1, 1, Qt::AlignRight);
}

QWidget *Formhelp::buildValues()
{
    QFrame *panel = sheet(this);
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
        addLine(QString::fromUtf8(sample.value), QString::fromUtf8(sample.meaning));
    grid->addWidget(italic(QStringLiteral("Melting and boiling point"), panel), row++, 0, 1, 2);
    addLine(QStringLiteral("sp"), QStringLiteral("= sublimation point"));
    addLine(QStringLiteral("tp"), QStringLiteral("= triple point"));
    grid->setRowStretch(row, 1);
    return panel;
}

QWidget *Formhelp::buildIsotopes()
{
    QFrame *panel = sheet(this);
    auto *grid = new QGridLayout(panel);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    grid->addWidget(Controls::heading({}, QStringLiteral("Radioactive isotopes"), panel), 0, 0, 1, 2);
    QLabel *example = Controls::label(
        {}, QStringLiteral("40*   1.248E9 y   ") + SymbolText::toUnicode(QStringLiteral("b-, e")), panel);
    example->setFont(bold(example->font()));
    example->setFixedHeight(LegendColumn::LineHeight);
    grid->addWidget(example, 1, 0, 1, 2);
    addSigns(*grid, QStringLiteral("Isotope number"), {}, QStringLiteral("* = natural existence"));
    addSigns(*grid, QStringLiteral("Half-life"), QStringLiteral("s  m  h  d  y"), QString(TimeUnits));
    addSigns(*grid, QStringLiteral("Decay"), SymbolText::toUnicode(QStringLiteral("a  b-  b+  e  IT  SF")),
             QString(DecayModes));
    grid->setRowStretch(grid->rowCount(), 1);
    return panel;
}

void Formhelp::addSigns(QGridLayout &grid, const QString &heading, const QString &signs,
                        const QString &meanings)
{
    QWidget *panel = grid.parentWidget();
    const int row = grid.rowCount();
    grid.addWidget(italic(heading, panel), row, 0, 1, 2);
    if (!signs.isEmpty()) {
        auto *column = new LegendColumn(signs, panel);
        column->setFont(bold(column->font()));
        grid.addWidget(column, row + 1, 0);
    }
    grid.addWidget(new LegendColumn(meanings, panel), row + 1, signs.isEmpty() ? 0 : 1, 1,
                   signs.isEmpty() ? 2 : 1);
}

void Formhelp::closeEvent(QCloseEvent *event)
{
    SideWindow::closeEvent(event);
    if (auto *Form2 = owner().findChild<QWidget *>(QStringLiteral("Form2")))
        Form2->close();
}

void openCaptions(QWidget &form1)
{
    (new Formhelp(form1))->showAboveOwner();
}
