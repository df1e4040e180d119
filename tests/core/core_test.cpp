#include "core/codepage.h"
#include "core/filecopy.h"
#include "core/numbers.h"
#include "core/optionslots.h"
#include "core/scale.h"
#include "core/symboltext.h"
#include "tests/support/files.h"
#include "tests/support/filetrouble.h"

#include <QSettings>

class CoreTest final : public QObject
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
        QCOMPARE(SymbolText::toUnicode("DWZlsz"), "ΔΩΖλσζ");
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
    }

    void readsDelimitedValues()
    {
        const std::pair<const char *, QStringList> Rows[]{
            // texts are quoted
            {"1,2\r\n3\r\n", {"1", "2", "3"}},          // a comma ends a bare value
            {"\"1\"\r\n1\r\n", {"'1'", "1"}},           // a quoted digit stays a text
            {"abc def\r\n", {"'abc def'"}},             // bare words are texts
            {"  7  \r\n\t \"x\" \t\r\n", {"7", "'x'"}}, //
            {"1\n2\r3", {"1", "2", "3"}},               // other line ends
            {"\"a\r\n2\r\n", {"'a\r\n2\r\n'"}},         // an unclosed quote runs to the end
        };
        for (const auto &[content, expected] : Rows) {
            OptionSlots options;
            read(options, content);
            QStringList values;
            for (int index = 0; index <= options.lastIndex(); ++index)
                values << QString(options(index).isText() ? "'%1'" : "%1").arg(options(index).toText());
            QCOMPARE(values, expected);
        }
    }

    void whatDoesNotFitIsAnError()
    {
        OptionSlots options;
        read(options, QByteArray("1\r\n").repeated(101));
        QCOMPARE(options.lastIndex(), 100);
        OptionSlots overfull;
        QCOMPARE(errorOf([&] { read(overfull, QByteArray("1\r\n").repeated(102)); }), ErrorNumber::Subscript);
        for (const int index : {-1, 101})
            QCOMPARE(errorOf([&] { options(index) = 1; }), ErrorNumber::Subscript);
        QCOMPARE(errorOf([&] { options.write(m_path + "/below"); }), ErrorNumber::PathNotFound);
        OptionSlots large; // its last text is not buffered
        read(large, QByteArray(20000, 'x'));
        const FullDisk disk(0);
        QCOMPARE(errorOf([&] { large.write(m_path); }), ErrorNumber::DiskFull);
    }

    // The options file is replaced in place and nothing is kept of the old one. So what a full disk or a
    // killed process leaves is the beginning of the new file, and the next start reads what there is of it.
    void aFullDiskAndAKilledWriterLeaveTheBeginning()
    {
        OptionSlots meant;
        meant.read(ALEMBRA_SOURCE "/data/program/options_uk.ini");
        meant.write(m_path);
        const QByteArray whole = readFile(m_path);
        QVERIFY(whole.size() > 1000);
        copyFileOver(m_path, m_path); // other than options, a copy is whole before it replaces anything
        QCOMPARE(readFile(m_path), whole);
        const auto requireBeginning = [&](qsizetype bytes) {
            QCOMPARE(readFile(m_path), whole.first(bytes));
            OptionSlots left;
            left.read(m_path);
            QVERIFY(left.lastIndex() <= meant.lastIndex());
            for (int index = 0; index < left.lastIndex(); ++index) // the last one may be cut
                QCOMPARE(left(index), meant(index));
        };
        for (qsizetype bytes = 0; bytes < whole.size(); bytes += 29) {
            const int number = errorOf([&] {
                const FullDisk disk{rlim_t(bytes)};
                meant.write(m_path);
            });
            QCOMPARE(number, ErrorNumber::DiskFull);
            requireBeginning(bytes);

            meant.write(m_path);
            QCOMPARE(readFile(m_path), whole);
            const pid_t writer = fork(); // it ends by its first byte beyond the limit
            QVERIFY(writer >= 0);
            if (writer == 0) {
                const FullDisk disk{rlim_t(bytes)};
                signal(SIGXFSZ, SIG_DFL);
                meant.write(m_path);
                _exit(0);
            }
            int status = 0;
            QCOMPARE(waitpid(writer, &status, 0), writer);
            QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ);
            requireBeginning(bytes);
        }
    }

    void emptyEqualsZeroAndTextEqualsNoNumber()
    {
        QVERIFY(Value().equals(0) && !Value().equals(1) && Value(1).equals(1));
        QVERIFY(!Value(QString("1")).equals(1));
        QCOMPARE(Value().toNumber(), 0.0);
        QCOMPARE(Value(QString("10")).toNumber(), 10.0);
        QVERIFY_THROWS_EXCEPTION(RuntimeError, Value(QString("ten")).toNumber());
    }

    void aWindowIsScaledInStepsOfFiveAsFarAsItFits()
    {
        const QSize window(1000, 700);
        for (const auto &[room, percent] : {std::pair(QSize(2000, 599), 85),
                                            {QSize(854, 2000), 85},
                                            {QSize(100, 100), Scale::Least},
                                            {QSize(9000, 9000), Scale::Most}})
            QCOMPARE(Scale::fitting(window, room), percent);
        for (const auto &[from, smaller, larger] :
             {std::tuple(75, 75, 90), {100, 90, 110}, {120, 110, 125}, {250, 225, 250}}) {
            QCOMPARE(Scale::smaller(from), smaller);
            QCOMPARE(Scale::larger(from), larger);
        }
        for (const auto &[points, percent] : {std::pair(9.0, 100), {10.4, 105}, {14.0, 140}, {40.0, 250}})
            QCOMPARE(Scale::forFontSize(points), percent);
    }

    void theUserChoosesOrFollowsTheDesktop()
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
        QCOMPARE(Scale::remembered(), Scale::Normal);
        QCOMPARE(Scale::chosenOr(125), 125);
        QCOMPARE(Scale::remembered(), 125);
        const Scale scale{125, 125};
        scale.choose(175);
        QCOMPARE(Scale::chosenOr(150), 175);
        QCOMPARE(Scale::remembered(), 175);
        scale.choose(125);
        QCOMPARE(Scale::remembered(), 150);
    }
};

const TestClass<CoreTest> coreTest;
#include "core_test.moc"
