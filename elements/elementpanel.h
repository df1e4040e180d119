#pragma once

#include "core/module1.h"
#include "elements/navigation.h"
#include "store/memorytables.h"

#include <QString>
#include <array>

/// What the pane of the elements shows and remembers, without its controls.
///
/// Nothing is selected at first: all texts are empty. The selection lasts for the run. Elements are rows of
/// `ElementData`, atomic number - 1; a row that is not there is RuntimeError 9.
class ElementPanel final
{
public:
    static constexpr int ValueCount = 15;
    static constexpr int IsotopeTextCount = 15; ///< five isotopes of three texts

    /// The last row that has pictures of its own; those behind it share them.
    static constexpr int LastPictureRow = 105;

    /// What the zoom window is to show.
    struct Zoom
    {
        QString caption;
        QString picturePath;
    };

    ElementPanel(const Module1 &module1, const MemoryTables &tables) : m_module1(module1), m_tables(tables) {}

    /// A click on the button of @p element.
    void select(int element);

    /// A click on an arrow. False if the walk ends here: then nothing changes but the focus, which goes to
    /// `CurrentElement`. A walk that starts from a pick by name passes @p fromPick.
    bool move(Direction direction, bool fromPick);

    /// A pick from the list of names. `CurrentElement` stays until takeOverPick() or the next move.
    void pick(const QString &name);
    void takeOverPick() { CurrentElement = LastComboElement; }

    /// Also moves `CurrentElement`: to the element on show, or to the last row with a picture if that is
    /// beyond it, while the texts stay. RuntimeError 13 if no atomic number is on show.
    Zoom zoom();

    QString crystalPicturePath() const;

    /// The option "Picture of elements" was changed: the picture of the element or the portrait. Without a
    /// selection the option alone does not show a picture.
    void applyPictureOption();

    bool isEmpty() const { return lblatome[0].isEmpty(); }

    int CurrentElement = 0;
    int LastComboElement = 0; ///< the row found by the last pick
    int shownElement = -1;    ///< the row that the texts come from; -1 while they are empty
    QString CrystalName;

    std::array<QString, ValueCount> lblatome;
    std::array<QString, IsotopeTextCount> Label11; ///< the third of each isotope in letters of a Symbol face
    QString picturePath;
    bool imgatoShown = false;
    bool Picture1Shown = true;
    bool Command9Shown = false;
    bool ReyFrame2Shown = false;
    double ReyFrame2Height = 915; ///< twips

private:
    void fill(int row);
    void fillIsotopes(int row);
    QString picturePathOf(const QString &file) const;

    const Module1 &m_module1;
    const MemoryTables &m_tables;
};
