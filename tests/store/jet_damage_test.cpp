#include "jetfilebuilder.h"

#include "core/runtimeerror.h"
#include "store/databasepassword.h"
#include "store/jet/jetfile.h"

#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>

using Jet::Type;
using Builder = JetFileBuilder;

/// Damaged copies of databases, by chance but the same in every run: each must end in rows or in an error,
/// soon.
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

// Small, with everything that the delivered file lacks: fixed columns, long texts, moved and deleted rows,
// packed texts of both widths, a bitmap page.
QByteArray variedFile()
{
    Builder builder;
    const quint32 tail = builder.addLongValuePage({{Builder::u32(0) + QByteArray(3000, 'a')}});
    const quint32 head =
        builder.addLongValuePage({{Builder::u32(Builder::pointer(tail, 0)) + QByteArray(3000, 'b')}});
    const QByteArray memo = Builder::u32(6000) + Builder::u32(Builder::pointer(head, 0)) + Builder::u32(0);
    const QByteArray packed("\xFF\xFE\x61\x62\0\xB1\x03\0c", 9);
    QByteArray number(8, '\0');
    qToLittleEndian(0.25, number.data());

    const auto row = [&](bool withMemo) {
        return Builder::row(4, number + Builder::u32(7),
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

template<class T>
void putSomewhere(QByteArray *bytes, T value, QRandomGenerator *random)
{
    qToLittleEndian(value, bytes->data() + random->bounded(bytes->size() - qsizetype(sizeof value)));
}

void damage(QByteArray *bytes, QRandomGenerator *random)
{
    switch (random->bounded(7)) {
    case 0: // cut anywhere
        bytes->truncate(random->bounded(bytes->size()));
        break;
    case 1: // cut between pages
        bytes->truncate(random->bounded(bytes->size()) / Jet::PageSize * Jet::PageSize);
        break;
    case 2:
        for (int i = 0; i < 20; ++i)
            putSomewhere(bytes, quint8(random->generate()), random);
        break;
    case 3:
        for (int i = 0; i < 5; ++i) {
            char &byte = bytes->data()[random->bounded(bytes->size())];
            byte = char(byte ^ 1 << random->bounded(8));
        }
        break;
    case 4: { // two pages change places
        const qsizetype one = random->bounded(bytes->size() / Jet::PageSize) * Jet::PageSize;
        const qsizetype other = random->bounded(bytes->size() / Jet::PageSize) * Jet::PageSize;
        const QByteArray kept = bytes->mid(one, Jet::PageSize);
        bytes->replace(one, Jet::PageSize, bytes->mid(other, Jet::PageSize));
        bytes->replace(other, Jet::PageSize, kept);
        break;
    }
    case 5:
        for (int i = 0; i < 10; ++i) {
            const quint16 extremes[] = {0, 1, 0x7FFF, 0x8000, 0xFFFE, 0xFFFF};
            putSomewhere(bytes, extremes[random->bounded(6)], random);
        }
        break;
    default:
        for (int i = 0; i < 10; ++i) {
            const quint32 extremes[] = {0, 0x100, 0x3FFFFFFF, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
            putSomewhere(bytes, extremes[random->bounded(6)], random);
        }
    }
}

// Half of the damage goes into the bytes that lead on: the first ones of pages, where slots and definitions
// are.
void damageHeads(QByteArray *bytes, QRandomGenerator *random)
{
    for (int i = 0; i < 3; ++i) {
        const qsizetype page = random->bounded(bytes->size() / Jet::PageSize) * Jet::PageSize;
        const quint16 values[] = {0, 1, 5, 0xFF, 0x1FFF, 0x4006, 0xFFFF, quint16(random->generate())};
        qToLittleEndian(values[random->bounded(8)], bytes->data() + page + random->bounded(200));
    }
}

} // namespace

void JetDamageTest::damagedCopiesEnd_data()
{
    QTest::addColumn<QByteArray>("whole");
    QTest::addColumn<int>("copies");
    QTest::addColumn<int>("rows");
    QTest::newRow("varied") << variedFile() << 1800 << 60;
    QTest::newRow("delivered") << deliveredFile() << 200 << 4038;
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
            damage(&damaged, &random);
        else
            damageHeads(&damaged, &random);
        QElapsedTimer timer;
        timer.start();
        const int read = readAll(damaged);
        QVERIFY2(timer.elapsed() < 5000, qPrintable(QStringLiteral("copy %1").arg(copy)));
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
