#include "jetfilebuilder.h"

#include "core/runtimeerror.h"
#include "store/jet/jetfile.h"
#include "tests/support/testclass.h"

#include <functional>
#include <limits>

using Jet::Type;
using Builder = JetFileBuilder;

namespace {

const QString Table = QStringLiteral("t");
constexpr int RowsInPage = 150;

constexpr auto bytesOf = [](auto value) { return Builder::little(value); };

// The cells of the table, "a|b" for a row, NULL without value; or the error.
QString read(const QByteArray &bytes, const QString &password = {})
{
    QStringList rows;
    try {
        const JetFile file = JetFile::fromBytes(bytes, password);
        const JetDefinition table = file.table(Table);
        JetCursor cursor = file.rows(table);
        while (cursor.next()) {
            QStringList cells;
            for (const JetColumn &column : table.columns)
                cells << cursor.text(column).value_or("NULL");
            rows << cells.join('|');
        }
    } catch (const RuntimeError &error) {
        return error.number() == ErrorNumber::DatabaseFailure ? "damaged" : QString::number(error.number());
    }
    return rows.join('\n');
}

Builder::Column text(const char *name, int number, bool packed = true)
{
    return {name, Type::Text, number, number, 0, 510, packed};
}

QByteArray file(const QList<Builder::Column> &columns, const QList<Builder::Page> &pages, int rows)
{
    Builder builder;
    builder.addTable(Table, columns, pages, quint32(rows));
    return builder.file();
}

QByteArray textRow(const char *text)
{
    return Builder::row(1, {}, {Builder::utf16(text)}, {0});
}

// A row of one value in its variable part.
QByteArray valueRow(const QByteArray &value)
{
    return Builder::row(1, {}, {value}, {0});
}

// Every row of @p pages pages names the long text that begins with the first of
// @p pieces, on page 5.
QByteArray longTextsFile(const Builder::Page &pieces, quint32 flags, int pages)
{
    Builder builder;
    const quint32 first = builder.addLongValuePage(pieces);
    const QByteArray cell = Builder::u32(flags) + Builder::u32(Builder::pointer(first, 0)) + Builder::u32(0);
    const Builder::Page rows(RowsInPage, {valueRow(cell)});
    builder.addTable(Table, {{"m", Type::Memo, 0, 0}}, QList<Builder::Page>(pages, rows),
                     quint32(pages * RowsInPage));
    return builder.file();
}

} // namespace

/// What our own tool never writes, and what a file must not be able to make the
/// reader do.
class JetReaderTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesBecomeTexts()
    {
        const auto decimal = [](bool negative, quint32 high, quint32 low) {
            return QByteArray(1, negative ? '\x80' : '\0') + bytesOf(high) + QByteArray(8, '\0') +
                   bytesOf(low);
        };
        const auto shortDate = [](int year, int month, int day) {
            return QLocale::system().toString(QDate(year, month, day), QLocale::ShortFormat);
        };
        const struct
        {
            Type type;
            QByteArray value;
            QString expected;
            int scale = 0;
        } rows[] = {
            {Type::Byte, bytesOf(quint8(200)), "200"},
            {Type::Int16, bytesOf(qint16(-32768)), "-32768"},
            {Type::Int32, bytesOf(qint32(-5)), "-5"},
            {Type::Single, bytesOf(0.1F), "0.1"},                  // 7 digits
            {Type::Double, bytesOf(1.0 / 3), "0.333333333333333"}, // 15 digits
            {Type::Double, bytesOf(6.02214076E23), "6.02214076E+23"},
            {Type::Currency, bytesOf(qint64(120000)), "12"},
            {Type::Currency, bytesOf(qint64(-125)), "-0.0125"},
            {Type::Currency, bytesOf(std::numeric_limits<qint64>::min()), "-922337203685477.5808"},
            {Type::Decimal, decimal(true, 0, 12345), "-1.2345", 4},
            {Type::Decimal, decimal(false, 0, 5), "0.005", 3},
            {Type::Decimal, decimal(false, 1, 0), "79228162514264337593543950336"},
            {Type::Decimal, decimal(true, 0, 0), "0", 2},
            {Type::Date, bytesOf(0.25), "06:00:00"},
            {Type::Date, bytesOf(-1.25), shortDate(1899, 12, 29) + " 06:00:00"}, // before day 0
            {Type::Date, bytesOf(42329.0), shortDate(2015, 11, 21)},
            {Type::Guid, QByteArray::fromHex("33221100554477668899AABBCCDDEEFF"),
             "{00112233-4455-6677-8899-AABBCCDDEEFF}"},
            {Type::Text, Builder::utf16("ab "), "ab "}, // of fixed length
            {Type::Binary, "abcd", "13"},               // no text: a type mismatch
            {Type::Ole, "abcd", "13"},
            {Type(0x63), "abcd", "13"},
        };
        for (const auto &[type, value, expected, scale] : rows) {
            const QByteArray whole = file({{"before", Type::Byte, 0, -1, 0, 1},
                                           {"value", type, 1, -1, 1, int(value.size()), false, scale},
                                           {"yes", Type::Boolean, 2, -1, 0, 1}},
                                          {{{Builder::fixedRow(3, QByteArray(1, '\7') + value, {0, 1, 2})},
                                            {Builder::fixedRow(3, QByteArray(1 + value.size(), '\7'), {})}}},
                                          2);
            QCOMPARE(read(whole), expected == "13" ? expected : "7|" + expected + "|True\nNULL|NULL|False");
        }
    }

    void nullIsNotTheEmptyText()
    {
        const Builder::Page page{{Builder::row(2, {}, {std::nullopt, QByteArray()}, {1})}};
        QCOMPARE(read(file({text("a", 0), text("b", 1)}, {page}, 1)), QString("NULL|"));
        // A column that was added later is Null in the rows of before.
        QCOMPARE(read(file({text("a", 0), text("b", 1), {"n", Type::Int32, 2, -1, 0, 4}},
                           {{{textRow("old")}}}, 1)),
                 QString("old|NULL|NULL"));
    }

    void packedTexts()
    {
        const QByteArray alpha("\xB1\x03", 2);
        const std::tuple<QByteArray, QString, bool> rows[] = {
            {"\xFF\xFE\x61\xE9", "a\u00E9", true},
            {QByteArray("\xFF\xFE\x61\0", 4) + alpha + alpha, "a\u03B1\u03B1", true}, // two bytes to the end
            {QByteArray("\xFF\xFE\0", 3) + alpha + QByteArray("\0b", 2), "\u03B1b", true},
            {"\xFF\xFE", "", true},
            {alpha, "\u03B1", true},
            {"\xFF\xFE\x61\x62", QStringLiteral("\uFEFF\u6261"), false},
        };
        for (const auto &[stored, expected, packed] : rows)
            QCOMPARE(read(file({text("a", 0, packed)}, {{{valueRow(stored)}}}, 1)), expected);
    }

    void longTexts()
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
        const auto row = [](quint32 flags, quint32 pointer, const QByteArray &inRow = {}) {
            return valueRow(Builder::u32(flags) + Builder::u32(pointer) + Builder::u32(0) + inRow);
        };
        builder.addTable(Table, {{"m", Type::Memo, 0, 0}},
                         {{{row(0x80000000 | 4, 0, Builder::utf16("in"))},
                           {row(0x40000000 | 9, Builder::pointer(shared, 1))},
                           {row(10000, Builder::pointer(first, 0))},
                           {row(0x80000000, 0)}}},
                         4);
        QCOMPARE(read(builder.file()), "in\none row\n" + text + '\n');
        // Reading a text costs the same however many others are on its page.
        const Builder::Page page(900, {QByteArray("ab")});
        QCOMPARE(read(longTextsFile(page, 0x40000000 | 2, 40)).count("\u6261"), 40 * RowsInPage);
    }

    void deletedAndMovedRows()
    {
        Builder builder;
        const quint32 secondPage = builder.nextPage() + 2;
        const Builder::Page first{
            {textRow("1")},
            {textRow("gone"), Jet::SlotIsDeleted},
            {Builder::u32(Builder::pointer(secondPage, 1)), Jet::SlotIsPointer},
            {QByteArray(), Jet::SlotIsDeleted},
            {Builder::u32(0), quint16(Jet::SlotIsDeleted | Jet::SlotIsPointer)},
            {textRow("3")},
        };
        const Builder::Page second{{textRow("4")}, {textRow("2"), Jet::SlotIsDeleted}};
        builder.addTable(Table, {text("a", 0)}, {first, second}, 4);
        QCOMPARE(read(builder.file()), QString("1\n2\n3\n4"));
    }

    // 200 columns of 25 + 2 + 8 bytes take two pages; 256 are more than there may be.
    void longDefinitionsAndBitmapPages()
    {
        for (const int count : {200, 256}) {
            Builder builder;
            QList<Builder::Column> columns;
            QList<std::optional<QByteArray>> values(count, QByteArray());
            values.last() = Builder::utf16("end");
            QList<int> present;
            for (int i = 0; i < count; ++i) {
                columns.append(text(qPrintable(QStringLiteral("c%1").arg(i, 3)), i));
                present.append(i);
            }
            builder.useBitmapPage();
            builder.addTable(Table, columns, {{{Builder::row(count, {}, values, present)}}}, 1);
            QCOMPARE(read(builder.file()), count == 200 ? QString(199, '|') + "end" : "damaged");
        }
    }

    void passwordsAndEncodedPages()
    {
        Builder builder;
        builder.addTable(Table, {text("a", 0)}, {{{textRow("secret")}}}, 1);
        const QByteArray encoded = builder.file("Pass", 0xDEADBEEF);
        QVERIFY(!encoded.contains(Builder::utf16("secret")));
        const QString full(20, 'x');
        for (const auto &[file, password, expected] :
             {std::tuple<QByteArray, QString, QString>{encoded, "Pass", "secret"},
              {encoded, "pass", "damaged"},
              {builder.file(), "any", "secret"}, // without a password any will do
              {builder.file(full), full, "secret"},
              {builder.file(full), full.chopped(1), "damaged"}})
            QCOMPARE(read(file, password), expected);
    }

    // The definition is page 5, the data page 6.
    void damagedPagesAreErrors()
    {
        const QList<Builder::Column> one{text("a", 0)};
        const Builder::Page page{{textRow("abc")}, {textRow("def")}};
        const QByteArray whole = file(one, {page}, 2);
        constexpr qsizetype Definition = 5 * Jet::PageSize;
        constexpr qsizetype Data = 6 * Jet::PageSize;
        constexpr qsizetype Map = 4 * Jet::PageSize - 2 * 69;
        for (const auto &[what, at, bytes] :
             {std::tuple<const char *, qsizetype, QByteArray>{"more slots than a page holds", Data + 12,
                                                              Builder::u16(0xFFFF)},
              {"rows that overlap", Data + 14, Builder::u16(100)},
              {"a page of another table", Data + 4, Builder::u32(2)},
              {"a page of another type", Data, "\2"},
              {"a definition in a circle", Definition + 4, Builder::u32(5)},
              {"a definition without columns", Definition + 45, Builder::u16(0)},
              {"indexes without end", Definition + 51, Builder::u32(0xFFFFFFFF)},
              {"a usage map out of the file", Definition + 55, Builder::u32(0x00000700)},
              {"a usage map that names a page out of the file", Map + 5 + 20, "\1"},
              {"a usage map that begins beyond the file", Map + 1, Builder::u32(0xFFFFFFF0)}}) {
            QByteArray damaged = whole;
            damaged.replace(at, bytes.size(), bytes);
            QVERIFY2(read(damaged) == "damaged", what);
        }
        QCOMPARE(read(whole), QString("abc\ndef"));
        QCOMPARE(read(whole.chopped(1)), QString("damaged"));
        QCOMPARE(read(whole.chopped(Jet::PageSize)), QString("damaged"));
        QCOMPARE(read(file(one, {page}, 3)), QString("damaged")); // rows missing
        QCOMPARE(read(file(one, {page}, 1)), QString("damaged")); // rows too many
    }

    void damagedRowsAreErrors()
    {
        const QByteArray next = Builder::u32(Builder::pointer(6, 1));
        const QByteArray infinite = bytesOf(std::numeric_limits<double>::infinity());
        const QList<Builder::Column> one{text("a", 0)};
        const QList<Builder::Column> two{text("a", 0), text("b", 1)};
        const auto check = [](const char *what, const QList<Builder::Column> &columns,
                              const Builder::Page &page,
                              int rows) { QVERIFY2(read(file(columns, {page}, rows)) == "damaged", what); };
        check("a moved row that comes twice", one,
              {{next, Jet::SlotIsPointer}, {textRow("x"), Jet::SlotIsDeleted}, {next, Jet::SlotIsPointer}},
              2);
        check("a moved row that is not flagged", one, {{next, Jet::SlotIsPointer}, {textRow("x")}}, 2);
        check("a pointer to itself", one, {{Builder::u32(Builder::pointer(6, 0)), Jet::SlotIsPointer}}, 1);
        check("a pointer out of the file", one, {{Builder::u32(0xFFFFFF00), Jet::SlotIsPointer}}, 1);
        check("half a character", one, {{valueRow("abc")}}, 1);
        check("half a packed character", one, {{valueRow(QByteArray("\xFF\xFE\0a", 4))}}, 1);
        check("two columns of one name", {text("a", 0), text("A", 1)}, {}, 0);
        check("two columns of one place", {text("a", 0), {"b", Type::Text, 1, 0}}, {}, 0);
        check("more columns than the table", one, {{Builder::row(9, {}, {QByteArray()}, {0})}}, 1);
        check("a value that its row lacks", two, {{Builder::row(2, {}, {QByteArray()}, {0, 1})}}, 1);
        check("a row of one byte", one, {{QByteArray(1, '\1')}}, 1);
        check("outside its row", {{"n", Type::Int32, 0, -1, 9000, 4}}, {{Builder::fixedRow(1, "abcd", {0})}},
              1);
        check("infinite", {{"n", Type::Double, 0, -1, 0, 8}}, {{Builder::fixedRow(1, infinite, {0})}}, 1);
        for (const double days : {std::numeric_limits<double>::quiet_NaN(), 1E7}) // 1E7 is in the year 29,279
            check("no date", {{"d", Type::Date, 0, -1, 0, 8}}, {{Builder::fixedRow(1, bytesOf(days), {0})}},
                  1);
    }

    void damagedLongTextsAreErrors()
    {
        const QByteArray toItself = Builder::u32(Builder::pointer(5, 0));
        Builder::Page letters;
        for (quint32 next = 1; next <= 254; ++next)
            letters.append({Builder::u32(next < 254 ? Builder::pointer(5, next) : 0) + "a"});
        const auto check = [](const char *what, quint32 flags, const Builder::Page &pieces, int pages = 1) {
            QVERIFY2(read(longTextsFile(pieces, flags, pages)) == "damaged", what);
        };
        check("in a circle", 20000, {{toItself + "abcd"}});
        check("in a circle without text", 20000, {{toItself}});
        check("ends early", 8, {{Builder::u32(0) + "abcd"}});
        check("goes on", 2, {{Builder::u32(0) + "abcd"}});
        check("beyond its row", 0x40000000 | 9, {{"abcd"}});
        check("beyond the file", 0x3FFFFFFF, {{toItself + "abcd"}});
        check("one for many rows", 0x40000000 | 4000, {{QByteArray(4000, 'a')}}, 40);
        check("letter by letter for many rows", 254, letters, 40);
    }
};

const TestClass<JetReaderTest> jetReaderTest;
#include "jet_reader_test.moc"
