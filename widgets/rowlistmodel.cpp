#include "widgets/rowlistmodel.h"

#include "store/rowlist.h"
#include "store/rowremarks.h"
#include "store/tablecatalog.h"

using namespace Qt::StringLiterals;

QString ListColumn::shown(const QString &stored) const
{
    const QString text = withoutUnit(stored);
    return text.isEmpty() ? whenEmpty : text;
}

QString ListColumn::withoutUnit(QString stored) const
{
    return unit.isEmpty() ? stored : stored.remove(u' ' + unit);
}

QString ListColumn::heading() const
{
    return unit.isEmpty() || title.contains(unit) ? title : u"%1 (%2)"_s.arg(title, unit);
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
    if (!index.isValid() || index.row() >= m_list.rowCount())
        return {};
    const QString stored = m_list.cell(index.row(), index.column()).toString();
    switch (role) {
    case Qt::DisplayRole:
        return stored;
    case Qt::AccessibleTextRole:
        return m_columns[index.column()].shown(stored) +
               (isGeneralKnowledge(index) ? u", general knowledge"_s : QString());
    case GeneralKnowledgeRole:
        return isGeneralKnowledge(index);
    default:
        return {};
    }
}

TableRow RowListModel::tableRow(int row) const
{
    return TableCatalog::rowOf(m_list, row);
}

bool RowListModel::isGeneralKnowledge(const QModelIndex &index) const
{
    return index.column() == 0 && RowRemarks::isGeneralKnowledge(tableRow(index.row()));
}

QVariant RowListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 &&
        section < m_columns.size())
        return m_columns[section].title;
    return {};
}
