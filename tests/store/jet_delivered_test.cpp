#include "core/runtimeerror.h"
#include "store/databasepassword.h"
#include "store/recordset.h"
#include "store/tablecatalog.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// The database that the build has made, read by our reader and by an independent one.
class JetDeliveredTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachStatementGivesTheCellsOfItsTableFile_data() { addSteps(); }
    void eachStatementGivesTheCellsOfItsTableFile();
    void mdbtoolsGivesEveryCellAndTheSource_data() { addSteps(); }
    void mdbtoolsGivesEveryCellAndTheSource();
    void theCatalogueNamesTheTablesInTheOrderOfLoading();
    void theBackupIsTheSameFile();
    void openingRefuses_data();
    void openingRefuses();
    void onlyAMissingTableHasTheNumberOfAMissingTable();
    void readingPastTheEndIsAnError();
    void aClosedConnectionRefusesEverything();

private:
    static void addSteps();
    static QList<QStringList> tableFile(const QString &table);
};

namespace {

const QString Database = QStringLiteral(ALEMBRA_FOLDER "/Data/Database_uk.mdb");

template<class Action>
int errorOf(Action action)
{
    try {
        action();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}

} // namespace

void JetDeliveredTest::addSteps()
{
    QTest::addColumn<int>("step");
    for (int step = TableCatalog::FirstStep; step <= TableCatalog::LastStep; ++step)
        QTest::newRow(qPrintable(TableCatalog::table(step))) << step;
}

// Header row first.
QList<QStringList> JetDeliveredTest::tableFile(const QString &table)
{
    QFile file(QStringLiteral(ALEMBRA_SOURCE "/data/tables/%1.tsv").arg(table));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<QStringList> rows;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        rows.append(line.split(QLatin1Char('\t')));
    return rows;
}

void JetDeliveredTest::eachStatementGivesTheCellsOfItsTableFile()
{
    QFETCH(int, step);
    const QList<QStringList> expected = tableFile(TableCatalog::table(step)).mid(1);
    const int columns = int(TableCatalog::columns(step).size());

    DatabaseConnection connection;
    connection.Open(Database, {}, DatabasePassword);
    Recordset rows(TableCatalog::statement(step), connection);
    QVERIFY(!expected.isEmpty());
    for (const QStringList &cells : expected) {
        for (int i = 0; i < columns; ++i)
            QCOMPARE(rows.field(i), cells[i]);
        rows.moveNext();
    }
    QVERIFY(rows.atEnd());
}

void JetDeliveredTest::mdbtoolsGivesEveryCellAndTheSource()
{
    QFETCH(int, step);
    QProcess mdbJson;
    mdbJson.start(QStringLiteral("mdb-json"), {Database, TableCatalog::table(step)});
    QVERIFY2(mdbJson.waitForFinished(), "mdb-json of the package mdbtools is needed");
    QCOMPARE(mdbJson.exitCode(), 0);
    QList<QByteArray> lines = mdbJson.readAllStandardOutput().split('\n');
    lines.removeAll({});

    const QList<QStringList> expected = tableFile(TableCatalog::table(step));
    const QStringList &columns = expected.first();
    QCOMPARE(columns.last(), QStringLiteral("source"));
    QCOMPARE(lines.size(), expected.size() - 1);
    for (qsizetype row = 1; row < expected.size(); ++row) {
        const QJsonObject object = QJsonDocument::fromJson(lines[row - 1]).object();
        // An empty text is left out there, like a Null.
        for (qsizetype i = 0; i < columns.size(); ++i)
            QCOMPARE(object[columns[i]].toString(), expected[row][i]);
    }
}

void JetDeliveredTest::theCatalogueNamesTheTablesInTheOrderOfLoading()
{
    QStringList expected;
    for (int step = TableCatalog::FirstStep; step <= TableCatalog::LastStep; ++step)
        expected.append(TableCatalog::table(step));
    QCOMPARE(JetFile::open(Database, DatabasePassword).tables(), expected);
}

void JetDeliveredTest::theBackupIsTheSameFile()
{
    QFile database(Database);
    QFile backup(QStringLiteral(ALEMBRA_FOLDER "/Backup/Database_uk_origin.rbk"));
    QVERIFY(database.open(QIODevice::ReadOnly));
    QVERIFY(backup.open(QIODevice::ReadOnly));
    QVERIFY(database.readAll() == backup.readAll());
}

void JetDeliveredTest::openingRefuses_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<int>("number");

    const QString password = DatabasePassword;
    const QString none;
    const int failure = ErrorNumber::DatabaseFailure;
    QTest::newRow("no password") << Database << none << none << failure;
    QTest::newRow("another password") << Database << none << QStringLiteral("k3wqj41mz627h06") << failure;
    QTest::newRow("the password in capitals") << Database << none << password.toUpper() << failure;
    QTest::newRow("the start of the password") << Database << none << password.chopped(1) << failure;
    QTest::newRow("more than the password") << Database << none << password + u'x' << failure;
    QTest::newRow("another user") << Database << QStringLiteral("somebody") << password << failure;
    QTest::newRow("no such file") << Database + u'x' << none << password << ErrorNumber::FileNotFound;
    QTest::newRow("no such folder") << QStringLiteral(ALEMBRA_FOLDER "/nowhere/x.mdb") << none << password
                                    << ErrorNumber::PathNotFound;
    QTest::newRow("a folder") << QStringLiteral(ALEMBRA_FOLDER "/Data") << none << password
                              << ErrorNumber::PathAccess;
    QTest::newRow("a device") << QStringLiteral("/dev/zero") << none << password << ErrorNumber::PathAccess;
    QTest::newRow("a text") << QStringLiteral(ALEMBRA_SOURCE "/data/SOURCES.md") << none << password
                            << failure;
}

void JetDeliveredTest::openingRefuses()
{
    QFETCH(QString, path);
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(int, number);

    DatabaseConnection connection;
    QCOMPARE(errorOf([&] { connection.Open(path, user, password); }), number);
    QCOMPARE(connection.State(), DatabaseConnection::StateClosed);
}

void JetDeliveredTest::onlyAMissingTableHasTheNumberOfAMissingTable()
{
    DatabaseConnection connection;
    connection.Open(Database, QStringLiteral("Admin"), DatabasePassword);
    const auto open = [&connection](const char *statement) {
        return errorOf([&] { Recordset rows(QString::fromLatin1(statement), connection); });
    };
    QCOMPARE(open("SELECT nom FROM Solvents"), ErrorNumber::TableNotFound);
    QCOMPARE(open("SELECT Id FROM MSysObjects"), ErrorNumber::TableNotFound); // no table of the user's
    QCOMPARE(open("SELECT solvant, nom FROM Solvants"), ErrorNumber::ColumnNotFound);
    QCOMPARE(open("DELETE FROM Solvants"), ErrorNumber::DatabaseFailure);
    QCOMPARE(open("select  CAS ,Solvant from solvants"), 0);
    QCOMPARE(open("SELECT source FROM Solvants"), 0);
}

void JetDeliveredTest::readingPastTheEndIsAnError()
{
    DatabaseConnection connection;
    connection.Open(Database, {}, DatabasePassword);
    Recordset rows(QStringLiteral("SELECT conc FROM Sdspagedomain"), connection);
    connection.Close();
    for (int row = 0; row < 5; ++row)
        rows.moveNext();
    QVERIFY(rows.atEnd());
    QCOMPARE(errorOf([&] { rows.moveNext(); }), ErrorNumber::PastEnd);
    QCOMPARE(errorOf([&] { rows.field(0); }), ErrorNumber::PastEnd);
}

void JetDeliveredTest::aClosedConnectionRefusesEverything()
{
    DatabaseConnection connection;
    QCOMPARE(errorOf([&] { connection.Close(); }), ErrorNumber::ObjectClosed);
    QCOMPARE(errorOf([&] { Recordset(TableCatalog::statement(1), connection); }), ErrorNumber::ObjectClosed);
    connection.Open(Database, {}, DatabasePassword);
    QCOMPARE(connection.State(), DatabaseConnection::StateOpen);
    QCOMPARE(errorOf([&] { connection.Open(Database, {}, DatabasePassword); }), ErrorNumber::ObjectOpen);
    connection.Close();
    QCOMPARE(connection.State(), DatabaseConnection::StateClosed);
    QCOMPARE(errorOf([&] { connection.Close(); }), ErrorNumber::ObjectClosed);
}

QTEST_GUILESS_MAIN(JetDeliveredTest)
#include "jet_delivered_test.moc"
