#include "calc/calculationspane.h"

#include "calc/constantsbox.h"
#include "calc/conversionbox.h"
#include "calc/solverbox.h"

namespace {

constexpr int Margin = 8;
constexpr int Gap = 12;
constexpr int ConversionWidth = 204;
constexpr int SolverHeight = 180;

} // namespace

CalculationsPane::CalculationsPane(const Module1 &module, Desktop &desktop, RowLists &lists, QWidget *parent)
    : ModulePanel("Frame2", parent), m_module(module), m_desktop(desktop), m_lists(lists)
{}

void CalculationsPane::buildContents()
{
    const QRect room = QRect({}, Size).adjusted(Margin, Margin / 2, -Margin, -Margin / 2);
    const int left = room.width() - ConversionWidth - Gap;
    const int below = SolverHeight + Margin;

    m_solver = new SolverBox(m_module, m_desktop, this);
    m_solver->setGeometry(room.left(), room.top(), left, SolverHeight);
    connect(m_solver, &SolverBox::molarMassWanted, this, &CalculationsPane::molarMassWanted);
    connect(m_solver, &SolverBox::stockWanted, this, &CalculationsPane::stockWanted);
    auto *constants = new ConstantsBox(m_lists, {left, room.height() - below}, this);
    constants->move(room.left(), room.top() + below);
    m_conversions = new ConversionBox(m_module, m_desktop, this);
    m_conversions->setGeometry(room.left() + left + Gap, room.top(), ConversionWidth, room.height());
}

void CalculationsPane::emptyEntryFields()
{
    using namespace CalcFields;
    if (!isBuilt())
        return;
    m_solver->empty({TextBoxM3, TextBoxM4, TextBoxM5, Xn1, Xn2, Xm1, Xm2, M1, M2});
    m_conversions->reset();
}

QString CalculationsPane::massField() const
{
    return isBuilt() ? m_solver->massField() : QString();
}

void CalculationsPane::putMass(const QString &mass)
{
    m_solver->putMass(mass);
}
