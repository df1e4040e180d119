#include "store/jet/jetcursor.h"

JetCursor::JetCursor(std::shared_ptr<const JetPages> pages, JetDefinition definition)
    : m_pages(std::move(pages)), m_definition(std::move(definition)), m_texts(*m_pages),
      m_dataPages(m_pages->usageMap(m_definition.ownedPages))
{}

bool JetCursor::next()
{
    m_row.reset();
    for (;;) {
        while (m_nextSlot == m_slots.size()) {
            if (m_nextPage == m_dataPages.size()) {
                if (m_rows != m_definition.rowCount)
                    jetDamage("a table has fewer rows than it announces");
                return false;
            }
            m_slots = m_pages->slotsOf(m_dataPages[m_nextPage++], m_definition.page);
            m_nextSlot = 0;
        }
        const JetSlot &slot = m_slots[m_nextSlot++];
        if (slot.isDeleted)
            continue;
        if (m_rows++ == m_definition.rowCount)
            jetDamage("a table has more rows than it announces");
        m_row.emplace(slot.isPointer ? movedRow(slot.bytes.u32(0)) : slot.bytes, m_definition);
        return true;
    }
}

// The slot of a moved row is flagged as deleted, so that the row comes only once. A row that moves again gets
// a new pointer in its original slot, so pointers never form a chain.
JetBytes JetCursor::movedRow(JetRowPointer pointer)
{
    if (m_moved.contains(pointer))
        jetDamage("two rows of a table are the same");
    m_moved.insert(pointer);
    return m_pages->row(pointer, m_definition.page, true);
}

std::optional<QString> JetCursor::text(const JetColumn &column)
{
    QString text;
    return appendText(column, text) ? std::optional(text) : std::nullopt;
}

bool JetCursor::appendText(const JetColumn &column, QString &text)
{
    constexpr qsizetype OffsetSize = 2; // even an empty text needs that much in its row
    const qsizetype before = text.size();
    if (column.type == Jet::Type::Boolean) {
        text += JetTexts::fromBoolean(m_row->bit(column));
    } else if (const std::optional<JetBytes> cell = m_row->cell(column)) {
        m_texts.append(column, *cell, text);
    } else {
        return false;
    }
    m_pages->spend(text.size() - before + OffsetSize);
    return true;
}
