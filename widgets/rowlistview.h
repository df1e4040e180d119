#pragma once

#include "widgets/rowlistmodel.h"

#include <QTreeView>

class RowListDelegate;

/// The rows of one RowList in columns of fixed width, one selected row.
///
/// The titles on the screen are labels above it (TitleFrame); its own titles are for copied text and screen
/// readers. The context menu is made of the actions that others add. Left and Right move the current cell
/// within the selected row. A text that does not fit shows whole on hover, and so does the meaning of the
/// sign of general knowledge. An empty list shows why, if it knows.
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

    /// Of the selected row in the column that the mouse or the keys chose last; the first one at the
    /// beginning.
    QString cellText() const;

    /// The titles with their units, and the rows without.
    QList<QStringList> cells() const;

    /// Onto the clipboard, rows also as an HTML table. A cell and a row only if one is selected.
    void copyCell() const;
    void copyRow() const;
    void copyTable() const;

    /// Letters are looked for in the first column, whichever is current.
    void keyboardSearch(const QString &search) override;

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
    void spanHeadings();
    void moveInRow(int columns);
    QString rowText(int row) const;

    const RowList &m_list;
    RowListModel *m_model;
    RowListDelegate *m_delegate;
};
