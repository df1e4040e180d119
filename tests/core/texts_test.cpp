#include "core/codepage.h"
#include "core/filecopy.h"
#include "core/numbers.h"
#include "core/runtimeerror.h"
#include "core/symboltext.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TextsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codePageGivesEveryByteBack();
    void codePageWritesQuestionMarksForWhatItLacks();
    void symbolLettersBecomeSigns();
    void fixedNumbers_data();
    void fixedNumbers();
    void numbersAreWrittenShort_data();
    void numbersAreWrittenShort();
    void copyReplacesWholeOrNotAtAll();
};

void TextsTest::codePageGivesEveryByteBack()
{
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all.append(char(byte));
    QCOMPARE(CodePage::encode(CodePage::decode(all)), all);
    QCOMPARE(CodePage::decode("\x80\x9F\xB5\xB0"), QStringLiteral("€Ÿµ°"));
}

void TextsTest::codePageWritesQuestionMarksForWhatItLacks()
{
    QCOMPARE(CodePage::encode(QStringLiteral("aα→😀b")), QByteArray("a???b"));
    // Half of a pair is a character of its own, and takes none of what follows with it.
    QCOMPARE(CodePage::encode(QChar(0xD83D) + QStringLiteral("a") + QChar(0xD83D)), QByteArray("?a?"));
    QVERIFY(!CodePage::contains(QChar(u'≡')));
}

void TextsTest::symbolLettersBecomeSigns()
{
    QCOMPARE(SymbolText::toUnicode(QStringLiteral("a, b-, b+, e, ~é")), QStringLiteral("α, β−, β+, ε, ~é"));
    QCOMPARE(SymbolText::decayModes(QStringLiteral("b-, e, IT, SF")), QStringLiteral("β−, ε, IT, SF"));
    QCOMPARE(SymbolText::toUnicode(QStringLiteral("DWls")), QStringLiteral("ΔΩλσ"));
}

void TextsTest::fixedNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isNumber");

    QTest::newRow("exponent") << QStringLiteral("1.5E-7") << true;
    QTest::newRow("comma") << QStringLiteral("1,5") << false;
    QTest::newRow("group") << QStringLiteral("1,000") << false;
    QTest::newRow("infinite") << QStringLiteral("inf") << false;
    QTest::newRow("nan") << QStringLiteral("nan") << false;
    QTest::newRow("overflow") << QStringLiteral("1E999") << false;
    QTest::newRow("blanks") << QStringLiteral(" 1") << false;
    QTest::newRow("hexadecimal") << QStringLiteral("0x10") << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("sign alone") << QStringLiteral("-") << false;
}

void TextsTest::fixedNumbers()
{
    QFETCH(QString, text);
    QFETCH(bool, isNumber);
    QCOMPARE(Numbers::parseInvariant(text).has_value(), isNumber);
}

void TextsTest::numbersAreWrittenShort_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("text");

    QTest::newRow("whole") << 1000.0 << QStringLiteral("1000");
    QTest::newRow("15 digits") << 1.0 / 3 << QStringLiteral("0.333333333333333");
    QTest::newRow("no trace of binary") << 0.1 + 0.2 << QStringLiteral("0.3");
    QTest::newRow("large") << 1e15 << QStringLiteral("1E+15");
    QTest::newRow("small") << 1.66e-24 << QStringLiteral("1.66E-24");
    QTest::newRow("no negative zero") << -0.0 << QStringLiteral("0");
}

void TextsTest::numbersAreWrittenShort()
{
    QFETCH(double, number);
    QFETCH(QString, text);
    QCOMPARE(Numbers::formatInvariant(number), text);
}

void TextsTest::copyReplacesWholeOrNotAtAll()
{
    const QTemporaryDir folder;
    const auto put = [&](const char *name, const QByteArray &content) {
        QFile file(folder.filePath(QLatin1StringView(name)));
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
        return file.fileName();
    };
    const auto contentOf = [](const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QString source = put("source", "new");
    const QString destination = put("destination", "something old");

    copyFileOver(source, destination);
    QCOMPARE(contentOf(destination), QByteArray("new"));
    copyFileOver(source, source);
    QCOMPARE(contentOf(source), QByteArray("new"));

    QVERIFY_THROWS_EXCEPTION(RuntimeError,
                             copyFileOver(folder.filePath(QStringLiteral("none")), destination));
    QVERIFY_THROWS_EXCEPTION(RuntimeError, copyFileOver(source, folder.path()));
    QCOMPARE(contentOf(destination), QByteArray("new"));
}

QTEST_APPLESS_MAIN(TextsTest)
#include "texts_test.moc"
