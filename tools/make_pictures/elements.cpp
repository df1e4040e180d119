#include "tools/make_pictures/elements.h"

#include "tools/make_pictures/kinds.h"
#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/picturefolder.h"
#include "tools/tables/table.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

struct FamilyColour
{
    const char *family;
    QRgb colour;
};

constexpr std::array FamilyColours{
    FamilyColour{"Alkali metal", 0xc0504d},     FamilyColour{"Alkaline earth metal", 0xc7792c},
    FamilyColour{"Transition metal", 0x4f81bd}, FamilyColour{"Post-transition metal", 0x5f8f8b},
    FamilyColour{"Metalloid", 0x7a8b3a},        FamilyColour{"Nonmetal", 0x3f9a52},
    FamilyColour{"Halogen", 0x2f9c95},          FamilyColour{"Noble gas", 0x7d60a0},
    FamilyColour{"Lanthanide", 0xb0568c},       FamilyColour{"Actinide", 0x8f5a6e},
};

/// One row of the table Elements and what the cards derive from it.
struct Element
{
    const Table &table;
    int row;
    QList<int> shells;

    QString operator[](const char *column) const { return table.cell(row, column); }
    int number() const { return row + 1; }

    QColor colour() const
    {
        for (const FamilyColour &entry : FamilyColours) {
            if ((*this)["famille"] == QLatin1String(entry.family))
                return QColor(entry.colour);
        }
        table.fail(row, u"no colour for the family \"%1\""_s.arg((*this)["famille"]));
    }

    QString block() const { return u"%1-block"_s.arg(QLatin1Char(blockOf(number()))); }
};

/// Puts the configuration of the noble gas for its symbol in brackets, as often as needed.
QString writtenOut(const Table &table, int row)
{
    QString configuration = table.cell(row, "elecconf");
    static const QRegularExpression core(u"^\\[([A-Z][a-z]?)\\]"_s);
    for (int depth = 0; depth < 7; ++depth) {
        const QRegularExpressionMatch match = core.match(configuration);
        if (!match.hasMatch())
            break;
        const int gas = table.find("symb", match.captured(1));
        if (gas < 0 || gas >= row)
            table.fail(row, u"there is no noble gas %1 in a row before"_s.arg(match.captured()));
        configuration.replace(0, match.capturedLength(), table.cell(gas, "elecconf"));
    }
    return configuration;
}

Element readElement(const Table &table, int row)
{
    const Element element{table, row, electronsInShells(writtenOut(table, row))};
    if (element["nbato"] != QString::number(element.number()))
        table.fail(row, u"atomic number %1 is out of order"_s.arg(element["nbato"]));
    if (std::accumulate(element.shells.begin(), element.shells.end(), 0) != element.number())
        table.fail(row,
                   u"\"%1\" does not have %2 electrons"_s.arg(element["elecconf"]).arg(element.number()));
    return element;
}

/// Draws the electrons as dots on the circles of their shells, with the symbol in the middle.
void paintShells(QPainter &painter, const Element &element, QPointF centre, double radius, double dot)
{
    const double core = radius * 0.26;
    const double step = (radius - core) / std::max(4.0, element.shells.size() + 0.2);
    for (int shell = 0; shell < element.shells.size(); ++shell) {
        const double r = core + step * (shell + 1);
        painter.setPen(QPen(tint(element.colour(), 0.45), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(centre, r, r);
        painter.setPen(Qt::NoPen);
        painter.setBrush(element.colour().darker(130));
        for (int i = 0; i < element.shells[shell]; ++i) {
            const double angle = 2 * std::numbers::pi * i / element.shells[shell] - std::numbers::pi / 2;
            painter.drawEllipse(centre + QPointF(std::cos(angle), std::sin(angle)) * r, dot, dot);
        }
    }
    painter.setBrush(element.colour());
    painter.drawEllipse(centre, core, core);
    setType(painter, Qt::white, int(core * (element["symb"].size() > 1 ? 0.95 : 1.1)), true);
    painter.drawText(QRectF(centre - QPointF(core, core), QSizeF(2 * core, 2 * core)), Qt::AlignCenter,
                     element["symb"]);
}

QString shellList(const Element &element)
{
    QStringList counts;
    for (const int count : element.shells)
        counts << QString::number(count);
    return counts.join(u", "_s);
}

QImage drawSmallCard(const Element &element)
{
    constexpr int Side = 160;
    QImage picture = blankPicture(Side, Side);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(picture.rect(), tint(element.colour(), 0.13));
    painter.fillRect(0, Side - 20, Side, 20, tint(element.colour(), 0.35));
    paintShells(painter, element, {Side / 2.0, 70}, 66, 1.7);

    setType(painter, Ink, 13, true);
    painter.drawText(QRectF(6, 3, 60, 18), Qt::AlignLeft | Qt::AlignVCenter, element["nbato"]);
    painter.drawText(QRectF(0, Side - 20, Side, 20), Qt::AlignCenter, element["atome"]);
    painter.setFont(textFont(10));
    painter.drawText(QRectF(Side - 60, 3, 55, 18), Qt::AlignRight | Qt::AlignVCenter,
                     element.block().left(1));
    return picture;
}

/// "4489 tp" as "4489 °C (triple point)"; "-" stays.
QString temperature(const QString &cell)
{
    const QStringList parts = cell.split(u' ');
    if (cell == "-"_L1)
        return cell;
    QString text = parts[0] + u" °C"_s;
    if (parts.value(1) == "tp"_L1)
        text += u" (triple point)"_s;
    if (parts.value(1) == "sp"_L1)
        text += u" (sublimes)"_s;
    return text;
}

QString withUnit(const QString &cell, const QString &unit)
{
    return cell == "-"_L1 ? cell : cell + u' ' + unit;
}

struct Fact
{
    QString caption;
    QString value;
};

/// A minus sign before digits, a dash for what is not known.
QString typeset(QString value)
{
    static const QRegularExpression negative(u"-(?=[0-9])"_s);
    static const QRegularExpression unknown(u"(?<![^ ])-(?![^ ])"_s);
    return value.replace(negative, u"−"_s).replace(unknown, u"–"_s);
}

/// A caption above its value.
void paintFact(QPainter &painter, const Fact &fact, double x, double y)
{
    setType(painter, SoftInk, 11);
    painter.drawText(QPointF(x, y), fact.caption);
    setType(painter, Ink, 14);
    painter.drawText(QPointF(x, y + 17), typeset(fact.value));
}

void paintHeader(QPainter &painter, const Element &element, int width, int height)
{
    painter.fillRect(0, 0, width, height, tint(element.colour(), 0.35));
    setType(painter, Ink, 46, true);
    painter.drawText(QRectF(18, 0, 110, height), Qt::AlignLeft | Qt::AlignVCenter, element["symb"]);
    painter.setFont(textFont(26, true));
    painter.drawText(QPointF(126, 36), element["atome"]);
    painter.setFont(textFont(13));
    painter.drawText(QPointF(126, 60), u"Atomic number %1"_s.arg(element["nbato"]));
    painter.drawText(QRectF(0, 46, width - 18, 18), Qt::AlignRight,
                     u"%1, %2"_s.arg(element["famille"], element.block()));
}

QImage drawLargeCard(const Element &element)
{
    constexpr int Side = 480;
    constexpr int Header = 76;
    QImage picture = blankPicture(Side, Side);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(picture.rect(), tint(element.colour(), 0.08));
    paintHeader(painter, element, Side, Header);
    paintShells(painter, element, {345, 204}, 122, 2.6);

    const std::array beside{
        Fact{u"Relative atomic mass"_s, element["masseato"]}, Fact{u"Electron configuration"_s, {}},
        Fact{u"Electrons in shells"_s, shellList(element)},   Fact{u"State at 25 °C"_s, element["etat"]},
        Fact{u"Crystal structure"_s, element["cristallo"]},
    };
    double y = Header + 28;
    for (const Fact &fact : beside) {
        paintFact(painter, fact, 18, y);
        y += 48;
    }
    painter.setPen(Ink);
    ScriptText::configuration(element["elecconf"], 14).paint(painter, 18, Header + 28 + 48 + 17);
    const std::array below{
        Fact{u"Density"_s, withUnit(element["densite"], u"g/cm³"_s)},
        Fact{u"Electronegativity (Pauling)"_s, element["electroneg"]},
        Fact{u"Melting point"_s, temperature(element["melt"])},
        Fact{u"Boiling point"_s, temperature(element["boilt"])},
        Fact{u"First ionisation energy"_s, withUnit(element["ionis"], u"eV"_s)},
        Fact{u"Oxidation states"_s, element["oxi"]},
        Fact{u"Radius: covalent / metallic / van der Waals"_s, withUnit(element["rayon"], u"Å"_s)},
    };
    y = 345;
    for (int i = 0; i < int(below.size()); ++i) {
        const int row = i / 2;
        paintFact(painter, below[i], i % 2 ? 208 : 18, y + row * 36);
    }
    return picture;
}

const QColor SharedColour(0x6b, 0x73, 0x7b);

/// The small card that the last elements share. It names none of them.
QImage drawSmallSharedCard(const Table &table)
{
    constexpr int Side = 160;
    QImage picture = blankPicture(Side, Side);
    QPainter painter(&picture);
    painter.fillRect(picture.rect(), tint(SharedColour, 0.13));
    painter.fillRect(0, Side - 20, Side, 20, tint(SharedColour, 0.35));
    setType(painter, Ink, 30, true);
    painter.drawText(QRectF(0, 30, Side, 40), Qt::AlignCenter,
                     u"%1–%2"_s.arg(LastCard).arg(table.rowCount()));
    painter.setFont(textFont(13));
    painter.drawText(QRectF(0, 76, Side, 20), Qt::AlignCenter, u"superheavy"_s);
    painter.setFont(textFont(11, true));
    painter.drawText(QRectF(0, Side - 20, Side, 20), Qt::AlignCenter,
                     u"Elements %1 to %2"_s.arg(LastCard).arg(table.rowCount()));
    return picture;
}

/// The large card that they share lists them.
QImage drawLargeSharedCard(const Table &table)
{
    constexpr int Side = 480;
    constexpr int Header = 76;
    QImage picture = blankPicture(Side, Side);
    QPainter painter(&picture);
    painter.fillRect(picture.rect(), tint(SharedColour, 0.08));
    painter.fillRect(0, 0, Side, Header, tint(SharedColour, 0.35));
    setType(painter, Ink, 26, true);
    painter.drawText(QRectF(18, 0, Side, Header), Qt::AlignLeft | Qt::AlignVCenter,
                     u"Elements %1 to %2"_s.arg(LastCard).arg(table.rowCount()));
    double y = Header + 34;
    for (int row = LastCard - 1; row < table.rowCount(); ++row, y += 29) {
        const Element element = readElement(table, row);
        painter.setFont(textFont(14));
        painter.drawText(QPointF(18, y), element["nbato"]);
        painter.drawText(QPointF(126, y), element["atome"]);
        painter.setFont(textFont(14, true));
        painter.drawText(QPointF(70, y), element["symb"]);
        ScriptText::configuration(element["elecconf"], 14).paint(painter, 270, y);
    }
    return picture;
}

} // namespace

QList<int> electronsInShells(const QString &configuration)
{
    static const QRegularExpression subshell(u"^([1-7])[spdf]([1-9][0-9]?)$"_s);
    QList<int> shells;
    for (const QString &part : configuration.split(u' ')) {
        const QRegularExpressionMatch match = subshell.match(part);
        if (!match.hasMatch())
            return {};
        const int shell = match.captured(1).toInt();
        if (shells.size() < shell)
            shells.resize(shell);
        shells[shell - 1] += match.captured(2).toInt();
    }
    return shells;
}

char blockOf(int atomicNumber)
{
    for (const int gas : {0, 2, 10, 18, 36, 54, 86}) {
        if (atomicNumber == gas + 1 || atomicNumber == gas + 2)
            return 's';
    }
    for (const int gas : {10, 18, 36, 54, 86, 118}) {
        if (atomicNumber > gas - 6 && atomicNumber <= gas)
            return 'p';
    }
    return (atomicNumber >= 58 && atomicNumber <= 71) || (atomicNumber >= 90 && atomicNumber <= 103) ? 'f'
                                                                                                     : 'd';
}

void drawElements(const QString &data, const PictureFolder &pictures)
{
    const Table table = Table::read(data + u"/tables/Elements.tsv"_s);
    if (table.rowCount() < LastCard)
        table.fail(table.rowCount() - 1, u"the table ends before element %1"_s.arg(LastCard));
    for (int row = 0; row < LastCard - 1; ++row) {
        const Element element = readElement(table, row);
        pictures.write(u"elements/%1.jpg"_s.arg(element.number()), drawSmallCard(element));
        pictures.write(u"elements/%1b.jpg"_s.arg(element.number()), drawLargeCard(element));
    }
    pictures.write(u"elements/%1.jpg"_s.arg(LastCard), drawSmallSharedCard(table));
    pictures.write(u"elements/%1b.jpg"_s.arg(LastCard), drawLargeSharedCard(table));
}
