#include "core/csv.h"

#include "core/numbers.h"

using namespace Qt::StringLiterals;

namespace {

QString quoted(QString cell)
{
    if (cell.isEmpty() || Numbers::parseInvariant(cell))
        return cell;
    return u'"' + cell.replace(u'"', u"\"\""_s) + u'"';
}

} // namespace

QByteArray Csv::write(const QList<QStringList> &lines)
{
    QString text(QChar::ByteOrderMark);
    for (QStringList cells : lines) {
        std::transform(cells.begin(), cells.end(), cells.begin(), quoted);
        text += cells.join(u',') + u"\r\n"_s;
    }
    return text.toUtf8();
}
