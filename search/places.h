#pragma once

#include "store/rowlists.h"

#include <span>

/// A place in the program: a row of a list, an element, a page of the help.
struct Place
{
    QString list; ///< ListPlace::list
    int row = -1; ///< zero-based; -1 for none

    bool operator==(const Place &) const = default;
};

/// A sub-item of a list that an answer shows.
struct AnswerColumn
{
    enum Use { Searched, Value }; ///< names, formulas, codes are searched; values are only shown

    int cell;
    const char *label; ///< short, "bp", UTF-8; goes on without a comma if it begins with a blank
    const char *unit = "";
    Use use = Value;
};

/// Where a list is seen.
struct ListPlace
{
    enum Content {
        Any,
        Compounds, ///< each row begins with the name of one
        Recipes    ///< rows with a name only are titles of those below
    };

    const char *list;  ///< object name of the control: "ListView3(26)"; of a pane without lists its frame
    const char *table; ///< what users call it
    int command;       ///< shows the pane, in some cases with tab; 0 for a window of its own
    const char *tabs = nullptr;                         ///< object name of the tab strip
    int tab = 0;                                        ///< from 0
    const char *option = nullptr;                       ///< object name of the radio button
    const RowList &(*rows)(const RowLists &) = nullptr; ///< null: its rows are not a RowList
    std::span<const AnswerColumn> columns = {};
    Content content = Any;
};

/// The one table of where each list is seen. Search, history and "Show in" use it.
namespace Places {

// Controls whose rows are not those of a RowList.
inline constexpr char Elements[] = "Frametable";    ///< row = atomic number - 1
inline constexpr char HelpPages[] = "frmHelpPages"; ///< row = page in the order of the book

/// In the order in which answers of equal rank are shown.
std::span<const ListPlace> all();

/// Null if there is no such list.
const ListPlace *find(QStringView list);

/// The words for the label of a column, "boiling point" for "bp"; empty for one that says it itself.
QString words(const char *label);

} // namespace Places
