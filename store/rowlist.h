#pragma once

#include <QList>
#include <QObject>
#include <QString>

/// One list of the system. Each row is a text with numbered sub-items, in the order of the source table.
///
/// The rows are the only copy of the data: views, searches and reports all read them. Rows count from 0 here,
/// where the system counts from 1. All texts are joined into one: creating tens of thousands of small strings
/// would take longer than reading the file.
class RowList final : public QObject
{
    Q_OBJECT

public:
    int rowCount() const { return int(m_firstCells.size()); }

    /// The text of the row. RuntimeError 9 if there is no such row.
    QString text(int row) const { return cell(row, 0).toString(); }

    /// Sub-item @p number, from 1; empty if the row has no such sub-item. RuntimeError 9 as above.
    QString subItem(int row, int number) const { return cell(row, number).toString(); }

    /// The same without a copy, with 0 for the text of the row. Valid until the list changes.
    QStringView cell(int row, int number) const;

    /// Adding a row emits no signal; call filled() once at the end to update the views.
    void append(QStringView text);

    /// Adds the next sub-item to the last row.
    void appendSubItem(QStringView text);

    void filled() { Q_EMIT reset(); }
    void clear();

    /// Why the list has no rows, in words for the user; empty if there is nothing to say. clear() resets it.
    const QString &whyEmpty() const { return m_whyEmpty; }
    void setWhyEmpty(const QString &text) { m_whyEmpty = text; }

    /// The group of rows of a load step that is in this list, both counted as in TableCatalog; step 0 for
    /// none.
    struct Origin
    {
        int step = 0;
        int group = 0;
    };
    const Origin &origin() const { return m_origin; }
    void setOrigin(const Origin &origin) { m_origin = origin; }

    bool gridLines() const { return m_gridLines; }
    void setGridLines(bool on);

Q_SIGNALS:
    void reset();
    void gridLinesChanged();

private:
    QString m_texts;               ///< of all cells
    QList<qsizetype> m_ends;       ///< of each cell's text in m_texts
    QList<qsizetype> m_firstCells; ///< of each row in m_ends
    QString m_whyEmpty;
    Origin m_origin;
    bool m_gridLines = false;
};
