#include "widgets/rowlistmodel.h"

#include "store/rowlist.h"

QString ListColumn::shown(QString stored) const
{
    if (!unit.isEmpty())
        stored.remove(QLatin1Char(' ') + unit);
    return stored.isEmpty() ? whenEmpty : stored;
}

RowListModel::RowListModel(const RowList &list, QList<ListColumn> columns, QObject *parent)
    : QAbstractTableModel(parent), m_list(list), m_columns(std::move(columns))
{
    connect(&list, &RowList::reset, this, [this] {
        beginResetModel();
        endResetModel();
    });
}

int RowListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_list.rowCount();
}

int RowListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant RowListModel::data(const QModelIndex &index, int role) const
{
    const bool known = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
    if (!known || !index.isValid() || index.row() >= m_list.rowCount())
        return {};
    const QString stored = m_list.cell(index.row(), index.column()).toString();
    return role == Qt::DisplayRole ? stored : m_columns[index.column()].shown(stored);
}

QVariant RowListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 &&
        section < m_columns.size())
        return m_columns[section].title;
    return {};
}
