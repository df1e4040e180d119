#pragma once

#include <QObject>
#include <QStringList>

/// One list of the system: rows of a text and numbered sub-items, all text, in the order of the table they
/// come from.
///
/// The rows are the only copy of the data; views show them, searches and reports read them. Rows count from 0
/// here, where the system counts from 1.
class RowList final : public QObject
{
    Q_OBJECT

public:
    int rowCount() const { return int(m_rows.size()); }

    /// The row's own text. A row that is not there is RuntimeError 9.
    const QString &text(int row) const;

    /// Sub-item @p number, from 1; empty where the row has none of that number. RuntimeError 9 as above.
    QString subItem(int row, int number) const;

    /// Filling goes row by row without a signal; filled() tells the views once. @p cells is how many texts
    /// the row will have, with its own.
    void append(const QString &text, qsizetype cells = 1)
    {
        m_rows.append(QStringList());
        m_rows.last().reserve(cells);
        m_rows.last().append(text);
    }

    /// Sub-items are added to the last row in rising order.
    void appendSubItem(const QString &text) { m_rows.last().append(text); }

    void filled() { Q_EMIT reset(); }
    void clear();

    bool gridLines() const { return m_gridLines; }
    void setGridLines(bool on);

Q_SIGNALS:
    void reset();
    void gridLinesChanged();

private:
    const QStringList &row(int row) const;

    QList<QStringList> m_rows;
    bool m_gridLines = false;
};
