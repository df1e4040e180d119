#include "store/rowlist.h"

#include "core/runtimeerror.h"

using namespace Qt::StringLiterals;

QStringView RowList::cell(int row, int number) const
{
    if (row < 0 || row >= rowCount())
        throw RuntimeError(ErrorNumber::Subscript, u"row %1"_s.arg(row + 1));
    const qsizetype cell = m_firstCells[row] + number;
    const qsizetype nextRow = row + 1 < rowCount() ? m_firstCells[row + 1] : m_ends.size();
    if (number < 0 || cell >= nextRow)
        return {};
    const qsizetype begin = cell == 0 ? 0 : m_ends[cell - 1];
    return QStringView(m_texts).sliced(begin, m_ends[cell] - begin);
}

void RowList::append(QStringView text)
{
    m_firstCells.append(m_ends.size());
    appendSubItem(text);
}

void RowList::appendSubItem(QStringView text)
{
    m_texts.append(text);
    m_ends.append(m_texts.size());
}

void RowList::clear()
{
    m_texts.clear();
    m_ends.clear();
    m_firstCells.clear();
    m_whyEmpty.clear();
    filled();
}

void RowList::setGridLines(bool on)
{
    if (m_gridLines == on)
        return;
    m_gridLines = on;
    Q_EMIT gridLinesChanged();
}
