#include "store/recordset.h"

#include "core/runtimeerror.h"
#include "store/selectstatement.h"

using namespace Qt::StringLiterals;

Recordset::Recordset(const QString &statement, const DatabaseConnection &connection)
{
    const JetFile &file = connection.file();
    const std::optional<SelectStatement> select = SelectStatement::parse(statement);
    if (!select)
        throw RuntimeError(ErrorNumber::DatabaseFailure, statement);
    const JetDefinition table = file.table(select->table);
    for (const QString &name : select->columns) {
        const JetColumn *column = table.find(name);
        if (column == nullptr)
            throw RuntimeError(ErrorNumber::ColumnNotFound, select->table + u'.' + name);
        m_columns.append(*column);
    }
    m_fields.resize(m_columns.size());
    m_cursor.emplace(file.rows(table));
    fetch();
}

void Recordset::fetch()
{
    m_atEnd = true;
    if (!m_cursor->next())
        return;
    m_texts.truncate(0); // keeps the allocated memory
    for (qsizetype index = 0; index < m_columns.size(); ++index) {
        const bool isNull = !m_cursor->appendText(m_columns.at(index), m_texts);
        m_fields[index] = {m_texts.size(), isNull};
    }
    m_atEnd = false;
}

QStringView Recordset::field(int index) const
{
    if (m_atEnd)
        throw RuntimeError(ErrorNumber::PastEnd);
    if (index < 0 || index >= m_fields.size())
        throw RuntimeError(ErrorNumber::Subscript, u"field %1"_s.arg(index));
    if (m_fields[index].isNull)
        throw RuntimeError(ErrorNumber::InvalidNull, m_columns[index].name);
    const qsizetype begin = index == 0 ? 0 : m_fields[index - 1].end;
    return QStringView(m_texts).sliced(begin, m_fields[index].end - begin);
}

void Recordset::moveNext()
{
    if (m_atEnd)
        throw RuntimeError(ErrorNumber::PastEnd);
    fetch();
}
