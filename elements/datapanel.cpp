#include "elements/datapanel.h"

#include "core/symboltext.h"
#include "elements/elementpanel.h"
#include "widgets/windowunits.h"

#include <QPainter>
#include <array>

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
constexpr std::array<const char *, ElementPanel::ValueCount> ToolTips{
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
constexpr std::array IsotopeToolTips{"Numéro atomique", "Temp de demi-vie", "Mode(s) de décomposition"};

struct ValueRow
{
    int index; ///< of `lblatome`
    const char *caption;
    const char *note; ///< in a line of its own below the value, told from it by its weight
};

constexpr std::array<ValueRow, 13> ValueRows{{
    {2, "Atomic number", nullptr},
    {3, "Atomic mass (u)", nullptr},
    {4, "Electron configuration", nullptr},
    {10, "Oxidation numbers", nullptr},
    {8, "Electronegativity", nullptr},
    {9, "1st ionization (eV)", nullptr},
    {14, "Radius (Å)", "covalent / metallic / vdW"},
    {5, "Density (g/cm³)", nullptr},
    {6, "Melting point (°C)", nullptr},
    {7, "Boiling point (°C)", nullptr},
    {11, "State", nullptr},
    {12, "Family", nullptr},
    {13, "Crystal structure", nullptr},
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

QLabel *text(const QString &content, const QFont &font, QWidget *parent)
{
    QLabel *label = Controls::label({}, content, parent);
    label->setFont(font);
    return label;
}

} // namespace

DataPanel::DataPanel(QWidget *parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("ReyFrame1"));
    stylePanel(*this);
    buildHeading();
    buildRows();
}

void DataPanel::buildHeading()
{
    auto *symbol = new QLabel(this);
    symbol->setGeometry(Padding, 4, ValueLeft - Padding, HeadingHeight - 8);
    addValue(0, symbol);
    auto *name = new QLabel(this);
    name->setGeometry(ValueLeft, 4, Width - ValueLeft - 4, HeadingHeight - 8);
    addValue(1, name);
}

void DataPanel::buildRows()
{
    int top = HeadingHeight;
    for (const ValueRow &row : ValueRows) {
        QLabel *caption = text(QString::fromUtf8(row.caption), font(), this);
        caption->setGeometry(Padding, top, ValueLeft - Padding, LineHeight);
        auto *value = new QLabel(this);
        value->setGeometry(ValueLeft, top, Width - ValueLeft - 4, LineHeight);
        value->setAccessibleDescription(QString::fromUtf8(row.caption));
        addValue(row.index, value);
        if (row.note) {
            QLabel *note = text(QLatin1StringView(row.note), font(), this);
            note->setGeometry(ValueLeft, top + LineHeight - 4, Width - ValueLeft - 4, 16);
            note->hide();
            m_notes << note;
        }
        top += heightOf(row);
    }
    resize(Width, top + Edge);
}

// Every other row is shaded. Painted here, for a widget behind each would take the start longer than its
// texts.
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

void DataPanel::addValue(int index, QLabel *value)
{
    value->setTextFormat(Qt::PlainText);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setToolTip(QString::fromUtf8(ToolTips[size_t(index)]));
    lblatome.add(index, value);
}

void DataPanel::showValues(const ElementPanel &panel)
{
    for (QLabel *note : std::as_const(m_notes))
        note->show();
    for (const auto &[index, label] : lblatome) {
        label->setText(panel.lblatome[size_t(index)]);
        fit(*label, index < int(HeadingSizes.size()) ? HeadingSizes[size_t(index)] : 1);
    }
}

// A text that is longer than its place, like the oxidation numbers of nitrogen, is set smaller.
void DataPanel::fit(QLabel &label, double size) const
{
    QFont fitting = sized(font(), size, true);
    while (fitting.pointSizeF() > 1 && QFontMetrics(fitting).horizontalAdvance(label.text()) > label.width())
        fitting.setPointSizeF(fitting.pointSizeF() - 0.5);
    label.setFont(fitting);
}

IsotopePanel::IsotopePanel(QWidget *parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("ReyFrame2"));
    stylePanel(*this);
}

void IsotopePanel::build()
{
    setFont(QFont(QStringLiteral("Arial"), font().pointSize()));
    buildTitles();
    for (int row = 0; row < ElementPanel::IsotopeTextCount / 3; ++row)
        buildRow(row);
}

void IsotopePanel::buildTitles()
{
    text(QStringLiteral("Radioactive isotopes"), sized(font(), 1, true), this)
        ->setGeometry(Padding, 2, Width - 2 * Padding, 18);
    const std::array captions{tr("Isotope (* natural)"), tr("Half-life"), tr("Decay")};
    for (size_t column = 0; column < captions.size(); ++column) {
        text(captions[column], sized(font(), 0.8), this)
            ->setGeometry(IsotopeLefts[column], 20, IsotopeLefts[column + 1] - IsotopeLefts[column], 15);
    }
}

void IsotopePanel::buildRow(int row)
{
    for (int column = 0; column < 3; ++column) {
        auto *label = new QLabel(this);
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setToolTip(QString::fromUtf8(IsotopeToolTips[size_t(column)]));
        const int left = IsotopeLefts[size_t(column)];
        label->setGeometry(left, IsotopeTop + row * IsotopeHeight, IsotopeLefts[size_t(column) + 1] - left,
                           IsotopeHeight);
        Label11.add(3 * row + column, label);
    }
}

void IsotopePanel::showValues(const ElementPanel &panel)
{
    if (!Label11.contains(0))
        build();
    for (const auto &[index, label] : Label11) {
        const QString &stored = panel.Label11[size_t(index)];
        label->setText(index % 3 == 2 ? SymbolText::decayModes(stored) : stored);
    }
    resize(Width, WindowUnits::pixels(panel.ReyFrame2Height));
    setVisible(panel.ReyFrame2Shown);
}
