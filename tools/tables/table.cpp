#include "tools/tables/table.h"

#include <QFile>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

Table Table::read(const QString &file)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        throw BuildError(u"%1: %2"_s.arg(file, input.errorString()));
    QByteArray bytes = input.readAll();
    if (bytes.endsWith('\n'))
        bytes.chop(1);

    Table table(file);
    for (const QByteArray &line : bytes.split('\n')) {
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString text = decoder(line);
        table.m_rows << text.split(u'\t');
        const int row = table.rowCount() - 2;
        if (decoder.hasError())
            table.fail(row, u"not valid UTF-8"_s);
        const qsizetype cells = table.m_rows.last().size();
        const qsizetype wanted = table.m_rows.first().size();
        if (cells != wanted)
            table.fail(row, u"%1 cells, the header has %2"_s.arg(cells).arg(wanted));
    }
    table.m_columns = table.m_rows.takeFirst();
    return table;
}

QString Table::cell(int row, const char *column) const
{
    const qsizetype index = m_columns.indexOf(QLatin1StringView(column));
    if (index < 0)
        fail(-1, u"no column \"%1\""_s.arg(QLatin1StringView(column)));
    return m_rows.at(row).at(index);
}

double Table::number(int row, const char *column) const
{
    bool ok = false;
    const double value = cell(row, column).toDouble(&ok);
    if (!ok)
        fail(row,
             u"\"%1\" in column \"%2\" is no number"_s.arg(cell(row, column), QLatin1StringView(column)));
    return value;
}

int Table::find(const char *column, const QString &text) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (cell(row, column) == text)
            return row;
    }
    return -1;
}

void Table::fail(int row, const QString &reason) const
{
    throw BuildError(m_file, row + 2, reason);
}
