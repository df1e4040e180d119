#pragma once

#include "store/datastore.h"
#include "store/loadtable.h"
#include "store/rowsource.h"

#include <QFile>
#include <QStringList>

/// The rows of a delivered table file, as the database gives them.
class TsvSource final : public RowSource
{
public:
    explicit TsvSource(const QString &table)
    {
        QFile file(QStringLiteral(ALEMBRA_SOURCE "/data/tables/%1.tsv").arg(table));
        if (!file.open(QIODevice::ReadOnly))
            throw RuntimeError(ErrorNumber::TableNotFound, table);
        file.readLine();
        while (!file.atEnd())
            m_rows << QString::fromUtf8(file.readLine()).chopped(1).split(QLatin1Char('\t'));
    }

    bool atEnd() const override { return m_row >= m_rows.size(); }
    QStringView field(int index) const override
    {
        if (atEnd())
            throw RuntimeError(ErrorNumber::PastEnd);
        return m_rows[m_row][index];
    }
    void moveNext() override
    {
        if (atEnd())
            throw RuntimeError(ErrorNumber::PastEnd);
        ++m_row;
    }

    /// Runs load step @p step over the file of @p table; a table longer than its groups ends in silence, as
    /// in a start.
    static void load(int step, const QString &table, DataStore &store)
    {
        TsvSource rows(table);
        try {
            TableLoader::fill(step, rows, store);
        } catch (const RuntimeError &error) {
            if (error.number() != ErrorNumber::PastEnd)
                throw;
        }
    }

private:
    QList<QStringList> m_rows;
    qsizetype m_row = 0;
};
