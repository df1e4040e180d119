#pragma once

#include "store/databaseconnection.h"
#include "store/rowsource.h"

#include <QList>
#include <optional>

/// The rows of a SELECT statement, read once and forward, in the stored order of the table.
///
/// The columns are those of the statement, in its order; the table may have more. Null is not an empty text:
/// reading a Null field throws.
class Recordset final : public RowSource
{
public:
    /// Positioned on the first row; at the end if the table is empty. RuntimeError: TableNotFound for a
    /// missing table, ColumnNotFound for a missing column, ObjectClosed if @p connection is not open,
    /// DatabaseFailure for damage or a statement of another form.
    Recordset(const QString &statement, const DatabaseConnection &connection);

    bool atEnd() const override { return m_atEnd; }
    QStringView field(int index) const override;

    /// RuntimeError DatabaseFailure if the next row is damaged; the recordset is then at its end.
    void moveNext() override;

private:
    /// Where a field's text ends in m_texts. It starts where the previous field ends.
    struct Field
    {
        qsizetype end = 0;
        bool isNull = false;
    };

    void fetch();

    QList<JetColumn> m_columns;
    std::optional<JetCursor> m_cursor;
    QString m_texts; ///< of all fields of the row, joined
    QList<Field> m_fields;
    bool m_atEnd = false;
};
