#include "sampledatabases.h"

#include "store/databaseconnection.h"
#include "store/databasepassword.h"
#include "store/datastore.h"
#include "store/jet/jetfile.h"
#include "store/loadtable.h"
#include "store/recordset.h"
#include "store/tablecatalog.h"
#include "tests/support/files.h"
#include "tests/support/testclass.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtEndian>
#include <numeric>

/// Damaged copies of databases, by chance but the same in every run: each ends in an error, or in no more
/// rows than the whole file has.
class DamageTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTableEnds()
    {
        damage(SampleDatabases::varied(), 1000, readAll);
        damage(readFile(ALEMBRA_FOLDER "/Data/Database_uk.mdb"), 60, readAll);
    }

    void everyStartEnds()
    {
        damage(SampleDatabases::catalogued(8), 400, [this](const QByteArray &bytes) { return start(bytes); });
        QVERIFY(m_refused > 0);
    }

private:
    static void damage(const QByteArray &whole, int copies,
                       const std::function<int(const QByteArray &)> &rowsOf)
    {
        const int rows = rowsOf(whole);
        QVERIFY(rows > 0);
        QRandomGenerator random(20240229);
        int unharmed = 0;
        for (int copy = 0; copy < copies; ++copy) {
            QByteArray damaged = whole;
            spoil(damaged, random);
            const int read = rowsOf(damaged);
            QVERIFY2(read <= rows,
                     qPrintable(QString("copy %1 has more rows than the whole file").arg(copy)));
            unharmed += read == rows ? 1 : 0;
        }
        // Some damage is in bytes that nobody reads, but not all.
        QVERIFY(unharmed > 0 && unharmed < copies * 9 / 10);
    }

    // Cuts the file, or writes numbers that lead astray: anywhere, or where a page has slots and definitions.
    static void spoil(QByteArray &bytes, QRandomGenerator &random)
    {
        if (random.bounded(8) == 0)
            return bytes.truncate(random.bounded(bytes.size()));
        for (int i = 0; i < 4; ++i) {
            const quint32 numbers[] = {
                0,      1,      5,          0xFF,       0x100,      0x1FFF,           0x4006,
                0x7FFF, 0xFFFF, 0x3FFFFFFF, 0x80000000, 0xFFFFFFFF, random.generate()};
            const quint32 number = numbers[random.bounded(13)];
            const qsizetype page = random.bounded(bytes.size() / Jet::PageSize) * Jet::PageSize;
            char *place = bytes.data() + page + random.bounded(i % 2 == 0 ? 200 : Jet::PageSize - 4);
            i % 4 < 2 ? qToLittleEndian(quint16(number), place) : qToLittleEndian(number, place);
        }
    }

    // The rows before the first error of each table.
    static int readAll(const QByteArray &bytes)
    {
        int rows = 0;
        errorOf([&] {
            const JetFile file = JetFile::fromBytes(bytes, DatabasePassword);
            for (const QString &name : file.tables()) {
                errorOf([&] {
                    const JetDefinition table = file.table(name);
                    JetCursor cursor = file.rows(table);
                    for (; cursor.next(); ++rows) {
                        for (const JetColumn &column : table.columns)
                            cursor.text(column);
                    }
                });
            }
        });
        return rows;
    }

    // The rows that the steps of a start read, up to a missing table.
    int start(const QByteArray &bytes)
    {
        const QString path = m_folder.filePath("Database_uk.mdb");
        writeFile(path, bytes);
        DatabaseConnection connection;
        const int error = errorOf([&] { connection.Open(path, {}, DatabasePassword); });
        if (error != 0) {
            ++m_refused;
            return error == ErrorNumber::DatabaseFailure ? 0 : INT_MAX;
        }
        DataStore store;
        TableLoader loader(
            store,
            [&](const QString &statement) { return std::make_unique<Recordset>(statement, connection); },
            [&] { throw RuntimeError(ErrorNumber::TableNotFound); });
        errorOf([&] {
            for (; loader.LoadCounter <= 31; ++loader.LoadCounter)
                loader.LoadTable(TableCatalog::statement(loader.LoadCounter));
        });
        return std::accumulate(store.tallies.rows.begin(), store.tallies.rows.end(), 0);
    }

    QTemporaryDir m_folder;
    int m_refused = 0;
};

const TestClass<DamageTest> damageTest;
#include "damage_test.moc"
