#include "core/runtimeerror.h"
#include "store/databaseconnection.h"
#include "store/databasepassword.h"
#include "store/datastore.h"
#include "store/jet/jetfile.h"
#include "store/loadtable.h"
#include "store/recordset.h"
#include "store/tablecatalog.h"
#include "tests/fuzz/inputfile.h"
#include "tests/store/sampledatabases.h"

#include <QtEndian>
#include <algorithm>

namespace {

// An input is not a file but changes to one, each a page, a place in it, a length and the bytes, so that the
// fuzzer does not waste itself on the 4096 bytes of a page that are the same in all of them.
QByteArray changed(QByteArray file, const uint8_t *data, size_t size)
{
    const auto pages = quint32(file.size() / 4096);
    while (size > 5) {
        const quint32 page = qFromLittleEndian<quint16>(data) % pages;
        const quint32 place = qFromLittleEndian<quint16>(data + 2) % 4096;
        const size_t length = std::min({size_t(data[4] % 32), size - 5, size_t(4096 - place)});
        file.replace(qsizetype(page) * 4096 + place, qsizetype(length),
                     reinterpret_cast<const char *>(data + 5), qsizetype(length));
        data += 5 + length;
        size -= 5 + length;
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
    const InputFile input(reinterpret_cast<const uint8_t *>(bytes.constData()), size_t(bytes.size()));
    DatabaseConnection connection;
    connection.Open(input.path(), {}, DatabasePassword);
    DataStore store;
    TableLoader loader(
        store, [&](const QString &statement) { return std::make_unique<Recordset>(statement, connection); },
        [] {});
    for (; loader.LoadCounter <= TableCatalog::LastStep; ++loader.LoadCounter)
        loader.LoadTable(TableCatalog::statement(loader.LoadCounter));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QByteArray varied = SampleDatabases::varied();
    static const QByteArray catalogued = SampleDatabases::catalogued(2);
    if (size == 0)
        return 0;
    ignoringErrors([&] {
        if (data[0] % 8 == 0)
            start(changed(catalogued, data + 1, size - 1));
        else if (data[0] % 8 == 1)
            readAllTables(QByteArray(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1)));
        else
            readAllTables(changed(varied, data + 1, size - 1));
    });
    return 0;
}
