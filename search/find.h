#pragma once

#include <QString>
#include <optional>

class RowList;

/// Finding rows of a list by their text. Sub-items are not searched.
namespace Find {

enum class Direction { Previous = 0, Next = 1 };

/// Where a walk through the hits stands. Both count from 1; 0 before the first Next.
struct Position
{
    int hit; ///< ordinal among the hits
    int row; ///< of the searched list
};

/// Fills @p hits with the texts of the first @p limit rows of @p searched that contain @p text, in their
/// order.
///
/// A list with fewer rows than the limit is RuntimeError 9 at its end; the hits up to there stay.
void gather(const RowList &searched, int limit, const QString &text, Qt::CaseSensitivity caseSensitivity,
            RowList &hits);

/// One step on from @p current, or nothing if it stands at the last hit, or the first one, already.
///
/// The walk forward looks for the hit's text from the row equal to the hit's ordinal on, which the hit cannot
/// precede; the walk backward looks upward from the current row. So of rows with the same text the first that
/// lies at or behind the ordinal is found, and again for the next such hit. A text that is not met before
/// the list ends is RuntimeError 9, an ordinal above 32767 is RuntimeError 6.
std::optional<Position> walk(const RowList &searched, const RowList &hits, Position current,
                             Direction direction);

} // namespace Find
