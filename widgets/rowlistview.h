#pragma once

#include "widgets/rowlistmodel.h"

#include <QTreeView>

class RowListDelegate;

/// A report-view list on the screen: the rows of one RowList in columns of fixed width, one selected row.
///
/// The column titles on the screen are labels of their own above it (TitleFrame); the titles given here name
/// the columns to copied text and to screen readers. The context menu copies the selected row (Ctrl+C) or
/// the list with its titles (Ctrl+Shift+C), as tab-separated text and as an HTML table. A text that does not
/// fit shows whole on hover, and what the sign of general knowledge means. An empty list shows why, if it
/// knows.
class RowListView final : public QTreeView
{
    Q_OBJECT

public:
    /// @p list outlives the view; @p name is the list's name in the system.
    RowListView(const QString &name, RowList &list, QList<ListColumn> columns, QWidget *parent);

    /// Shows rows that have a text and nothing else as headings of those below them: title and ingredients.
    void showAsRecipes();

    /// Zero-based; -1 without a selection.
    int selectedRow() const;

    /// Selects the row and scrolls it into view.
    void selectRow(int row);

    const QList<ListColumn> &columns() const { return m_model->columns(); }

    /// The row of the database that @p row came from.
    TableRow tableRow(int row) const { return m_model->tableRow(row); }

    /// Nothing without a selected row.
    void copyRow();
    void copyTable();

Q_SIGNALS:
    /// A click on a row, or its choice by the keyboard. Zero-based.
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
