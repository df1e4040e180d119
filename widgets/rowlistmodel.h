#pragma once

#include "store/tablerow.h"

#include <QAbstractTableModel>
#include <QList>

class RowList;

/// A column of a list on the screen.
struct ListColumn
{
    /// Numbers line up at the decimal point; other texts among them are centred. A wrapped text makes its row
    /// as high as it needs.
    enum class Kind { Text, Number, Wrapped };

    QString title;
    int width; ///< logical pixels
    Kind kind = Kind::Text;
    QString unit = {};      ///< left out of the cells, which the title or the pane has
    QString whenEmpty = {}; ///< shown in an empty cell

    /// What a cell shows for the text @p stored.
    QString shown(const QString &stored) const;

    QString withoutUnit(QString stored) const;

    /// The title, with the unit.
    QString heading() const;
};

/// One RowList as a model. Column 0 is the row's text, column n its sub-item n, as stored; views and screen
/// readers show ListColumn::shown() of it.
class RowListModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Of the first column: whether no value of the row has a document, true or false.
    static constexpr int GeneralKnowledgeRole = Qt::UserRole;

    /// @p list outlives the model.
    RowListModel(const RowList &list, QList<ListColumn> columns, QObject *parent);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// The row of the database that @p row came from.
    TableRow tableRow(int row) const;

    const QList<ListColumn> &columns() const { return m_columns; }

private:
    bool isGeneralKnowledge(const QModelIndex &index) const;

    const RowList &m_list;
    const QList<ListColumn> m_columns;
};
