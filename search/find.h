#pragma once

#include <QString>
#include <optional>

class RowList;

/// Finding rows of a list by their text. Sub-items are not searched.
namespace Find {

enum class Direction { Previous = 0, Next = 1 };

/// Position of a walk through the hits. Both count from 1; 0 before the first Next.
struct Position
{
    int hit; ///< ordinal among the hits
    int row; ///< of the searched list
};

/// Fills @p hits with the texts, in list order, of the first @p limit rows of @p searched that contain @p
/// text.
///
/// RuntimeError 9 at the end of a list with fewer rows than the limit; the hits up to there stay.
void gather(const RowList &searched, int limit, const QString &text, Qt::CaseSensitivity caseSensitivity,
            RowList &hits);

/// One step from @p current, or nothing at the last or the first hit.
///
/// Next looks for the text of hit k from row k down, since hit k is never above row k; Previous looks up from
/// the current row. Several rows with the same text may therefore all lead to one of them. RuntimeError 9 if
/// the list ends before the text is found, 6 for an ordinal above 32767.
std::optional<Position> walk(const RowList &searched, const RowList &hits, Position current,
                             Direction direction);

} // namespace Find
