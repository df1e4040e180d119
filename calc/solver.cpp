#include "calc/calctabs.h"
#include "calc/calculation.h"

using namespace CalcFields;

namespace {

void run(const TabSolver &solver, Calculation &calculation)
{
    if ((calculation.filled() & solver.counted).size() < solver.fewestFilled)
        return calculation.refuse(solver.tooFew);
    if (solver.check)
        solver.check(calculation);
    if (!calculation.outcome().message.isEmpty())
        return;
    for (const Pattern &pattern : solver.patterns) {
        if (!calculation.filled().contains(pattern.filled) || calculation.filled().meets(pattern.empty))
            continue;
        if (const auto *message = std::get_if<const char *>(&pattern.answer))
            return calculation.refuse(*message);
        return std::get<void (*)(Calculation &)>(pattern.answer)(calculation);
    }
}

} // namespace

Calculation::Calculation(const FieldTexts &texts, std::optional<double> vaporisationEntropy)
    : m_texts(texts), m_vaporisationEntropy(vaporisationEntropy)
{
    for (int field = 0; field < FieldCount; ++field) {
        if (!texts[size_t(field)].isEmpty())
            m_filled.insert(Field(field));
    }
}

void Calculation::write(Field field, Checked number)
{
    m_texts[field] = Numbers::formatLocal(number.value());
    m_outcome.changes.append({field, m_texts[field]});
}

Outcome Solver::solve(int tab, const FieldTexts &texts, std::optional<double> vaporisationEntropy)
{
    Calculation calculation(texts, vaporisationEntropy);
    try {
        run(CalcTabs::tabs()[size_t(tab - 1)].solver, calculation);
    } catch (const RuntimeError &error) {
        // Any other failure, such as a text that is not a number or the logarithm of zero, is silent.
        if (error.number() == ErrorNumber::DivisionByZero || error.number() == ErrorNumber::Overflow)
            calculation.refuse("Impossible to perform calculation");
    }
    return calculation.outcome();
}
