#include "core/optionslots.h"

#include "core/runtimeerror.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class OptionSlotsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTripKeepsEveryByte();
    void readsDelimitedValues_data();
    void readsDelimitedValues();
    void fileKeepsItsLength();
    void emptyFileStaysEmpty();
    void hundredAndSecondValueIsASubscriptError();
    void failuresNameTheFile();
    void indexIsChecked();
    void emptyEqualsZeroAndTextEqualsNoNumber();

private:
    QString put(const QByteArray &content)
    {
        QFile file(m_folder.filePath(QStringLiteral("options_uk.ini")));
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("no temporary file");
        file.write(content);
        return file.fileName();
    }

    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    QTemporaryDir m_folder;
};

void OptionSlotsTest::roundTripKeepsEveryByte()
{
    const QByteArray content =
        "10\r\n\"micrometer (\xB5m)\"\r\n\"a, b\"\r\n\"1\"\r\n\r\n-0.5\r\n1.5E+20\r\n\"\x80 \x81\"\r\n";
    const QString path = put(content);
    OptionSlots options;

    options.read(path);
    QCOMPARE(options(1).toText(), QStringLiteral("micrometer (µm)"));
    options.write(path);

    QCOMPARE(contentOf(path), content);
}

void OptionSlotsTest::readsDelimitedValues_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QList<QString>>("texts");
    QTest::addColumn<QList<bool>>("isText");

    QTest::newRow("a comma ends a bare value")
        << QByteArray("1,2\r\n3\r\n") << QList<QString>{"1", "2", "3"} << QList<bool>{false, false, false};
    QTest::newRow("a quoted digit stays a text")
        << QByteArray("\"1\"\r\n1\r\n") << QList<QString>{"1", "1"} << QList<bool>{true, false};
    QTest::newRow("bare words are texts")
        << QByteArray("abc def\r\n") << QList<QString>{"abc def"} << QList<bool>{true};
    QTest::newRow("blanks around values")
        << QByteArray("  7  \r\n\t \"x\" \t\r\n") << QList<QString>{"7", "x"} << QList<bool>{false, true};
    QTest::newRow("other line ends") << QByteArray("1\n2\r3") << QList<QString>{"1", "2", "3"}
                                     << QList<bool>{false, false, false};
    QTest::newRow("an unclosed quote runs to the end")
        << QByteArray("\"a\r\n2\r\n") << QList<QString>{"a\r\n2\r\n"} << QList<bool>{true};
}

void OptionSlotsTest::readsDelimitedValues()
{
    QFETCH(QByteArray, content);
    QFETCH(QList<QString>, texts);
    QFETCH(QList<bool>, isText);
    OptionSlots options;

    options.read(put(content));

    QCOMPARE(options.lastIndex(), int(texts.size()) - 1);
    for (int index = 0; index < texts.size(); ++index) {
        QCOMPARE(options(index).toText(), texts[index]);
        QCOMPARE(options(index).isText(), isText[index]);
    }
}

void OptionSlotsTest::fileKeepsItsLength()
{
    const QString path = put("1\r\n2\r\n");
    OptionSlots options;
    options.read(path);

    options(1) = 5;
    options(60) = QStringLiteral("beyond the file");
    options.write(path);

    QCOMPARE(contentOf(path), QByteArray("1\r\n5\r\n"));
}

void OptionSlotsTest::emptyFileStaysEmpty()
{
    const QString path = put("");
    OptionSlots options;
    options.read(path);
    QCOMPARE(options.lastIndex(), -1);

    options(0) = 1;
    options.write(path);

    QCOMPARE(contentOf(path), QByteArray());
}

void OptionSlotsTest::hundredAndSecondValueIsASubscriptError()
{
    OptionSlots full;
    full.read(put(QByteArray("1\r\n").repeated(101)));
    QCOMPARE(full.lastIndex(), 100);

    OptionSlots overfull;
    try {
        overfull.read(put(QByteArray("1\r\n").repeated(102)));
        QFAIL("102 values were taken");
    } catch (const RuntimeError &error) {
        QCOMPARE(error.number(), ErrorNumber::Subscript);
    }
}

void OptionSlotsTest::failuresNameTheFile()
{
    const auto numberOf = [](const QString &path, auto operation) {
        try {
            operation(path);
        } catch (const RuntimeError &error) {
            return error.report().contains(path) ? error.number() : -1;
        }
        return 0;
    };
    const auto read = [](const QString &path) { OptionSlots().read(path); };
    const auto write = [](const QString &path) { OptionSlots().write(path); };

    QCOMPARE(numberOf(m_folder.filePath(QStringLiteral("missing.ini")), read), ErrorNumber::FileNotFound);
    QCOMPARE(numberOf(m_folder.path(), read), ErrorNumber::PathAccess);
    QCOMPARE(numberOf(m_folder.path(), write), ErrorNumber::PathAccess);
    QCOMPARE(numberOf(m_folder.filePath(QStringLiteral("no/folder.ini")), write), ErrorNumber::PathNotFound);
}

void OptionSlotsTest::indexIsChecked()
{
    OptionSlots options;
    QVERIFY_THROWS_EXCEPTION(RuntimeError, options(101));
    QVERIFY_THROWS_EXCEPTION(RuntimeError, options(-1));
}

void OptionSlotsTest::emptyEqualsZeroAndTextEqualsNoNumber()
{
    QVERIFY(Value().equals(0));
    QVERIFY(!Value().equals(1));
    QVERIFY(Value(1).equals(1));
    QVERIFY(!Value(QStringLiteral("1")).equals(1));
    QCOMPARE(Value().toNumber(), 0.0);
    QCOMPARE(Value(QStringLiteral("10")).toNumber(), 10.0);
    QVERIFY_THROWS_EXCEPTION(RuntimeError, Value(QStringLiteral("ten")).toNumber());
}

QTEST_APPLESS_MAIN(OptionSlotsTest)
#include "optionslots_test.moc"
