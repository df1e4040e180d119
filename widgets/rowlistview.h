#pragma once

#include "widgets/rowlistmodel.h"

#include <QTreeView>

class RowListDelegate;

/// The rows of one RowList in columns of fixed width, one selected row.
///
/// The titles on the screen are labels above it (TitleFrame); its own titles are for copied text and screen
/// readers. The context menu copies the selected row (Ctrl+C) or the list with its titles (Ctrl+Shift+C), as
/// tab-separated text and as an HTML table. A text that does not fit shows whole on
/// hover, and so does the meaning of the sign of general knowledge. An empty list shows why, if it knows.
class RowListView final : public QTreeView
{
    Q_OBJECT

public:
    /// @p list outlives the view.
    RowListView(const QString &name, RowList &list, QList<ListColumn> columns, QWidget *parent);

    /// Shows rows with a text in the first column only as headings of those below: title and ingredients.
    void showAsRecipes();

    /// Zero-based; -1 without a selection.
    int selectedRow() const;

    /// Selects the row and scrolls it into view.
    void selectRow(int row);

    const QList<ListColumn> &columns() const { return m_model->columns(); }

    /// The row of the database of @p row.
    TableRow tableRow(int row) const { return m_model->tableRow(row); }

    /// Does nothing without a selected row.
    void copyRow();
    void copyTable();

Q_SIGNALS:
    /// A row was chosen by mouse or keyboard. Zero-based.
    void rowClicked(int row);
    void rowDoubleClicked(int row);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    void buildActions();
    void spanHeadings();
    QString rowText(int row) const;

    const RowList &m_list;
    RowListModel *m_model;
    RowListDelegate *m_delegate;
};
