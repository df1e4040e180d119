#include "tools/make_pictures/table.h"

#include <QFile>

Table Table::read(const QString &file, const QStringList &columns)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        throw PictureError(QStringLiteral("%1: %2").arg(file, input.errorString()));

    Table table;
    table.m_file = file;
    QStringList lines = QString::fromUtf8(input.readAll()).split(QLatin1Char('\n'));
    if (lines.last().isEmpty())
        lines.removeLast();
    if (lines.isEmpty())
        throw PictureError(QStringLiteral("%1:1: no header row").arg(file));

    const QStringList header = lines.takeFirst().split(QLatin1Char('\t'));
    for (int i = 0; i < header.size(); ++i)
        table.m_columns.insert(header[i], i);
    for (const QString &column : columns) {
        if (!table.m_columns.contains(column))
            throw PictureError(QStringLiteral("%1:1: no column \"%2\"").arg(file, column));
    }
    for (const QString &line : lines) {
        table.m_rows << line.split(QLatin1Char('\t'));
        if (table.m_rows.last().size() != header.size()) {
            table.fail(table.rowCount() - 1, QStringLiteral("%1 cells, the header has %2")
                                                 .arg(table.m_rows.last().size())
                                                 .arg(header.size()));
        }
    }
    return table;
}

QString Table::cell(int row, const QString &column) const
{
    Q_ASSERT(m_columns.contains(column));
    return m_rows.at(row).at(m_columns.value(column));
}

double Table::number(int row, const QString &column) const
{
    bool ok = false;
    const double value = cell(row, column).toDouble(&ok);
    if (!ok)
        fail(row, QStringLiteral("\"%1\" in column \"%2\" is no number").arg(cell(row, column), column));
    return value;
}

int Table::find(const QString &column, const QString &text) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (cell(row, column) == text)
            return row;
    }
    return -1;
}

void Table::fail(int row, const QString &reason) const
{
    throw PictureError(QStringLiteral("%1:%2: %3").arg(m_file).arg(row + 2).arg(reason));
}
