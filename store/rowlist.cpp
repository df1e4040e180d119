#include "store/rowlist.h"

#include "core/runtimeerror.h"

const QStringList &RowList::row(int row) const
{
    if (row < 0 || row >= rowCount())
        throw RuntimeError(ErrorNumber::Subscript, QStringLiteral("row %1").arg(row + 1));
    return m_rows[row];
}

const QString &RowList::text(int row) const
{
    return this->row(row).constFirst();
}

QString RowList::subItem(int row, int number) const
{
    return this->row(row).value(number);
}

void RowList::clear()
{
    m_rows.clear();
    filled();
}

void RowList::setGridLines(bool on)
{
    if (m_gridLines == on)
        return;
    m_gridLines = on;
    Q_EMIT gridLinesChanged();
}
