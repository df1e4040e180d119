#pragma once

#include "calc/calcfields.h"

#include <span>

class OptionSlots;
struct TabSolver;

/// A tab of `TabStrip4`: what it is called, what it shows and how it calculates. Everything of the calculator
/// that a tab does not name is hidden on it. A tab without its solver does not compile.
struct CalcTab
{
    const char *caption;
    const char *formula;              ///< the text of `lbln(3)`
    std::array<const char *, 3> over; ///< captions of `lbl2(0)` to `lbl2(2)`; null leaves them as they are
    FieldSet fields;
    FieldSet emptied;   ///< by every click on the tab
    bool asksForLiquid; ///< shows `Option10` and `lbln(0)`
    const TabSolver &solver;
};

/// A field with its label, and its place in the grid of the fields that show together.
struct CalcLabel
{
    Field field;
    int lbl2;            ///< index of the label
    const char *caption; ///< UTF-8
    int row;
    int column;
};

/// An option button of `Option10`: a kind of liquid and its molar entropy of vaporisation.
struct Liquid
{
    int option;
    const char *caption;
    double entropy; ///< J/(mol K)
};

namespace CalcTabs {

/// In the order of the tabs, tab 1 first.
std::span<const CalcTab> tabs();

/// One for each field, in the order in which a tab is read and the Tab key goes.
std::span<const CalcLabel> labels();

/// In the order in which the buttons stand; the first is on at the start.
std::span<const Liquid> liquids();

/// The three fields of tabs 1 to 3, then the fifteen of the array.
std::span<const Field> clearingOrder();

/// What an OK of the options empties, in its order. The fields of tabs 4 and 6 keep their texts.
std::span<const Field> optionsClearingOrder();

/// "TextBoxM7(3)"
QString name(Field field);

/// What slot 0 gives to the `decimales` of the entry fields. RuntimeError 13 if it holds a word.
int decimals(const OptionSlots &OptionSlots);

/// What stands before the gap in the formula of tab 6 that a delta is drawn into, and the gap itself.
inline constexpr char BeforeDelta[] = "P = P* . exp [ - (";
inline constexpr char DeltaGap[] = "   ";

} // namespace CalcTabs
