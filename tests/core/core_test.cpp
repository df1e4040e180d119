#include "core/codepage.h"
#include "core/filecopy.h"
#include "core/numbers.h"
#include "core/symboltext.h"
#include "tests/support/files.h"
#include "tests/support/testclass.h"

#include <QTemporaryDir>

class CoreTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codePageGivesEveryByteBack()
    {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte)
            all.append(char(byte));
        QCOMPARE(CodePage::encode(CodePage::decode(all)), all);
        QCOMPARE(CodePage::decode("\x80\x9F\xB5\xB0"), "€Ÿµ°");
        QCOMPARE(CodePage::encode(QString("aα→😀b")), "a???b");
        // Half of a pair is a character of its own, and takes none of what follows with it.
        QCOMPARE(CodePage::encode(QChar(0xD83D) + QString("a") + QChar(0xD83D)), "?a?");
        QVERIFY(!CodePage::contains(u'≡'));
    }

    void symbolLettersBecomeSigns()
    {
        QCOMPARE(SymbolText::toUnicode("a, b-, b+, e, ~é"), "α, β−, β+, ε, ~é");
        QCOMPARE(SymbolText::decayModes("b-, e, IT, SF"), "β−, ε, IT, SF");
        QCOMPARE(SymbolText::toUnicode("DWlsz"), "ΔΩλσζ");
    }

    void invariantNumbers()
    {
        QCOMPARE(Numbers::parseInvariant(u"1.5E-7"), 1.5E-7);
        for (const char *text : {"1,5", "1,000", "inf", "nan", "1E999", " 1", "0x10", "", "-"})
            QVERIFY2(!Numbers::parseInvariant(QString(text)), text);
        const std::pair<double, const char *> Formatted[]{
            {1000, "1000"},  {1.0 / 3, "0.333333333333333"}, {0.1 + 0.2, "0.3"}, // no trace of binary
            {1e15, "1E+15"}, {1.66e-24, "1.66E-24"},         {-0.0, "0"},
        };
        for (const auto &[number, text] : Formatted)
            QCOMPARE(Numbers::formatInvariant(number), text);
    }

    void whatIsWrittenReadsBackInEveryLocale()
    {
        // Comma; narrow blanks between groups; exponent of several characters; minus of its own; marks of
        // direction; digits of its own.
        for (const char *locale :
             {"de_DE.UTF-8", "fr_FR.UTF-8", "sv_SE.UTF-8", "nb_NO.UTF-8", "he_IL.UTF-8", "ar_EG.UTF-8"}) {
            inLocale(locale, [] {
                for (const double number : {-1.5E-20, 6.25E+23, -0.375, 1234567.5, 1E-5, 0.0})
                    QCOMPARE(Numbers::parseLocal(Numbers::formatLocal(number)), number);
                QCOMPARE(Numbers::formatLocal(-1.5E-20), "-1" + Numbers::decimalPoint() + "5E-20");
            });
        }
    }

    void copyReplacesWholeOrNotAtAll()
    {
        const QTemporaryDir folder;
        const QString source = folder.filePath("source");
        const QString destination = folder.filePath("destination");
        writeFile(source, "new");
        writeFile(destination, "something old");
        copyFileOver(source, destination);
        QCOMPARE(readFile(destination), "new");
        copyFileOver(source, source);
        QCOMPARE(readFile(source), "new");
        QVERIFY_THROWS_EXCEPTION(RuntimeError, copyFileOver(folder.filePath("none"), destination));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, copyFileOver(source, folder.path()));
        QCOMPARE(readFile(destination), "new");
    }
};

const TestClass<CoreTest> coreTest;
#include "core_test.moc"
