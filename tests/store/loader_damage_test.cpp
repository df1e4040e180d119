#include "sampledatabases.h"

#include "core/runtimeerror.h"
#include "store/databaseconnection.h"
#include "store/databasepassword.h"
#include "store/datastore.h"
#include "store/loadtable.h"
#include "store/recordset.h"
#include "store/tablecatalog.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <numeric>

/// Damaged database files on the road of a start: open, then every step of the load. Each copy has one of
/// three outcomes that the user is told about or that is silent by intent.
class LoaderDamageTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyDamagedCopyHasANamedOutcome();

private:
    enum class Outcome { Refused, TableMissing, Loaded };

    // @p rows receives what the steps read.
    static Outcome start(const QString &path, int *rows)
    {
        struct Ended
        {
        };
        DatabaseConnection connection;
        try {
            connection.Open(path, {}, DatabasePassword);
        } catch (const RuntimeError &error) {
            if (error.number() != ErrorNumber::DatabaseFailure)
                throw;
            return Outcome::Refused;
        }
        DataStore store;
        TableLoader loader(
            store,
            [&](const QString &statement) { return std::make_unique<Recordset>(statement, connection); },
            [] { throw Ended(); });
        try {
            for (; loader.LoadCounter <= 31; ++loader.LoadCounter)
                loader.LoadTable(TableCatalog::statement(loader.LoadCounter));
        } catch (const Ended &) {
            return Outcome::TableMissing;
        }
        *rows = std::accumulate(store.tallies.rows.begin(), store.tallies.rows.end(), 0);
        return Outcome::Loaded;
    }
};

void LoaderDamageTest::everyDamagedCopyHasANamedOutcome()
{
    constexpr int Copies = 5000;
    const QByteArray whole = SampleDatabases::catalogued(8);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Database_uk.mdb"));
    const auto startOn = [&](const QByteArray &bytes, int *rows) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("no room for %s", qUtf8Printable(path));
        file.close();
        return start(path, rows);
    };
    int allRows = 0;
    QCOMPARE(startOn(whole, &allRows), Outcome::Loaded);
    QVERIFY(allRows > 0);

    QRandomGenerator random(20250101);
    std::array<int, 3> counts{};
    int whollyLoaded = 0;
    for (int copy = 0; copy < Copies; ++copy) {
        QByteArray damaged = whole;
        if (copy % 2 == 0)
            SampleDatabases::damage(&damaged, &random);
        else
            SampleDatabases::damageHeads(&damaged, &random);
        int rows = 0;
        ++counts[size_t(startOn(damaged, &rows))];
        QVERIFY2(rows <= allRows,
                 qPrintable(QStringLiteral("copy %1 has rows that were not there").arg(copy)));
        whollyLoaded += rows == allRows ? 1 : 0;
    }
    // All three outcomes occur, and a load that went on with less is among them.
    for (const int count : counts)
        QVERIFY(count > 0);
    QVERIFY(counts[size_t(Outcome::Loaded)] > whollyLoaded);
}

QTEST_GUILESS_MAIN(LoaderDamageTest)
#include "loader_damage_test.moc"
