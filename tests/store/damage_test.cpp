#include "sampledatabases.h"

#include "store/databasepassword.h"
#include "store/jet/jetfile.h"
#include "tests/support/files.h"

#include <QRandomGenerator>
#include <QtEndian>

/// Damaged copies of databases, by chance but the same in every run: each ends in an error, or in no more
/// rows than the whole file has.
class DamageTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTableEnds()
    {
        const QByteArray delivered = readFile(ALEMBRA_FOLDER "/Data/Database_uk.mdb");
        for (const auto &[whole, copies] : {std::pair(SampleDatabases::varied(), 1000), {delivered, 60}}) {
            const int rows = readAll(whole);
            QVERIFY(rows > 0);
            QRandomGenerator random(20240229);
            int unharmed = 0;
            for (int copy = 0; copy < copies; ++copy) {
                QByteArray damaged = whole;
                spoil(damaged, random);
                const int read = readAll(damaged);
                QVERIFY2(read <= rows,
                         qPrintable(QString("copy %1 has more rows than the whole file").arg(copy)));
                unharmed += read == rows ? 1 : 0;
            }
            // Some damage is in bytes that nobody reads, but not all.
            QVERIFY(unharmed > 0 && unharmed < copies * 9 / 10);
        }
    }

private:
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
};

const TestClass<DamageTest> damageTest;
#include "damage_test.moc"
