#pragma once

#include "store/jet/jetrow.h"
#include "store/jet/jettext.h"

#include <QSet>
#include <memory>
#include <optional>

/// Reads the rows of a table once, in stored order: pages ascending, then slot by slot.
///
/// Deleted rows are skipped. A row that was moved to another page comes at its original place. More or fewer
/// rows than the definition says are damage.
class JetCursor final
{
public:
    JetCursor(std::shared_ptr<const JetPages> pages, JetDefinition definition);

    /// Moves to the next row, the first call to the first row. False after the last one. RuntimeError
    /// DatabaseFailure on damage.
    bool next();

    /// The current row. next() must have returned true.
    const JetRow &row() const { return *m_row; }

    /// A cell of the current row as text; nothing if it is Null. Errors as in JetTexts.
    std::optional<QString> text(const JetColumn &column);

    /// Appends the cell to @p text. False, and nothing appended, if it is Null.
    bool appendText(const JetColumn &column, QString &text);

private:
    JetBytes movedRow(JetRowPointer pointer);

    std::shared_ptr<const JetPages> m_pages;
    JetDefinition m_definition;
    JetTexts m_texts;
    QList<quint32> m_dataPages;
    qsizetype m_nextPage = 0;
    QList<JetSlot> m_slots;
    qsizetype m_nextSlot = 0;
    QSet<JetRowPointer> m_moved;
    quint32 m_rows = 0;
    std::optional<JetRow> m_row;
};
