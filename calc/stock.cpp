#include "calc/stock.h"

#include "core/numbers.h"

QList<StockReagent> StockReagents::parse(const QString &text)
{
    enum Column { Name, Formula, MolarMass, Percent, Density, Molarity, Safety, Source, Note, Columns };
    QList<StockReagent> reagents;
    const QStringList lines = text.split(u'\n').sliced(1);
    for (const QString &line : lines) {
        const QStringList cells = line.split(u'\t');
        if (cells.size() != Columns)
            continue;
        const auto number = [&](Column column) { return Numbers::parseInvariant(cells[column]).value_or(0); };
        const Stock stock{number(Percent), number(Density), number(MolarMass)};
        if (stock.isPossible())
            reagents << StockReagent{cells[Name], stock, cells[Safety]};
    }
    return reagents;
}
