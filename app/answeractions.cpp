#include "app/answeractions.h"

#include "app/ownactions.h"
#include "calc/calculationspane.h"
#include "calc/frmformula.h"
#include "calc/frmstock.h"
#include "core/fileerrors.h"
#include "core/module1.h"
#include "core/numbers.h"
#include "store/datastore.h"
#include "widgets/controls.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace {

// In a user's own database an element may have no mass; formulas cannot contain it then.
AtomicMasses atomicMasses(const MemoryTables &tables)
{
    AtomicMasses masses;
    for (int row = 0; row < tables.ElementData.rowCount(); ++row) {
        const QString mass = tables.ElementData(row, ElementColumn::AtomicMass);
        QString number = mass;
        if (Numbers::parseInvariant(number.remove(u'[').remove(u']')).value_or(0) > 0)
            masses.insert(tables.ElementData(row, ElementColumn::Symbol), mass);
    }
    return masses;
}

QList<StockReagent> stockReagents(const QString &file)
{
    try {
        return StockReagents::parse(QString::fromUtf8(FileErrors::readWhole(file)));
    } catch (const RuntimeError &) {
        return {}; // the window says so, and takes typed figures
    }
}

} // namespace

AnswerActions::AnswerActions(const OwnActions &actions, const Module1 &module, const DataStore &store,
                             QWidget &form1)
    : m_module(module), m_store(store), m_form1(form1), m_molarMass(actions.action(OwnAction::MolarMass)),
      m_stock(actions.action(OwnAction::Stock))
{
    connect(&m_molarMass, &QAction::triggered, this, &AnswerActions::openMolarMass);
    connect(&m_stock, &QAction::triggered, this, &AnswerActions::openStock);
}

void AnswerActions::connectTo(CalculationsPane &pane)
{
    m_pane = &pane;
    connect(&pane, &CalculationsPane::molarMassWanted, &m_molarMass, &QAction::trigger);
    connect(&pane, &CalculationsPane::stockWanted, &m_stock, &QAction::trigger);
}

void AnswerActions::openMolarMass()
{
    const QString field = m_pane && Controls::isShown(*m_pane) ? m_pane->massField() : QString();
    auto *window = new frmFormula(atomicMasses(m_store.tables), field, m_form1);
    connect(window, &frmFormula::massChosen, this, [this](const QString &mass) { m_pane->putMass(mass); });
    window->showAboveOwner();
}

void AnswerActions::openStock()
{
    const QString file = m_module.shippedFile(u"stock_reagents.tsv"_s);
    (new frmStock(stockReagents(file), m_form1))->showAboveOwner();
}
