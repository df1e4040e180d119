#pragma once

#include "widgets/modulepanel.h"

class ConversionBox;
class Desktop;
class SolverBox;
struct Module1;
struct RowLists;

/// `Frame2`: the solution calculators, the unit conversions, and the constants and SI units.
class CalculationsPane final : public ModulePanel
{
    Q_OBJECT

public:
    CalculationsPane(const Module1 &module, Desktop &desktop, RowLists &lists, QWidget *parent);

    /// Empties the entry fields except those of tabs 4 and 6, after an OK in the options.
    void emptyEntryFields();

    /// The field of the calculator that takes a molar mass, "M1"; empty if the tab has none.
    QString massField() const;
    void putMass(const QString &mass);

Q_SIGNALS:
    /// The buttons of the calculators for the windows of these names were pressed.
    void molarMassWanted();
    void stockWanted();

protected:
    void buildContents() override;

private:
    const Module1 &m_module;
    Desktop &m_desktop;
    RowLists &m_lists;

    SolverBox *m_solver = nullptr; ///< null until the pane is built
    ConversionBox *m_conversions = nullptr;
};
