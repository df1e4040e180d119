#pragma once

#include "widgets/modulepanel.h"

class ConversionBox;
class Desktop;
class SolverBox;
class UnitLists;
struct Module1;
struct RowLists;

/// `Frame2`: the solution calculators, the unit conversions, and the constants and SI units.
class CalculationsPane final : public ModulePanel
{
    Q_OBJECT

public:
    /// Everything given outlives the pane; @p units are filled before the pane is built.
    CalculationsPane(const Module1 &module, Desktop &desktop, RowLists &lists, const UnitLists &units,
                     QWidget *parent);

    /// What an OK of the options does: empties the entry fields, apart from those of the tabs 4 and 6.
    void emptyEntryFields();

protected:
    void buildContents() override;

private:
    const Module1 &m_module;
    Desktop &m_desktop;
    RowLists &m_lists;
    const UnitLists &m_units;

    SolverBox *m_solver = nullptr; ///< null until the pane is built
    ConversionBox *m_conversions = nullptr;
};
