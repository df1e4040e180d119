#include "jetfilebuilder.h"

#include "core/runtimeerror.h"
#include "store/jet/jetfile.h"

#include <QTest>
#include <functional>
#include <limits>

using Jet::Type;
using Builder = JetFileBuilder;

/// What our own tool never writes, and what a file must not be able to make the reader do.
class JetReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesBecomeTexts_data();
    void valuesBecomeTexts();
    void aTypeWithoutTextIsAMismatch();
    void nullIsNotTheEmptyText();
    void aColumnOfLaterIsNullInOldRows();
    void packedTexts_data();
    void packedTexts();
    void longTexts();
    void aLongTextCostsItsOwnBytesAlone();
    void deletedAndMovedRows();
    void longDefinitionsAndBitmapPages();
    void encodedPages();
    void aFileWithoutPasswordOpensWithAny();
    void otherVersionsAreRefused_data();
    void otherVersionsAreRefused();
    void damageIsAnError_data();
    void damageIsAnError();

private:
    static Builder::Column text(const char *name, int number)
    {
        return {QString::fromLatin1(name), Type::Text, number, number, 0, 510};
    }
};

namespace {

using Rows = QList<QList<std::optional<QString>>>;

template<class T>
QByteArray bytesOf(T value)
{
    QByteArray bytes(sizeof value, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

Rows rowsOf(const QByteArray &bytes, const QString &password = {})
{
    const JetFile file = JetFile::fromBytes(bytes, password);
    const JetDefinition table = file.table(QStringLiteral("t"));
    JetCursor cursor = file.rows(table);
    Rows rows;
    while (cursor.next()) {
        rows.append(QList<std::optional<QString>>());
        for (const JetColumn &column : table.columns)
            rows.last().append(cursor.text(column));
    }
    return rows;
}

int errorOf(const QByteArray &bytes, const QString &password = {})
{
    try {
        rowsOf(bytes, password);
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}

QByteArray textRow(const QString &text)
{
    return Builder::row(1, {}, {Builder::utf16(text)}, {0});
}

const QString Table = QStringLiteral("t");
constexpr int RowsInPage = 150;

// Every row of @p pages pages names the long text that begins with the first of @p pieces, on page 5.
QByteArray longTextsFile(const Builder::Page &pieces, quint32 flags, int pages)
{
    Builder builder;
    const quint32 first = builder.addLongValuePage(pieces);
    const QByteArray cell = Builder::u32(flags) + Builder::u32(Builder::pointer(first, 0)) + Builder::u32(0);
    const Builder::Page rows(RowsInPage, {Builder::row(1, {}, {cell}, {0})});
    builder.addTable(Table, {{QStringLiteral("m"), Type::Memo, 0, 0}}, QList<Builder::Page>(pages, rows),
                     quint32(pages * RowsInPage));
    return builder.file();
}

} // namespace

void JetReaderTest::valuesBecomeTexts_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("scale");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *what, Type type, const QByteArray &value, const QString &expected,
                        int scale = 0) { QTest::newRow(what) << int(type) << value << scale << expected; };
    const auto decimal = [](bool negative, quint32 high, quint32 low) {
        return QByteArray(1, negative ? '\x80' : '\0') + bytesOf(high) + QByteArray(8, '\0') + bytesOf(low);
    };
    row("byte", Type::Byte, bytesOf(quint8(200)), QStringLiteral("200"));
    row("negative short", Type::Int16, bytesOf(qint16(-32768)), QStringLiteral("-32768"));
    row("negative long", Type::Int32, bytesOf(qint32(-5)), QStringLiteral("-5"));
    row("single with 7 digits", Type::Single, bytesOf(0.1F), QStringLiteral("0.1"));
    row("double with 15 digits", Type::Double, bytesOf(1.0 / 3), QStringLiteral("0.333333333333333"));
    row("large double", Type::Double, bytesOf(6.02214076E23), QStringLiteral("6.02214076E+23"));
    row("whole currency", Type::Currency, bytesOf(qint64(120000)), QStringLiteral("12"));
    row("currency below one", Type::Currency, bytesOf(qint64(-125)), QStringLiteral("-0.0125"));
    row("smallest currency", Type::Currency, bytesOf(std::numeric_limits<qint64>::min()),
        QStringLiteral("-922337203685477.5808"));
    row("decimal", Type::Decimal, decimal(true, 0, 12345), QStringLiteral("-1.2345"), 4);
    row("decimal with leading zeros", Type::Decimal, decimal(false, 0, 5), QStringLiteral("0.005"), 3);
    row("decimal beyond 64 bits", Type::Decimal, decimal(false, 1, 0),
        QStringLiteral("79228162514264337593543950336"));
    row("decimal zero", Type::Decimal, decimal(true, 0, 0), QStringLiteral("0"), 2);
    row("time", Type::Date, bytesOf(0.25), QStringLiteral("06:00:00"));
    row("date before day 0", Type::Date, bytesOf(-1.25),
        QLocale::system().toString(QDate(1899, 12, 29), QLocale::ShortFormat) + QStringLiteral(" 06:00:00"));
    row("date", Type::Date, bytesOf(42329.0),
        QLocale::system().toString(QDate(2015, 11, 21), QLocale::ShortFormat));
    row("guid", Type::Guid, QByteArray::fromHex("33221100554477668899AABBCCDDEEFF"),
        QStringLiteral("{00112233-4455-6677-8899-AABBCCDDEEFF}"));
    row("text of fixed length", Type::Text, Builder::utf16(QStringLiteral("ab ")), QStringLiteral("ab "));
}

void JetReaderTest::valuesBecomeTexts()
{
    QFETCH(int, type);
    QFETCH(QByteArray, value);
    QFETCH(int, scale);
    QFETCH(QString, expected);

    Builder builder;
    const QList<Builder::Column> columns{
        {QStringLiteral("before"), Type::Byte, 0, -1, 0, 1},
        {QStringLiteral("value"), Type(type), 1, -1, 1, int(value.size()), false, scale},
        {QStringLiteral("yes"), Type::Boolean, 2, -1, 0, 1},
    };
    builder.addTable(Table, columns,
                     {{{Builder::fixedRow(3, QByteArray(1, '\7') + value, {0, 1, 2})},
                       {Builder::fixedRow(3, QByteArray(1 + value.size(), '\7'), {})}}},
                     2);
    const Rows expectedRows{{QStringLiteral("7"), expected, QStringLiteral("True")},
                            {std::nullopt, std::nullopt, QStringLiteral("False")}};
    QCOMPARE(rowsOf(builder.file()), expectedRows);
}

void JetReaderTest::aTypeWithoutTextIsAMismatch()
{
    for (const Type type : {Type::Binary, Type::Ole, Type(0x63)}) {
        Builder builder;
        builder.addTable(Table, {{QStringLiteral("value"), type, 0, 0, 0, 4}},
                         {{{Builder::row(1, {}, {QByteArray("abcd")}, {0})}}}, 1);
        QCOMPARE(errorOf(builder.file()), ErrorNumber::TypeMismatch);
    }
}

void JetReaderTest::nullIsNotTheEmptyText()
{
    Builder builder;
    builder.addTable(Table, {text("a", 0), text("b", 1)},
                     {{{Builder::row(2, {}, {std::nullopt, QByteArray()}, {1})}}}, 1);
    QCOMPARE(rowsOf(builder.file()), (Rows{{std::nullopt, QString()}}));
}

void JetReaderTest::aColumnOfLaterIsNullInOldRows()
{
    Builder builder;
    builder.addTable(Table, {text("a", 0), text("b", 1), {QStringLiteral("n"), Type::Int32, 2, -1, 0, 4}},
                     {{{textRow(QStringLiteral("old"))}}}, 1);
    QCOMPARE(rowsOf(builder.file()), (Rows{{QStringLiteral("old"), std::nullopt, std::nullopt}}));
}

void JetReaderTest::packedTexts_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<bool>("packed");
    QTest::addColumn<QString>("expected");

    const QByteArray alpha("\xB1\x03", 2);
    QTest::newRow("one byte each") << QByteArray("\xFF\xFE\x61\xE9") << true << QStringLiteral("a\u00E9");
    QTest::newRow("two bytes to the end")
        << QByteArray("\xFF\xFE\x61\0", 4) + alpha + alpha << true << QStringLiteral("a\u03B1\u03B1");
    QTest::newRow("there and back") << QByteArray("\xFF\xFE\0", 3) + alpha + QByteArray("\0b", 2) << true
                                    << QStringLiteral("\u03B1b");
    QTest::newRow("only the mark") << QByteArray("\xFF\xFE") << true << QString();
    QTest::newRow("plain") << alpha << true << QStringLiteral("\u03B1");
    QTest::newRow("column that never packs")
        << QByteArray("\xFF\xFE\x61\x62") << false << QStringLiteral("\uFEFF\u6261");
}

void JetReaderTest::packedTexts()
{
    QFETCH(QByteArray, stored);
    QFETCH(bool, packed);
    QFETCH(QString, expected);

    Builder builder;
    builder.addTable(Table, {{QStringLiteral("a"), Type::Text, 0, 0, 0, 510, packed}},
                     {{{Builder::row(1, {}, {stored}, {0})}}}, 1);
    QCOMPARE(rowsOf(builder.file()), (Rows{{expected}}));
}

void JetReaderTest::longTexts()
{
    Builder builder;
    const QString text(5000, u'\u03B1');
    const QByteArray bytes = Builder::utf16(text);
    const quint32 last = builder.addLongValuePage({{Builder::u32(0) + bytes.mid(8000)}});
    const quint32 middle =
        builder.addLongValuePage({{Builder::u32(Builder::pointer(last, 0)) + bytes.mid(4000, 4000)}});
    const quint32 first =
        builder.addLongValuePage({{Builder::u32(Builder::pointer(middle, 0)) + bytes.first(4000)}});
    const quint32 shared = builder.addLongValuePage({{"other"}, {"\xFF\xFEone row"}});

    const auto cell = [](quint32 flags, quint32 pointer, const QByteArray &inRow = {}) {
        return QByteArray(Builder::u32(flags) + Builder::u32(pointer) + Builder::u32(0) + inRow);
    };
    const QList<QByteArray> cells{cell(0x80000000 | 4, 0, Builder::utf16(QStringLiteral("in"))),
                                  cell(0x40000000 | 9, Builder::pointer(shared, 1)),
                                  cell(10000, Builder::pointer(first, 0)), cell(0x80000000, 0)};
    Builder::Page page;
    for (const QByteArray &value : cells)
        page.append({Builder::row(1, {}, {value}, {0})});
    builder.addTable(Table, {{QStringLiteral("m"), Type::Memo, 0, 0}}, {page}, 4);
    QCOMPARE(rowsOf(builder.file()),
             (Rows{{QStringLiteral("in")}, {QStringLiteral("one row")}, {text}, {QString()}}));
}

// Reading a text costs the same however many others are on its page.
void JetReaderTest::aLongTextCostsItsOwnBytesAlone()
{
    const Builder::Page page(900, {QByteArray("ab")});
    QCOMPARE(rowsOf(longTextsFile(page, 0x40000000 | 2, 40)).size(), 40 * RowsInPage);
}

void JetReaderTest::deletedAndMovedRows()
{
    Builder builder;
    const quint32 secondPage = builder.nextPage() + 2;
    const Builder::Page first{
        {textRow(QStringLiteral("1"))},
        {textRow(QStringLiteral("gone")), Jet::SlotIsDeleted},
        {Builder::u32(Builder::pointer(secondPage, 1)), Jet::SlotIsPointer},
        {QByteArray(), Jet::SlotIsDeleted},
        {Builder::u32(0), quint16(Jet::SlotIsDeleted | Jet::SlotIsPointer)},
        {textRow(QStringLiteral("3"))},
    };
    const Builder::Page second{
        {textRow(QStringLiteral("4"))},
        {textRow(QStringLiteral("2")), Jet::SlotIsDeleted},
    };
    builder.addTable(Table, {text("a", 0)}, {first, second}, 4);
    QCOMPARE(
        rowsOf(builder.file()),
        (Rows{{QStringLiteral("1")}, {QStringLiteral("2")}, {QStringLiteral("3")}, {QStringLiteral("4")}}));
}

void JetReaderTest::longDefinitionsAndBitmapPages()
{
    // 200 columns of 25 + 2 + 8 bytes go over two pages.
    constexpr int Columns = 200;
    Builder builder;
    QList<Builder::Column> columns;
    QList<std::optional<QByteArray>> values;
    QList<int> present;
    for (int i = 0; i < Columns; ++i) {
        columns.append(text(qPrintable(QStringLiteral("c%1").arg(i, 3)), i));
        values.append(QByteArray());
        present.append(i);
    }
    values.last() = Builder::utf16(QStringLiteral("end"));
    builder.useBitmapPage();
    builder.addTable(Table, columns, {{{Builder::row(Columns, {}, values, present)}}}, 1);
    const Rows rows = rowsOf(builder.file());
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows[0].size(), Columns);
    QCOMPARE(rows[0].last(), QStringLiteral("end"));
}

void JetReaderTest::encodedPages()
{
    Builder builder;
    builder.addTable(Table, {text("a", 0)}, {{{textRow(QStringLiteral("secret"))}}}, 1);
    const QByteArray file = builder.file(QStringLiteral("Pass"), 0xDEADBEEF);
    QVERIFY(!file.contains(Builder::utf16(QStringLiteral("secret"))));
    QCOMPARE(rowsOf(file, QStringLiteral("Pass")), (Rows{{QStringLiteral("secret")}}));
    QCOMPARE(errorOf(file, QStringLiteral("pass")), ErrorNumber::DatabaseFailure);
}

void JetReaderTest::aFileWithoutPasswordOpensWithAny()
{
    Builder builder;
    builder.addTable(Table, {text("a", 0)}, {}, 0);
    QCOMPARE(errorOf(builder.file(), QStringLiteral("any")), 0);
    const QString full(20, u'x');
    QCOMPARE(errorOf(builder.file(full), full), 0);
    QCOMPARE(errorOf(builder.file(full), full.chopped(1)), ErrorNumber::DatabaseFailure);
}

void JetReaderTest::otherVersionsAreRefused_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("Jet 3") << QByteArray("\0\1\0\0Standard Jet DB\0\0\0\0\0", 24);
    QTest::newRow("accdb") << QByteArray("\0\1\0\0Standard ACE DB\0\2\0\0\0", 24);
    QTest::newRow("later accdb") << QByteArray("\0\1\0\0Standard ACE DB\0\5\0\0\0", 24);
    QTest::newRow("nothing") << QByteArray("\0\0\0\0", 4);
}

void JetReaderTest::otherVersionsAreRefused()
{
    QFETCH(QByteArray, start);
    QCOMPARE(errorOf(start.leftJustified(8 * Jet::PageSize, '\0')), ErrorNumber::DatabaseFailure);
    QCOMPARE(errorOf(start), ErrorNumber::DatabaseFailure);
}

void JetReaderTest::damageIsAnError_data()
{
    QTest::addColumn<QByteArray>("file");

    const auto add = [](const char *what, const QList<Builder::Column> &columns,
                        const QList<Builder::Page> &pages, quint32 rows,
                        const std::function<void(QByteArray &)> &damage = {}) {
        Builder builder;
        builder.addTable(Table, columns, pages, rows);
        QByteArray file = builder.file();
        if (damage)
            damage(file);
        QTest::newRow(what) << file;
    };
    // The definition is page 5, the data page 6.
    const auto put = [](qsizetype at, const QByteArray &bytes) {
        return [at, bytes](QByteArray &file) { file.replace(at, bytes.size(), bytes); };
    };
    constexpr qsizetype Definition = 5 * Jet::PageSize;
    constexpr qsizetype Data = 6 * Jet::PageSize;
    constexpr qsizetype Maps = 3 * Jet::PageSize;
    const QList<Builder::Column> one{text("a", 0)};
    const Builder::Page page{{textRow(QStringLiteral("abc"))}, {textRow(QStringLiteral("def"))}};
    const Builder::Page moved{{Builder::u32(Builder::pointer(6, 1)), Jet::SlotIsPointer},
                              {textRow(QStringLiteral("x")), Jet::SlotIsDeleted},
                              {Builder::u32(Builder::pointer(6, 1)), Jet::SlotIsPointer}};

    add("cut within a page", one, {page}, 2, [](QByteArray &file) { file.chop(1); });
    add("cut at a page", one, {page}, 2, [](QByteArray &file) { file.chop(Jet::PageSize); });
    add("rows missing", one, {page}, 3);
    add("rows too many", one, {page}, 1);
    add("a moved row that comes twice", one, {moved}, 2);
    add("a moved row that is not flagged", one,
        {{{Builder::u32(Builder::pointer(6, 1)), Jet::SlotIsPointer}, {textRow(QStringLiteral("x"))}}}, 2);
    add("a pointer to itself", one, {{{Builder::u32(Builder::pointer(6, 0)), Jet::SlotIsPointer}}}, 1);
    add("a pointer out of the file", one, {{{Builder::u32(0xFFFFFF00), Jet::SlotIsPointer}}}, 1);
    add("more slots than a page holds", one, {page}, 2, put(Data + 12, Builder::u16(0xFFFF)));
    add("rows that overlap", one, {page}, 2, put(Data + 14, Builder::u16(100)));
    add("a page of another table", one, {page}, 2, put(Data + 4, Builder::u32(2)));
    add("a page of another type", one, {page}, 2, put(Data, "\2"));
    add("a definition in a circle", one, {page}, 2, put(Definition + 4, Builder::u32(5)));
    add("a definition without columns", one, {page}, 2, put(Definition + 45, Builder::u16(0)));
    add("indexes without end", one, {page}, 2, put(Definition + 51, Builder::u32(0xFFFFFFFF)));
    add("a usage map out of the file", one, {page}, 2, put(Definition + 55, Builder::u32(0x00000700)));
    add("a usage map that names a page out of the file", one, {page}, 2,
        put(Maps + Jet::PageSize - 2 * 69 + 5 + 20, "\1"));
    add("a usage map that begins far behind", one, {page}, 2,
        put(Maps + Jet::PageSize - 2 * 69 + 1, Builder::u32(0xFFFFFFF0)));
    add("half a character", one, {{{Builder::row(1, {}, {QByteArray("abc")}, {0})}}}, 1);
    add("half a packed character", one, {{{Builder::row(1, {}, {QByteArray("\xFF\xFE\0a", 4)}, {0})}}}, 1);
    add("two columns of one name", {text("a", 0), text("A", 1)}, {}, 0);
    add("two columns of one place", {text("a", 0), {QStringLiteral("b"), Type::Text, 1, 0}}, {}, 0);
    add("more columns in a row than in its table", one, {{{Builder::row(9, {}, {QByteArray()}, {0})}}}, 1);
    add("a value that its row lacks", {text("a", 0), text("b", 1)},
        {{{Builder::row(2, {}, {QByteArray()}, {0, 1})}}}, 1);
    add("a row of one byte", one, {{{QByteArray(1, '\1')}}}, 1);
    add("a fixed value outside its row", {{QStringLiteral("n"), Type::Int32, 0, -1, 9000, 4}},
        {{{Builder::fixedRow(1, "abcd", {0})}}}, 1);
    add("an infinite number", {{QStringLiteral("n"), Type::Double, 0, -1, 0, 8}},
        {{{Builder::fixedRow(1, bytesOf(std::numeric_limits<double>::infinity()), {0})}}}, 1);
    add("a date that is no number", {{QStringLiteral("d"), Type::Date, 0, -1, 0, 8}},
        {{{Builder::fixedRow(1, bytesOf(std::numeric_limits<double>::quiet_NaN()), {0})}}}, 1);

    const auto addPieces = [](const char *what, quint32 flags, const Builder::Page &pieces, int pages) {
        QTest::newRow(what) << longTextsFile(pieces, flags, pages);
    };
    const auto addLong = [&](const char *what, quint32 flags, const QByteArray &piece) {
        addPieces(what, flags, {{piece}}, 1);
    };
    const QByteArray toItself = Builder::u32(Builder::pointer(5, 0));
    addLong("a long text in a circle", 20000, toItself + "abcd");
    addLong("a long text in a circle without text", 20000, toItself);
    addLong("a long text that ends early", 8, Builder::u32(0) + "abcd");
    addLong("a long text that goes on", 2, Builder::u32(0) + "abcd");
    addLong("a long text beyond its row", 0x40000000 | 9, "abcd");
    addLong("a long text beyond the file", 0x3FFFFFFF, toItself + "abcd");
    addPieces("one long text for many rows", 0x40000000 | 4000, {{QByteArray(4000, 'a')}}, 40);
    Builder::Page letters;
    for (quint32 next = 1; next < 254; ++next)
        letters.append({Builder::u32(Builder::pointer(5, next)) + "a"});
    letters.append({Builder::u32(0) + "a"});
    addPieces("a long text letter by letter for many rows", 254, letters, 40);
}

void JetReaderTest::damageIsAnError()
{
    QFETCH(QByteArray, file);
    QCOMPARE(errorOf(file), ErrorNumber::DatabaseFailure);
}

QTEST_GUILESS_MAIN(JetReaderTest)
#include "jet_reader_test.moc"
