#include "sampledatabases.h"

#include "jetfilebuilder.h"
#include "store/databasepassword.h"
#include "store/tablecatalog.h"

using Jet::Type;
using Builder = JetFileBuilder;

QByteArray SampleDatabases::varied()
{
    Builder builder;
    const quint32 tail = builder.addLongValuePage({{Builder::u32(0) + QByteArray(3000, 'a')}});
    const quint32 head =
        builder.addLongValuePage({{Builder::u32(Builder::pointer(tail, 0)) + QByteArray(3000, 'b')}});
    const QByteArray memo = Builder::u32(6000) + Builder::u32(Builder::pointer(head, 0)) + Builder::u32(0);
    const QByteArray packed("\xFF\xFE\x61\x62\0\xB1\x03\0c", 9);
    const auto row = [&](bool withMemo) {
        return Builder::row(4, Builder::little(0.25) + Builder::u32(7),
                            {packed, withMemo ? std::optional(memo) : std::nullopt},
                            withMemo ? QList<int>{0, 1, 2, 3} : QList<int>{0, 1, 2});
    };
    const QList<Builder::Column> columns{{QStringLiteral("x"), Type::Double, 0, -1, 0, 8},
                                         {QStringLiteral("n"), Type::Int32, 1, -1, 8, 4},
                                         {QStringLiteral("t"), Type::Text, 2, 0, 0, 510},
                                         {QStringLiteral("m"), Type::Memo, 3, 1}};
    for (const char *name : {"one", "two"}) {
        Builder::Page page(30, {row(false)});
        page[3] = {Builder::u32(Builder::pointer(builder.nextPage() + 2, 1)), Jet::SlotIsPointer};
        page[7].flags = Jet::SlotIsDeleted;
        page[9] = {row(true)};
        const Builder::Page moved{{row(false)}, {row(false), Jet::SlotIsDeleted}};
        builder.addTable(QString::fromLatin1(name), columns, {page, moved}, 30);
        builder.useBitmapPage();
    }
    return builder.file();
}

namespace {

void addTable(Builder *builder, int step, const SampleDatabases::Edit &edit)
{
    QList<Builder::Column> columns;
    QList<int> present;
    for (const QString &name : TableCatalog::columns(step)) {
        const int number = int(columns.size());
        columns.append({name, Type::Text, number, number, 0, 510});
        present.append(number);
    }
    Builder::Page page;
    for (int row = 0; row < edit.rows; ++row) {
        QList<std::optional<QByteArray>> cells;
        for (const int column : std::as_const(present))
            cells.append(Builder::utf16(QStringLiteral("%1.%2").arg(row).arg(column)));
        page.append({Builder::row(int(columns.size()), {}, cells, present),
                     edit.deleted.contains(row) ? Jet::SlotIsDeleted : quint16(0)});
    }
    builder->addTable(TableCatalog::table(step), columns, {page}, quint32(edit.rows - edit.deleted.size()));
}

} // namespace

QByteArray SampleDatabases::catalogued(int rows, const Edit &edit)
{
    Builder builder;
    for (int step = TableCatalog::FirstStep; step <= TableCatalog::LastStep; ++step) {
        const QString table = TableCatalog::table(step);
        addTable(&builder, step, table == edit.table ? edit : Edit{table, rows});
    }
    return builder.file(DatabasePassword);
}
