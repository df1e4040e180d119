#include "store/rowremarks.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

// The macro has to be used outside of any namespace.
static void initResource()
{
    Q_INIT_RESOURCE(remarks);
}

namespace {

QJsonObject readRemarks()
{
    initResource();
    QFile file(u":/remarks.json"_s);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

// Read when the first list is shown: a millisecond that the start does not have.
const QJsonObject &remarks()
{
    static const QJsonObject read = readRemarks();
    return read;
}

// What is known of the row; empty if one of its texts is not that of the delivered row.
QJsonObject remark(const TableRow &row)
{
    static const QJsonObject rows = remarks()["rows"_L1].toObject();
    const QJsonObject found = rows[row.table].toObject()[QString::number(row.row + 1)].toObject();
    const QJsonObject cells = found["cells"_L1].toObject();
    for (qsizetype column = 0; column < row.columns.size(); ++column) {
        if (cells[row.columns[column]].toString() != row.texts[column])
            return {};
    }
    return found;
}

} // namespace

std::optional<RowRemarks::Document> RowRemarks::document(const QString &key)
{
    static const QJsonObject sources = remarks()["sources"_L1].toObject();
    for (auto source = sources.begin(); source != sources.end(); ++source) {
        // "MSBNK-*" matches all keys that begin with it.
        const QString name = source.key();
        if (key != name && !(name.endsWith(u'*') && key.startsWith(name.chopped(1))))
            continue;
        const QJsonArray texts = source.value().toArray();
        const QString record = key == name ? QString() : u"; record "_s + key;
        return Document{texts[0].toString() + record, texts[1].toString(), texts[2].toString()};
    }
    return std::nullopt;
}

bool RowRemarks::isGeneralKnowledge(const TableRow &row)
{
    return remark(row)["general"_L1].toBool();
}

QString RowRemarks::doubt(const TableRow &row)
{
    return remark(row)["doubt"_L1].toString();
}
