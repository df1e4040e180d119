#include "tests/faults/faultrun.h"
#include "widgets/sidewindow.h"
#include "widgets/tabstrip.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>
#include <QRandomGenerator>
#include <QStringEncoder>
#include <QTest>
#include <algorithm>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

/// Options files that somebody has spoilt: the program starts with what can be read in them, or tells that
/// there are too many values, and the conversions work on whatever the units are called.
class OptionsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void damaged_data();
    void damaged();
    void forbidden();
    void killedBehindOk();

private:
    static QByteArray delivered()
    {
        QFile file(QStringLiteral(ALEMBRA_SOURCE "/data/program/options_uk.ini"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

namespace {

using Lines = QList<QByteArray>;

// The delivered lines with those of @p changes in their places.
QByteArray with(Lines lines, std::initializer_list<std::pair<int, QByteArray>> changes)
{
    for (const auto &[slot, line] : changes)
        lines[slot] = line;
    return lines.join("\r\n") + "\r\n";
}

QByteArray withUnits(Lines lines, const QByteArray &name)
{
    for (int slot = 1; slot < lines.size(); ++slot) {
        if (lines[slot].startsWith('"'))
            lines[slot] = name;
    }
    return lines.join("\r\n") + "\r\n";
}

QByteArray noise(quint32 seed, int size)
{
    QRandomGenerator random(seed);
    QByteArray bytes(size, '\0');
    for (char &byte : bytes)
        byte = char(random.bounded(256));
    return bytes;
}

// Works on every quantity: each pair of units, with a number typed.
void convertEverything(Form1 &form)
{
    if (auto *tip = form.findChild<QWidget *>(QStringLiteral("frmTip")))
        tip->close();
    form.executeCommand(1120);
    auto &tabs = *form.findChild<TabStrip *>(QStringLiteral("TabStrip3"));
    auto &field = *form.findChild<QLineEdit *>(QStringLiteral("TextBoxM1"));
    for (int tab = 0; tab < tabs.count(); ++tab) {
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab).center());
        QVERIFY(tabs.currentIndex() == tab);
        for (int list = 1; list <= 16; ++list) {
            auto &units = *form.findChild<QListWidget *>(QStringLiteral("List%1").arg(list));
            for (int row = 0; units.isVisible() && row < units.count(); ++row)
                units.setCurrentRow(row);
        }
        field.clear();
        QTest::keyClicks(&field, QStringLiteral("-12.5"));
    }
}

} // namespace

void OptionsTest::damaged_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("stands");
    QTest::addColumn<QString>("outcome");

    const QByteArray whole = delivered();
    const Lines lines = whole.chopped(2).split('\n');
    Lines bare;
    for (const QByteArray &line : lines)
        bare << line.trimmed();
    QCOMPARE(bare.size(), 90);

    const auto starts = [](const char *name, const QByteArray &content) {
        QTest::newRow(name) << content << true << QStringLiteral("runs");
    };
    const auto tooMany = [](const char *name, const QByteArray &content) {
        QTest::newRow(name) << content << false << QStringLiteral("report 9");
    };
    // The program starts, and the first conversion, which asks for the decimals, ends it: they are a text.
    const auto withoutDecimals = [](const char *name, const QByteArray &content) {
        QTest::newRow(name) << content << true << QStringLiteral("report 13");
    };
    // The program starts, and a click on the tab Length, where the selected units have no symbol, ends it.
    const auto withoutSymbol = [](const char *name, const QByteArray &content) {
        QTest::newRow(name) << content << true << QStringLiteral("report 9");
    };
    withoutSymbol("nothing but line ends", "\r\n\r\n");
    withoutSymbol("one byte", "7");
    withoutSymbol("one NUL", QByteArray(1, '\0'));
    withoutSymbol("4,096 NULs", QByteArray(4096, '\0'));
    withoutSymbol("100 lines", QByteArray("1\r\n").repeated(100));
    withoutSymbol("101 lines", QByteArray("1\r\n").repeated(101));
    tooMany("102 lines", QByteArray("1\r\n").repeated(102));
    tooMany("a million lines", QByteArray("1\r\n").repeated(1000000));
    starts("line feeds alone", bare.join('\n') + '\n');
    starts("returns alone", bare.join('\r') + '\r');
    starts("no last line end", bare.join("\r\n"));
    starts("an empty line more", whole + "\r\n");
    tooMany("every line followed by an empty one", bare.join("\r\n\r\n"));
    tooMany("line ends the wrong way round", bare.join("\n\r"));
    tooMany("the file twice", whole + whole);
    starts("the first half", whole.first(whole.size() / 2));
    withoutDecimals("the second half", whole.last(whole.size() / 2));
    withoutSymbol("a huge bare line", QByteArray(10'000'000, '9'));
    withoutSymbol("a huge quoted line", '"' + QByteArray(10'000'000, 'x') + '"');
    tooMany("a huge line of commas", QByteArray(1'000'000, ','));
    starts("quote not closed in the first line", with(bare, {{1, "\"Metre (m)"}}));
    starts("quote not closed in the last line", with(bare, {{87, "\"kWh (kWh)"}}));
    withoutSymbol("nothing but a quote", "\"");
    withoutSymbol("quotes inside a text", with(bare, {{1, "\"Me\"tre (m)\""}}));
    withoutSymbol("text behind a quote", with(bare, {{1, "\"Metre\" (m)"}}));
    withoutSymbol("comma in a bare text", with(bare, {{1, "Metre, long (m)"}}));
    starts("single quotes", with(bare, {{1, "'Metre (m)'"}}));
    withoutDecimals("mark of UTF-8 in front", "\xEF\xBB\xBF" + whole);
    starts("UTF-8 for the signs", with(bare, {{30, "\"K\xE2\x84\xAA (\xC2\xB0K)\""}}));
    tooMany("UTF-16", QStringEncoder(QStringEncoder::Utf16LE)(QString::fromLatin1(whole)));
    starts("code page of a console", with(bare, {{28, "\"Degree Celsius (\xF8"
                                                      "C)\""}}));
    starts("bytes without a character", with(bare, {{28, "\"\x81\x8D\x8F\x90\x9D (\x81)\""}}));
    starts("end-of-file mark", with(bare, {{40, "\x1A"}}));
    starts("blanks around values", '\t' + bare.join(" \r\n  ") + ' ');
    withoutSymbol("units without brackets", withUnits(bare, "\"unit\""));
    starts("units with one bracket", withUnits(bare, "\"unit (\""));
    starts("units with brackets the wrong way round", withUnits(bare, "\")unit(\""));
    withoutSymbol("units without a name", withUnits(bare, "\"\""));
    withoutSymbol("units that are numbers", withUnits(bare, "12"));
    starts("units of 100,000 letters", with(bare, {{1, '"' + QByteArray(100000, 'u') + " (u)\""}}));
    starts("decimals beyond all measure", with(bare, {{0, "1E308"}}));
    starts("decimals below nothing", with(bare, {{0, "-7"}}));
    starts("switches that are texts",
           with(bare, {{53, "yes"}, {54, "XP"}, {56, "no"}, {86, "on"}, {88, "x"}}));
    starts("switches beyond their values",
           with(bare, {{53, "2"}, {54, "99"}, {56, "7"}, {86, "1"}, {88, "-1"}}));
    for (quint32 seed = 1; seed <= 3; ++seed)
        QTest::addRow("noise %u", seed) << noise(seed, 60) << true << QStringLiteral("report 9");
}

void OptionsTest::damaged()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, stands);
    QFETCH(QString, outcome);
    const ProgramFolder folder;
    folder.write(QStringLiteral("options_uk.ini"), content);
    FaultRun run;
    run.start(folder, convertEverything);
    QCOMPARE(run.outcome(), outcome);
    QCOMPARE(run.stood, stands);
    QCOMPARE(folder.read(QStringLiteral("options_uk.ini")), content); // a start never writes it
}

void OptionsTest::forbidden()
{
    if (geteuid() == 0)
        QSKIP("the superuser may read everything");
    const ProgramFolder folder;
    const QString path = folder.path(QStringLiteral("options_uk.ini"));
    QVERIFY(QFile::setPermissions(path, {}));
    FaultRun run;
    run.start(folder);
    QCOMPARE(run.outcome(), QStringLiteral("report 75"));
    QVERIFY(run.boxNames(path));
}

namespace {

// Turns the grid lines on or off and presses OK.
void pressOk(Form1 &form)
{
    form.executeCommand(1058);
    auto *window = form.findChild<SideWindow *>(QStringLiteral("Formoptions"));
    window->findChild<QAbstractButton *>(QStringLiteral("Check1(6)"))->click();
    window->findChild<QAbstractButton *>(QStringLiteral("XPButton1"))->click();
    delete window; // the event loop would do it later
}

} // namespace

// What a kill leaves is one of the two files that were meant or the beginning of one, and the program starts
// on it.
void OptionsTest::killedBehindOk()
{
    const ProgramFolder folder;
    const QString options = QStringLiteral("options_uk.ini");
    QSet<QByteArray> meant;
    QSet<QByteArray> left;
    FaultRun run;
    run.start(folder, [&](Form1 &form) {
        for (int twice = 0; twice < 2; ++twice) {
            pressOk(form);
            meant << folder.read(options);
        }
        QRandomGenerator random(11);
        for (int round = 0; round < 200; ++round) {
            const pid_t child = fork();
            while (child == 0) // NOLINT(bugprone-infinite-loop): until the kill
                pressOk(form);
            usleep(useconds_t(1000 + random.bounded(20000)));
            kill(child, SIGKILL);
            waitpid(child, nullptr, 0);
            left << folder.read(options);
        }
    });
    QCOMPARE(run.outcome(), QStringLiteral("runs"));
    QCOMPARE(meant.size(), 2);
    QVERIFY(left.size() > 1); // the children came to write
    for (const QByteArray &content : std::as_const(left)) {
        QVERIFY(std::any_of(meant.cbegin(), meant.cend(),
                            [&](const QByteArray &whole) { return whole.startsWith(content); }));
        folder.write(options, content);
        FaultRun next;
        next.start(folder);
        QCOMPARE(next.outcome(), QStringLiteral("runs"));
    }
}

QTEST_MAIN(OptionsTest)
#include "options_test.moc"
