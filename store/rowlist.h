#pragma once

#include <QList>
#include <QObject>
#include <QString>

/// One list of the system: rows of a text and numbered sub-items, all text, in the order of the table they
/// come from.
///
/// The rows are the only copy of the data; views show them, searches and reports read them. Rows count from 0
/// here, where the system counts from 1. The texts lie one behind the other in a single one: tens of
/// thousands of small ones would take a start longer to make than the file to read.
class RowList final : public QObject
{
    Q_OBJECT

public:
    int rowCount() const { return int(m_firstCells.size()); }

    /// The row's own text. A row that is not there is RuntimeError 9.
    QString text(int row) const { return cell(row, 0).toString(); }

    /// Sub-item @p number, from 1; empty where the row has none of that number. RuntimeError 9 as above.
    QString subItem(int row, int number) const { return cell(row, number).toString(); }

    /// The same, 0 for the row's own text, for those who go through all rows. It ends with the next change.
    QStringView cell(int row, int number) const;

    /// Filling goes row by row without a signal; filled() tells the views once.
    void append(QStringView text);

    /// Sub-items are added to the last row in rising order.
    void appendSubItem(QStringView text);

    void filled() { Q_EMIT reset(); }
    void clear();

    bool gridLines() const { return m_gridLines; }
    void setGridLines(bool on);

Q_SIGNALS:
    void reset();
    void gridLinesChanged();

private:
    QString m_texts;               ///< of all cells
    QList<qsizetype> m_ends;       ///< of each cell's text in m_texts
    QList<qsizetype> m_firstCells; ///< of each row in m_ends
    bool m_gridLines = false;
};
