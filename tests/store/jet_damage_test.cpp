#include "sampledatabases.h"

#include "core/runtimeerror.h"
#include "store/databasepassword.h"
#include "store/jet/jetfile.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>

/// Damaged copies of databases, at random but the same in every run: each must end in rows or in an error.
class JetDamageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void damagedCopiesEnd_data();
    void damagedCopiesEnd();
};

namespace {

QByteArray deliveredFile()
{
    QFile file(QStringLiteral(ALEMBRA_FOLDER "/Data/Database_uk.mdb"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int deliveredRows()
{
    const QDir tables(QStringLiteral(ALEMBRA_SOURCE "/data/tables"));
    int rows = 0;
    for (const QFileInfo &table : tables.entryInfoList({QStringLiteral("*.tsv")})) {
        QFile file(table.filePath());
        rows += file.open(QIODevice::ReadOnly) ? int(file.readAll().count('\n')) - 1 : 0;
    }
    return rows;
}

// The number of rows that could be read before the first error of each table.
int readAll(const QByteArray &bytes)
{
    int rows = 0;
    try {
        const JetFile file = JetFile::fromBytes(bytes, DatabasePassword);
        for (const QString &name : file.tables()) {
            try {
                const JetDefinition table = file.table(name);
                JetCursor cursor = file.rows(table);
                while (cursor.next()) {
                    for (const JetColumn &column : table.columns)
                        cursor.text(column);
                    ++rows;
                }
            } catch (const RuntimeError &) {
                // What this test allows; anything else that is thrown fails it.
            }
        }
    } catch (const RuntimeError &) {
    }
    return rows;
}

} // namespace

void JetDamageTest::damagedCopiesEnd_data()
{
    QTest::addColumn<QByteArray>("whole");
    QTest::addColumn<int>("copies");
    QTest::addColumn<int>("rows");
    QTest::newRow("varied") << SampleDatabases::varied() << 1800 << 60;
    QTest::newRow("delivered") << deliveredFile() << 200 << deliveredRows();
}

void JetDamageTest::damagedCopiesEnd()
{
    QFETCH(QByteArray, whole);
    QFETCH(int, copies);
    QFETCH(int, rows);
    QCOMPARE(readAll(whole), rows);

    QRandomGenerator random(20240229);
    int unharmed = 0;
    for (int copy = 0; copy < copies; ++copy) {
        QByteArray damaged = whole;
        if (copy % 2 == 0)
            SampleDatabases::damage(&damaged, &random);
        else
            SampleDatabases::damageHeads(&damaged, &random);
        const int read = readAll(damaged);
        QVERIFY2(read <= rows,
                 qPrintable(QStringLiteral("copy %1 has more rows than the whole file").arg(copy)));
        unharmed += read == rows ? 1 : 0;
    }
    // Damage that nobody notices must stay possible, but it must not be all there is.
    QVERIFY(unharmed > 0);
    QVERIFY(unharmed < copies * 9 / 10);
}

QTEST_GUILESS_MAIN(JetDamageTest)
#include "jet_damage_test.moc"
