#pragma once

#include "core/value.h"

#include <array>

/// The slots with a name in the code. The others contain unit names.
enum class Slot {
    Decimals = 0,
    GridLines = 53,
    MenuStyle = 54,
    Structures = 55,
    TipAtStart = 56,
    ToolTips = 57,
    ElementZoom = 58,
    ElementPicture = 74,
    ReportStructures = 75,
    ReportElementPictures = 76,
    ReportColours = 77,
    ReportPolarityChart = 78,
    ReportIsotopes = 79,
    TrayBalloon = 80,
    MinimiseToTray = 81,
    ReportGeneticCode = 82,
    ReportSdsPage = 83,
    ReportFluorochromes = 85,
    StartModuleOn = 86,
    StartModule = 88,
    IrInFrequency = 89,
};

/// All settings of the program and the unit names of the conversions: 101 values, identified by position.
///
/// Their file, `options_uk.ini`, has one value per line, in Windows-1252 with CR LF; texts are quoted.
/// Reading continues where the last read ended. Writing stops at the last value read or added, so the file
/// keeps its length otherwise.
class OptionSlots final
{
public:
    static constexpr int LastIndex = 100;

    /// RuntimeError 9 for an index outside 0 to 100.
    const Value &operator()(int index) const;
    Value &operator()(int index);
    const Value &operator()(Slot slot) const { return (*this)(int(slot)); }
    Value &operator()(Slot slot) { return (*this)(int(slot)); }

    /// Fills the slots from the file. RuntimeError 53, 75 or 70 if it cannot be opened, 9 at the 102nd value.
    void read(const QString &path);

    /// Adds the values that @p delivered has after the last one read; write() writes them too.
    void addMissing(const OptionSlots &delivered);

    /// Overwrites the file in place, without a backup. RuntimeError 70, 75, 76 or 61.
    void write(const QString &path) const;

    /// Index of the last value read or added; -1 before reading and for an empty file.
    int lastIndex() const { return m_readCount - 1; }

private:
    std::array<Value, LastIndex + 1> m_slots;
    int m_readCount = 0;
};
