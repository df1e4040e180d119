#include "core/runtimeerror.h"
#include "store/databaseconnection.h"
#include "store/databasepassword.h"
#include "store/datastore.h"
#include "store/jet/jetfile.h"
#include "store/loadtable.h"
#include "store/recordset.h"
#include "store/tablecatalog.h"
#include "tests/fuzz/fuzztarget.h"
#include "tests/store/sampledatabases.h"

#include <QtEndian>
#include <algorithm>

namespace {

// An input is not a file but changes to one, each a page, a place in it, a length and the bytes, so that the
// fuzzer does not waste itself on the 4096 bytes of a page that are the same in all of them.
QByteArray changed(QByteArray file, QByteArray changes)
{
    const auto pages = quint32(file.size() / 4096);
    while (changes.size() > 5) {
        const quint32 page = qFromLittleEndian<quint16>(changes.constData()) % pages;
        const quint32 place = qFromLittleEndian<quint16>(changes.constData() + 2) % 4096;
        const qsizetype length =
            std::min({qsizetype(uchar(changes[4]) % 32), changes.size() - 5, qsizetype(4096 - place)});
        file.replace(qsizetype(page) * 4096 + place, length, changes.mid(5, length));
        changes.remove(0, 5 + length);
    }
    return file;
}

void readAllTables(const QByteArray &bytes)
{
    const JetFile file = JetFile::fromBytes(bytes, DatabasePassword);
    for (const QString &name : file.tables()) {
        ignoringErrors([&] {
            const JetDefinition table = file.table(name);
            JetCursor cursor = file.rows(table);
            while (cursor.next()) {
                for (const JetColumn &column : table.columns)
                    ignoringErrors([&] { cursor.text(column); });
            }
        });
    }
}

void start(const QByteArray &bytes)
{
    const InputFile input(bytes);
    DatabaseConnection connection;
    connection.Open(input.path(), {}, DatabasePassword);
    DataStore store;
    TableLoader loader(
        store, [&](const QString &statement) { return std::make_unique<Recordset>(statement, connection); },
        [] {});
    for (; loader.LoadCounter <= TableCatalog::LastStep; ++loader.LoadCounter)
        loader.LoadTable(TableCatalog::statement(loader.LoadCounter));
}

const FuzzTarget database("database", [](const QByteArray &input) {
    static const QByteArray varied = SampleDatabases::varied();
    static const QByteArray catalogued = SampleDatabases::catalogued(2);
    if (input.isEmpty())
        return;
    const int kind = uchar(input[0]) % 8;
    ignoringErrors([&] {
        if (kind == 0)
            start(changed(catalogued, input.mid(1)));
        else
            readAllTables(kind == 1 ? input.mid(1) : changed(varied, input.mid(1)));
    });
});

} // namespace
