#include "elements/datapanel.h"

#include "core/symboltext.h"
#include "elements/elementpanel.h"
#include "widgets/windowunits.h"

#include <QPainter>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int Width = 334;
constexpr int HeadingHeight = 60;
constexpr int LineHeight = 22;
constexpr int Edge = 2; ///< free of the rows, for the frame
constexpr int Padding = 10;
constexpr int ValueLeft = 160;

constexpr std::array HeadingSizes{2.6, 1.6}; ///< of symbol and name, in sizes of the desktop's font

constexpr int IsotopeTop = 36;
constexpr int IsotopeHeight = 24; ///< 360 twips, by which the panel grows
constexpr std::array IsotopeLefts{Padding, 128, 226, Width - Padding};

// The balloons of the values are French in every edition of the program.
constexpr std::array<const char *, ElementPanel::ValueCount> Tips{
    "Symbole",
    "Nom",
    "Numéro atomique",
    "",
    "Configuration électronique",
    "Densité",
    "Température de fusion (°C)",
    "Température d'ébullition (°C)",
    "Electronégativité",
    "1er potentiel d'ionisation (eV)",
    "Nombre(s) d'oxydation",
    "Etat",
    "Famille",
    "Structure cristalline",
    "Rayon covalent / métallique / de Van der Waals (A)",
};
constexpr std::array IsotopeTips{"Numéro atomique", "Temp de demi-vie", "Mode(s) de décomposition"};

struct ValueRow
{
    int index; ///< of `lblatome`
    const char *caption;
    const char *note = nullptr; ///< in a line of its own below the value
};

constexpr std::array<ValueRow, 13> ValueRows{{
    {2, "Atomic number"},
    {3, "Atomic mass (u)"},
    {4, "Electron configuration"},
    {10, "Oxidation numbers"},
    {8, "Electronegativity"},
    {9, "1st ionization (eV)"},
    {14, "Radius (Å)", "covalent / metallic / vdW"},
    {5, "Density (g/cm³)"},
    {6, "Melting point (°C)"},
    {7, "Boiling point (°C)"},
    {11, "State"},
    {12, "Family"},
    {13, "Crystal structure"},
}};

constexpr int heightOf(const ValueRow &row)
{
    constexpr int NoteHeight = 14;
    return row.note ? LineHeight + NoteHeight : LineHeight;
}

void stylePanel(QFrame &panel)
{
    panel.setFrameShape(QFrame::StyledPanel);
    panel.setAutoFillBackground(true);
    panel.setBackgroundRole(QPalette::Base);
    panel.setForegroundRole(QPalette::Text);
}

QFont sized(QFont font, double factor, bool bold = false)
{
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    return font;
}

QLabel *makeTitle(const QString &text, const QFont &font, const QRect &place, QWidget *parent)
{
    QLabel *title = Controls::label({}, text, parent);
    title->setFont(font);
    title->setGeometry(place);
    return title;
}

QLabel *makeValue(const char *toolTip, const QRect &place, QWidget *parent)
{
    QLabel *value = Controls::label({}, {}, parent);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setToolTip(toolTip);
    value->setGeometry(place);
    return value;
}

} // namespace

DataPanel::DataPanel(QWidget *parent) : QFrame(parent)
{
    setObjectName(u"ReyFrame1"_s);
    stylePanel(*this);
    buildHeading();
    buildRows();
}

void DataPanel::buildHeading()
{
    addValue(0, {Padding, 4, ValueLeft - Padding, HeadingHeight - 8});
    addValue(1, {ValueLeft, 4, Width - ValueLeft - 4, HeadingHeight - 8});
}

void DataPanel::buildRows()
{
    int top = HeadingHeight;
    for (const ValueRow &row : ValueRows) {
        QLabel *caption = Controls::label({}, row.caption, this);
        caption->setGeometry(Padding, top, ValueLeft - Padding, LineHeight);
        addValue(row.index, {ValueLeft, top, Width - ValueLeft - 4, LineHeight}, row.caption);
        if (row.note) {
            m_note = Controls::label({}, row.note, this);
            m_note->setGeometry(ValueLeft, top + LineHeight - 4, Width - ValueLeft - 4, 16);
            m_note->hide();
        }
        top += heightOf(row);
    }
    resize(Width, top + Edge);
}

// Shades every other row.
void DataPanel::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    int top = HeadingHeight;
    bool shaded = true;
    for (const ValueRow &row : ValueRows) {
        if (shaded)
            painter.fillRect(Edge, top, Width - 2 * Edge, heightOf(row), palette().alternateBase());
        top += heightOf(row);
        shaded = !shaded;
    }
}

void DataPanel::addValue(int index, const QRect &place, const QString &caption)
{
    QLabel &value = lblatome.add(index, makeValue(Tips[size_t(index)], place, this));
    value.setAccessibleDescription(caption);
}

void DataPanel::showValues(const ElementPanel &panel)
{
    m_note->show();
    for (const auto &[index, label] : lblatome) {
        label->setText(panel.lblatome[size_t(index)]);
        fit(*label, index < int(HeadingSizes.size()) ? HeadingSizes[size_t(index)] : 1);
    }
}

// Sets long texts smaller, such as the oxidation numbers of nitrogen.
void DataPanel::fit(QLabel &label, double size) const
{
    QFont fitting = sized(font(), size, true);
    while (fitting.pointSizeF() > 1 && QFontMetrics(fitting).horizontalAdvance(label.text()) > label.width())
        fitting.setPointSizeF(fitting.pointSizeF() - 0.5);
    label.setFont(fitting);
}

IsotopePanel::IsotopePanel(QWidget *parent) : QFrame(parent)
{
    setObjectName(u"ReyFrame2"_s);
    stylePanel(*this);
    setFont(QFont(u"Arial"_s, font().pointSize()));
    makeTitle(u"Radioactive isotopes"_s, sized(font(), 1, true), {Padding, 2, Width - 2 * Padding, 18}, this);
    constexpr std::array Captions{"Isotope (* natural)", "Half-life", "Decay"};
    for (size_t column = 0; column < Captions.size(); ++column) {
        const int left = IsotopeLefts[column];
        const int width = IsotopeLefts[column + 1] - left;
        makeTitle(Captions[column], sized(font(), 0.8), {left, 20, width, 15}, this);
        for (int row = 0; row < ElementPanel::IsotopeTextCount / 3; ++row) {
            const QRect place(left, IsotopeTop + row * IsotopeHeight, width, IsotopeHeight);
            Label11.add(3 * row + int(column), makeValue(IsotopeTips[column], place, this));
        }
    }
}

void IsotopePanel::showValues(const ElementPanel &panel)
{
    for (const auto &[index, label] : Label11) {
        const QString &stored = panel.Label11[size_t(index)];
        label->setText(index % 3 == 2 ? SymbolText::decayModes(stored) : stored);
    }
    resize(Width, WindowUnits::pixels(panel.ReyFrame2Height));
    setVisible(panel.ReyFrame2Shown);
}
