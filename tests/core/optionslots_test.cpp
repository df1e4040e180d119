#include "core/optionslots.h"
#include "tests/support/files.h"
#include "tests/support/testclass.h"

#include <QTemporaryDir>

class OptionSlotsTest final : public QObject
{
    Q_OBJECT

    const QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath("options_uk.ini");

    void read(OptionSlots &options, const QByteArray &content) const
    {
        writeFile(m_path, content);
        options.read(m_path);
    }

private Q_SLOTS:
    void aFileKeepsEveryByteAndItsLength()
    {
        const QByteArray content =
            "10\r\n\"micrometer (\xB5m)\"\r\n\"a, b\"\r\n\"1\"\r\n\r\n-0.5\r\n1.5E+20\r\n"
            "\"\x80 \x81\"\r\n";
        OptionSlots options;
        read(options, content);
        QCOMPARE(options(1).toText(), "micrometer (µm)");
        options.write(m_path);
        QCOMPARE(readFile(m_path), content);

        OptionSlots two;
        read(two, "1\r\n2\r\n");
        two(1) = 5;
        two(60) = QString("beyond the file");
        two.write(m_path);
        QCOMPARE(readFile(m_path), "1\r\n5\r\n");

        OptionSlots none;
        read(none, "");
        QCOMPARE(none.lastIndex(), -1);
        none(0) = 1;
        none.write(m_path);
        QCOMPARE(readFile(m_path), "");
    }

    void readsDelimitedValues()
    {
        const struct
        {
            const char *content;
            QStringList values; ///< texts in quotes
        } Rows[]{
            {"1,2\r\n3\r\n", {"1", "2", "3"}},          // a comma ends a bare value
            {"\"1\"\r\n1\r\n", {"'1'", "1"}},           // a quoted digit stays a text
            {"abc def\r\n", {"'abc def'"}},             // bare words are texts
            {"  7  \r\n\t \"x\" \t\r\n", {"7", "'x'"}}, //
            {"1\n2\r3", {"1", "2", "3"}},               // other line ends
            {"\"a\r\n2\r\n", {"'a\r\n2\r\n'"}},         // an unclosed quote runs to the end
        };
        for (const auto &row : Rows) {
            OptionSlots options;
            read(options, row.content);
            QStringList values;
            for (int index = 0; index <= options.lastIndex(); ++index)
                values << QString(options(index).isText() ? "'%1'" : "%1").arg(options(index).toText());
            QCOMPARE(values, row.values);
        }
    }

    void whatDoesNotFitIsAnErrorThatNamesTheFile()
    {
        OptionSlots options;
        read(options, QByteArray("1\r\n").repeated(101));
        QCOMPARE(options.lastIndex(), 100);
        OptionSlots overfull;
        QCOMPARE(errorOf([&] { read(overfull, QByteArray("1\r\n").repeated(102)); }), ErrorNumber::Subscript);
        for (const int index : {-1, 101})
            QCOMPARE(errorOf([&] { options(index) = 1; }), ErrorNumber::Subscript);

        const auto failure = [](const QString &path, auto operation) {
            try {
                (OptionSlots().*operation)(path);
            } catch (const RuntimeError &error) {
                return error.report().contains(path) ? error.number() : -1;
            }
            return 0;
        };
        QCOMPARE(failure(m_folder.filePath("missing.ini"), &OptionSlots::read), ErrorNumber::FileNotFound);
        QCOMPARE(failure(m_folder.path(), &OptionSlots::read), ErrorNumber::PathAccess);
        QCOMPARE(failure(m_folder.path(), &OptionSlots::write), ErrorNumber::PathAccess);
        QCOMPARE(failure(m_folder.filePath("no/folder.ini"), &OptionSlots::write), ErrorNumber::PathNotFound);
    }

    void emptyEqualsZeroAndTextEqualsNoNumber()
    {
        QVERIFY(Value().equals(0) && !Value().equals(1) && Value(1).equals(1));
        QVERIFY(!Value(QString("1")).equals(1));
        QCOMPARE(Value().toNumber(), 0.0);
        QCOMPARE(Value(QString("10")).toNumber(), 10.0);
        QVERIFY_THROWS_EXCEPTION(RuntimeError, Value(QString("ten")).toNumber());
    }
};

const TestClass<OptionSlotsTest> optionSlotsTest;
#include "optionslots_test.moc"
