#pragma once

#include "store/databaseconnection.h"
#include "store/rowsource.h"

#include <QList>
#include <optional>

/// The rows that a SELECT statement gives, forward and once, in the stored order of the table.
///
/// Columns are those that the statement names, in its order; a table may have more. A Null is told apart from
/// an empty text: it has no text, and reading it is an error.
class Recordset final : public RowSource
{
public:
    /// Stands on the first row, or at the end of an empty table. RuntimeError: TableNotFound for a missing
    /// table, ColumnNotFound for a missing column, ObjectClosed if @p connection is not open, DatabaseFailure
    /// for damage or a statement of another form.
    Recordset(const QString &statement, const DatabaseConnection &connection);

    bool atEnd() const override { return m_atEnd; }
    QStringView field(int index) const override;

    /// Damage to the next row is RuntimeError DatabaseFailure; the recordset is then at its end.
    void moveNext() override;

private:
    /// Where a field's text ends; it begins where the one before ends.
    struct Field
    {
        qsizetype end = 0;
        bool isNull = false;
    };

    void fetch();

    QList<JetColumn> m_columns;
    std::optional<JetCursor> m_cursor;
    QString m_texts; ///< of all fields of the row, one behind the other
    QList<Field> m_fields;
    bool m_atEnd = false;
};
