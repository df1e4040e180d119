#include "elements/elementpanel.h"

#include "core/numbers.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct ShownColumn
{
    size_t label; ///< index of `lblatome`
    int column;   ///< of `ElementData`
};

constexpr std::array<ShownColumn, ElementPanel::ValueCount> ShownColumns{{
    {1, 0},
    {0, 1},
    {2, 2},
    {3, 3},
    {4, 4},
    {5, 5},
    {6, 6},
    {7, 7},
    {8, 8},
    {9, 9},
    {10, 11},
    {11, 12},
    {12, 13},
    {14, 10},
    {13, ElementColumn::CrystalStructure},
}};

} // namespace

void ElementPanel::select(int element)
{
    CurrentElement = element;
    fill(CurrentElement);
}

bool ElementPanel::move(Direction direction, bool fromPick)
{
    if (fromPick)
        takeOverPick();
    // The first press of any arrow shows hydrogen and does not move.
    if (!isEmpty() || CurrentElement != 0) {
        const std::optional<int> next = Navigation::step(direction, CurrentElement);
        if (!next)
            return false;
        CurrentElement = *next;
    }
    fill(CurrentElement);
    return true;
}

void ElementPanel::pick(const QString &name)
{
    int row = 0;
    while (m_tables.ElementData(row, ElementColumn::Name) != name)
        ++row;
    LastComboElement = row;
    fill(row);
}

void ElementPanel::fill(int row)
{
    for (const auto [label, column] : ShownColumns)
        lblatome[label] = m_tables.ElementData(row, column);
    CrystalName = lblatome[13];
    Command9Shown = CrystalName != u"-"_s;
    shownElement = row;
    const bool own = row <= LastPictureRow;
    picturePath = picturePathOf((own ? lblatome[2] : u"106"_s) + u".jpg"_s);
    fillIsotopes(row);
    applyPictureOption();
}

void ElementPanel::fillIsotopes(int row)
{
    Label11.fill({});
    const auto column = [&](int i) -> const QString & {
        return m_tables.ElementData(row, ElementColumn::FirstIsotope + i);
    };
    // Five isotopes end at a column that is never filled.
    int i = 0;
    for (; !column(i).isEmpty(); i += 3) {
        for (int each = i; each < i + 3; ++each)
            Label11[size_t(each)] = column(each);
    }
    // One isotope needs 915. Without any the panel is hidden.
    ReyFrame2Height = (i / 3.0 - 1) * 360 + 915;
    ReyFrame2Shown = !Label11[0].isEmpty();
}

QString ElementPanel::picturePathOf(const QString &file) const
{
    return m_module1.shippedFile(u"Data/elements/"_s + file);
}

ElementPanel::Zoom ElementPanel::zoom()
{
    const std::optional<double> number = Numbers::parseLocal(lblatome[2]);
    if (!number)
        throw RuntimeError(ErrorNumber::TypeMismatch, lblatome[2]);
    // Clamped: any number outside the table is the error of the first row outside.
    CurrentElement =
        Numbers::roundHalfToEven(std::clamp(*number - 1, -1.0, double(m_tables.ElementData.rowCount())));
    const QString caption = m_tables.ElementData(CurrentElement, ElementColumn::Name);
    // The selection itself stays changed: the next arrow starts from here.
    CurrentElement = std::min(CurrentElement, LastPictureRow);
    const QString stored = m_tables.ElementData(CurrentElement, ElementColumn::AtomicNumber);
    return {caption, picturePathOf(stored + u"b.jpg"_s)};
}

QString ElementPanel::crystalPicturePath() const
{
    return m_module1.shippedFile(u"Data/cristal/"_s + CrystalName + u".bmp"_s);
}

void ElementPanel::applyPictureOption()
{
    const bool picture = m_module1.OptionSlots(Slot::ElementPicture).equals(1);
    if (!picture || !isEmpty())
        imgatoShown = picture;
}
