#pragma once

#include "core/module1.h"
#include "elements/navigation.h"
#include "store/memorytables.h"

#include <QString>
#include <array>

/// What the pane of the elements shows and remembers, without its controls.
///
/// At first nothing is selected and all texts are empty. Elements are rows of `ElementData`, atomic number -
/// 1; RuntimeError 9 for a row that is not there.
class ElementPanel final
{
public:
    static constexpr int ValueCount = 15;
    static constexpr int IsotopeTextCount = 15; ///< five isotopes of three texts

    /// The last row with pictures of its own; later elements share one.
    static constexpr int LastPictureRow = 105;

    /// Contents of the zoom window.
    struct Zoom
    {
        QString caption;
        QString picturePath;
    };

    ElementPanel(const Module1 &module1, const MemoryTables &tables) : m_module1(module1), m_tables(tables) {}

    /// A click on the button of @p element.
    void select(int element);

    /// A click on an arrow; @p fromPick starts from the pick by name. False at the end of the walk: then only
    /// the focus changes, to `CurrentElement`.
    bool move(Direction direction, bool fromPick);

    /// A pick from the list of names. `CurrentElement` stays until takeOverPick() or the next move.
    void pick(const QString &name);
    void takeOverPick() { CurrentElement = LastComboElement; }

    /// Also moves `CurrentElement` to the element shown, at most to the last row with a picture; the texts
    /// stay. RuntimeError 13 if no atomic number is shown.
    Zoom zoom();

    QString crystalPicturePath() const;

    /// After a change of the option "Picture of elements": picture or portrait. Without a selection there is
    /// no picture.
    void applyPictureOption();

    bool isEmpty() const { return lblatome[0].isEmpty(); }

    int CurrentElement = 0;
    int LastComboElement = 0; ///< row of the last pick
    int shownElement = -1;    ///< row of the texts; -1 while they are empty
    QString CrystalName;

    std::array<QString, ValueCount> lblatome;
    std::array<QString, IsotopeTextCount> Label11; ///< the third of each isotope in letters of a Symbol face
    QString picturePath;
    bool imgatoShown = false; ///< else `Picture1` is
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
