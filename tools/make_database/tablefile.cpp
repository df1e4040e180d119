#include "tools/make_database/tablefile.h"

#include "core/codepage.h"
#include "tools/make_database/builderror.h"

#include <QFile>
#include <QStringDecoder>
#include <algorithm>

namespace {

class Reader
{
public:
    Reader(const QString &path, const TableRules &rules) : m_path(path), m_rules(rules) {}

    TableData read()
    {
        QFile file(m_path);
        if (!file.open(QIODevice::ReadOnly))
            throw BuildError(m_path, 1, file.errorString());
        QByteArray bytes = file.readAll();
        if (bytes.endsWith('\n'))
            bytes.chop(1);

        TableData table{m_rules.name, m_path, m_rules.columns, {}};
        for (const QByteArray &line : bytes.split('\n')) {
            ++m_line;
            const QStringList fields = fieldsOf(line);
            if (m_line == 1)
                checkHeader(fields);
            else
                table.rows.append(checkedRow(fields));
        }
        if (m_rules.rows != 0 && table.rows.size() != m_rules.rows)
            fail(QStringLiteral("%1 rows, but %2 are needed").arg(table.rows.size()).arg(m_rules.rows));
        return table;
    }

private:
    [[noreturn]] void fail(const QString &message) const { throw BuildError(m_path, m_line, message); }

    QStringList fieldsOf(const QByteArray &line) const
    {
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString text = decoder(line);
        if (decoder.hasError())
            fail(QStringLiteral("not valid UTF-8"));
        return text.split(QLatin1Char('\t'));
    }

    void checkHeader(const QStringList &names) const
    {
        for (const QString &name : names) {
            if (names.count(name) > 1)
                fail(QStringLiteral("duplicate column \"%1\"").arg(name));
            if (!m_rules.columns.contains(name))
                fail(QStringLiteral("unknown column \"%1\"").arg(name));
        }
        for (const QString &name : m_rules.columns) {
            if (!names.contains(name))
                fail(QStringLiteral("missing column \"%1\"").arg(name));
        }
        if (names != m_rules.columns)
            fail(QStringLiteral("the columns must be %1").arg(m_rules.columns.join(QStringLiteral(", "))));
    }

    QStringList checkedRow(const QStringList &fields) const
    {
        if (fields.size() != m_rules.columns.size()) {
            fail(QStringLiteral("%1 fields, but there are %2 columns")
                     .arg(fields.size())
                     .arg(m_rules.columns.size()));
        }
        for (qsizetype i = 0; i < fields.size(); ++i)
            checkCell(m_rules.columns[i], fields[i]);
        return fields;
    }

    void checkCell(const QString &column, const QString &cell) const
    {
        if (cell.size() > m_rules.longestCell) {
            fail(QStringLiteral("%1 has %2 characters, %3 is the limit")
                     .arg(column)
                     .arg(cell.size())
                     .arg(m_rules.longestCell));
        }
        for (const QChar c : cell) {
            if (c < u' ')
                fail(QStringLiteral("%1 holds a control character").arg(column));
            if (!m_rules.anyCharacters && !CodePage::contains(c))
                fail(QStringLiteral("%1 holds \"%2\", which reports cannot print").arg(column, QString(c)));
        }
    }

    const QString &m_path;
    const TableRules &m_rules;
    qsizetype m_line = 0;
};

} // namespace

TableData TableFile::read(const QString &path, const TableRules &rules)
{
    return Reader(path, rules).read();
}
