#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// The tool that makes the database, run on copies of the delivered table files.
class MakeDatabaseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void sameTablesGiveTheSameBytes();
    void refusesWithFileAndLine_data();
    void refusesWithFileAndLine();
    void refusesAMissingTable();
    void refusesAFileThatIsNoTable();
    void refusesMoreTextThanTheFileTakes();
    void chartNamesMayHoldAnyCharacter();
    void aRefusalLeavesTheOldDatabase();
    void notesBelongToTheRowsThatTheyName();

private:
    struct Outcome
    {
        int status;
        QString errors;
    };

    QString table(const QString &name) const
    {
        return m_folder->filePath(QStringLiteral("tables/%1").arg(name));
    }
    QString database() const { return m_folder->filePath(QStringLiteral("made.mdb")); }
    Outcome make() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

const QString Tables = QStringLiteral(ALEMBRA_SOURCE "/data/tables");

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool replace(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size();
}

// The lines without their ends; the last one is empty, as the file ends with a line feed.
QList<QByteArray> linesOf(const QString &path)
{
    return contents(path).split('\n');
}

} // namespace

void MakeDatabaseTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QDir().mkdir(m_folder->filePath(QStringLiteral("tables")));
    for (const QString &name : QDir(Tables).entryList(QDir::Files))
        QVERIFY(QFile::copy(Tables + u'/' + name, table(name)));
}

MakeDatabaseTest::Outcome MakeDatabaseTest::make() const
{
    QProcess tool;
    tool.start(QStringLiteral(MAKE_DATABASE), {m_folder->filePath(QStringLiteral("tables")), database()});
    tool.waitForFinished();
    return {tool.exitCode(), QString::fromUtf8(tool.readAllStandardError())};
}

void MakeDatabaseTest::sameTablesGiveTheSameBytes()
{
    QCOMPARE(make().status, 0);
    QVERIFY(!contents(database()).isEmpty());
    QVERIFY(contents(database()) == contents(QStringLiteral(ALEMBRA_FOLDER "/Data/Database_uk.mdb")));
}

void MakeDatabaseTest::refusesWithFileAndLine_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<int>("line"); // from 1; the text takes its place, a null one takes it away
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");

    const auto row = [](const char *what, const char *table, int line, const QByteArray &text,
                        const char *message) {
        QTest::newRow(what) << QString::fromLatin1(table) << line << text << QString::fromUtf8(message);
    };
    row("row too few", "Constantes", 46, QByteArray(), "45: 44 rows, but 45 are needed");
    row("row too many", "Reaction", 1, "orga\tsource\textra", "1: unknown column \"extra\"");
    row("missing column", "Reaction", 1, "orga", "1: missing column \"source\"");
    row("duplicate column", "Dessiccation", 1, "solvant\tagent\tagent\tsource",
        "1: duplicate column \"agent\"");
    row("columns in another order", "Dessiccation", 1, "agent\tsolvant\tsource",
        "1: the columns must be solvant, agent, source");
    row("field too few", "Dessiccation", 7, "Ethers\tNa", "7: 2 fields, but there are 3 columns");
    row("empty line", "Dessiccation", 7, "", "7: 1 fields, but there are 3 columns");
    row("long cell", "Dessiccation", 7, "Ethers\t" + QByteArray(256, 'x') + "\tG",
        "7: agent has 256 characters, 255 is the limit");
    row("broken UTF-8", "Dessiccation", 7, "Ethers\t\xE9\tG", "7: not valid UTF-8");
    row("cut UTF-8", "Dessiccation", 7, "Ethers\tG\t\xC3", "7: not valid UTF-8");
    row("no character of the reports", "Dessiccation", 7, "Ethers\t\xCE\xB1\tG",
        "7: agent holds \"\xCE\xB1\", which reports cannot print");
    row("line end of another system", "Dessiccation", 7, "Ethers\tNa\tG\r",
        "7: source holds a control character");
}

void MakeDatabaseTest::refusesWithFileAndLine()
{
    QFETCH(QString, table);
    QFETCH(int, line);
    QFETCH(QByteArray, text);
    QFETCH(QString, message);

    const QString path = this->table(table + QStringLiteral(".tsv"));
    QList<QByteArray> lines = linesOf(path);
    if (text.isNull())
        lines.removeAt(line - 1);
    else
        lines[line - 1] = text;
    QVERIFY(replace(path, lines.join('\n')));

    const Outcome outcome = make();
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.errors, path + u':' + message + u'\n');
    QVERIFY(!QFile::exists(database()));
}

void MakeDatabaseTest::refusesAMissingTable()
{
    const QString path = table(QStringLiteral("Masse.tsv"));
    QVERIFY(QFile::remove(path));
    const Outcome outcome = make();
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.errors.startsWith(path + QStringLiteral(":1: ")));
}

void MakeDatabaseTest::refusesAFileThatIsNoTable()
{
    const QString path = table(QStringLiteral("Mass.tsv"));
    QVERIFY(replace(path, "nom\n"));
    const Outcome outcome = make();
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.errors, path + QStringLiteral(":1: no table of the program\n"));
}

void MakeDatabaseTest::refusesMoreTextThanTheFileTakes()
{
    // 31 columns of 200 bytes each.
    const QString elements = table(QStringLiteral("Elements.tsv"));
    QList<QByteArray> lines = linesOf(elements);
    const qsizetype columns = lines[0].split('\t').size();
    lines[3] = QByteArrayList(columns, QByteArray(200, 'x')).join('\t');
    QVERIFY(replace(elements, lines.join('\n')));
    Outcome outcome = make();
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.startsWith(elements + QStringLiteral(":4: the row needs ")),
             qPrintable(outcome.errors));

    QVERIFY(QFile::remove(elements));
    QVERIFY(QFile::copy(Tables + QStringLiteral("/Elements.tsv"), elements));
    QVERIFY(replace(table(QStringLiteral("Reaction.tsv")),
                    "orga\tsource\n" + (QByteArray(250, 'x') + "\tG\n").repeated(8000)));
    outcome = make();
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.errors, QStringLiteral("the tables need more than 2 MiB\n"));
}

void MakeDatabaseTest::chartNamesMayHoldAnyCharacter()
{
    const QString path = table(QStringLiteral("RMN13Cspectro.tsv"));
    QList<QByteArray> lines = linesOf(path);
    lines[5] = "\xCE\xB1-C\xE2\x89\xA1N\tG";
    QVERIFY(replace(path, lines.join('\n')));
    QCOMPARE(make().status, 0);
}

void MakeDatabaseTest::aRefusalLeavesTheOldDatabase()
{
    QVERIFY(replace(database(), "old"));
    QVERIFY(QFile::remove(table(QStringLiteral("Masse.tsv"))));
    QCOMPARE(make().status, 1);
    QCOMPARE(contents(database()), QByteArray("old"));
}

// Whoever moves a row of a table has to move its notes.
void MakeDatabaseTest::notesBelongToTheRowsThatTheyName()
{
    const QDir notes(QStringLiteral(ALEMBRA_SOURCE "/data/notes"));
    const QStringList files = notes.entryList(QDir::Files);
    QVERIFY(!files.isEmpty());
    for (const QString &name : files) {
        const QString of = name.section(u'.', 0, 0).section(u'_', 0, 0) + QStringLiteral(".tsv");
        const QList<QByteArray> rows = linesOf(Tables + u'/' + of);
        for (const QByteArray &line : linesOf(notes.filePath(name)).mid(1)) {
            if (line.isEmpty())
                continue;
            const QList<QByteArray> note = line.split('\t');
            const int row = note[0].toInt();
            QVERIFY2(row > 0 && row < rows.size() - 1, qPrintable(name + u' ' + QString::fromUtf8(line)));
            QCOMPARE(note[1], rows[row].split('\t')[0]);
        }
    }
}

QTEST_GUILESS_MAIN(MakeDatabaseTest)
#include "make_database_test.moc"
