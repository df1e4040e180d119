#pragma once

#include "calc/calcfields.h"

#include <span>

class OptionSlots;
struct TabSolver;

/// A tab of `TabStrip4`. Fields that it does not name are hidden. A tab without a solver does not compile.
struct CalcTab
{
    const char *caption;
    const char *formula; ///< the text of `lbln(3)`
    FieldSet fields;
    FieldSet emptied; ///< by each click on the tab
    const TabSolver &solver;
    std::array<const char *, 3> labels{}; ///< captions of `lbl2(0)` to `lbl2(2)`; null: unchanged
    bool asksForLiquid = false;           ///< shows `Option10` and `lbln(0)`
    QString (*plain)(const FieldTexts &texts) = nullptr; ///< the line under the fields
    FieldSet molarMasses{};                              ///< fields that take a molar mass in g/mol
};

/// A field with its label, and its place among the fields that are visible together.
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

/// One for each field, in reading and Tab order.
std::span<const CalcLabel> labels();

/// From top to bottom; the first is the default.
std::span<const Liquid> liquids();

/// "TextBoxM7(3)"
QString name(Field field);

/// Slot 0, as the `decimales` of the entry fields. RuntimeError 13 if it is a word.
int decimals(const OptionSlots &slots);

// The formula of tab 6 up to the gap for a delta, and the gap.
inline constexpr char BeforeDelta[] = "P = P* . exp [ - (";
inline constexpr char DeltaGap[] = "   ";

} // namespace CalcTabs
