#pragma once

#include "store/jet/jetrow.h"
#include "store/jet/jettext.h"

#include <QSet>
#include <memory>
#include <optional>

/// Goes through the rows of a table once, in their stored order: pages ascending, then slot by slot.
///
/// A deleted row is left out; a row that moved for want of room comes at its first place. More or fewer rows
/// than the table announces are damage.
class JetCursor final
{
public:
    JetCursor(std::shared_ptr<const JetPages> pages, JetDefinition definition);

    /// Moves to the next row, at first to the first; false behind the last. RuntimeError DatabaseFailure on
    /// damage.
    bool next();

    /// The row of the last next(), which must have been true.
    const JetRow &row() const { return *m_row; }

    /// A cell of that row as text, nothing if it is Null. Errors as in JetTexts.
    std::optional<QString> text(const JetColumn &column);

    /// The same behind what @p text holds already; false and nothing if it is Null.
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
