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

void openMolarMass(CalculationsPane &pane, const MemoryTables &tables, QWidget &form1)
{
    const QString field = Controls::isShown(pane) ? pane.massField() : QString();
    auto *window = new frmFormula(atomicMasses(tables), field, form1);
    QObject::connect(window, &frmFormula::massChosen, &pane, &CalculationsPane::putMass);
    window->showAboveOwner();
}

void openStock(const Module1 &module, QWidget &form1)
{
    const QString file = module.shippedFile(u"stock_reagents.tsv"_s);
    (new frmStock(stockReagents(file), form1))->showAboveOwner();
}

} // namespace

void connectAnswerActions(const OwnActions &actions, CalculationsPane &pane, const Module1 &module,
                          const DataStore &store, QWidget &form1)
{
    QAction &molarMass = actions.action(OwnAction::MolarMass);
    QAction &stock = actions.action(OwnAction::Stock);
    QObject::connect(&pane, &CalculationsPane::molarMassWanted, &molarMass, &QAction::trigger);
    QObject::connect(&pane, &CalculationsPane::stockWanted, &stock, &QAction::trigger);
    QObject::connect(&molarMass, &QAction::triggered, &form1,
                     [&pane, &store, &form1] { openMolarMass(pane, store.tables, form1); });
    QObject::connect(&stock, &QAction::triggered, &form1, [&module, &form1] { openStock(module, form1); });
}
