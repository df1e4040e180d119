#include "search/find.h"

#include "core/runtimeerror.h"
#include "store/rowlist.h"

#include <QScopeGuard>
#include <limits>

void Find::gather(const RowList &searched, int limit, const QString &text,
                  Qt::CaseSensitivity caseSensitivity, RowList &hits)
{
    hits.clear();
    const auto updateViews = qScopeGuard([&hits] { hits.filled(); });
    for (int SearchCursor = 1; SearchCursor <= limit; ++SearchCursor) {
        const QStringView row = searched.cell(SearchCursor - 1, 0);
        if (row.contains(text, caseSensitivity))
            hits.append(row);
    }
}

std::optional<Find::Position> Find::walk(const RowList &searched, const RowList &hits, Position current,
                                         Direction direction)
{
    const bool next = direction == Direction::Next;
    if (next ? current.hit >= hits.rowCount() : current.hit <= 1)
        return {};
    const int step = next ? 1 : -1;
    Position found{current.hit + step, current.row};
    if (found.hit > std::numeric_limits<qint16>::max()) // ordinals are 16-bit numbers
        throw RuntimeError(ErrorNumber::Overflow);
    if (next)
        found.row = found.hit;
    const QStringView wanted = hits.cell(found.hit - 1, 0);
    while (searched.cell(found.row - 1, 0) != wanted)
        found.row += step;
    return found;
}
