#include "store/databasepassword.h"
#include "store/recordset.h"
#include "store/tablecatalog.h"
#include "tests/support/files.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString Database = ALEMBRA_FOLDER "/Data/Database_uk.mdb";

// Header row first.
QList<QStringList> tableFile(const QString &table)
{
    QList<QStringList> rows;
    const QByteArray text = readFile(QString(ALEMBRA_SOURCE "/data/tables/%1.tsv").arg(table));
    for (const QString &line : QString::fromUtf8(text).split('\n', Qt::SkipEmptyParts))
        rows.append(line.split('\t'));
    return rows;
}

} // namespace

/// The database that the build has made, read by our reader and by an independent one.
class DeliveredTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_connection = std::make_unique<DatabaseConnection>();
        m_connection->Open(Database, "Admin", DatabasePassword);
    }

    void everyStatementGivesTheCellsOfItsTableFile()
    {
        QStringList tables;
        for (int step = TableCatalog::FirstStep; step <= TableCatalog::LastStep; ++step) {
            tables << TableCatalog::table(step);
            const QList<QStringList> expected = tableFile(tables.last());
            Recordset rows(TableCatalog::statement(step), *m_connection);
            for (const QStringList &cells : expected.mid(1)) {
                for (int i = 0; i < TableCatalog::columns(step).size(); ++i)
                    QCOMPARE(rows.field(i), cells[i]);
                rows.moveNext();
            }
            QVERIFY2(expected.size() > 1 && rows.atEnd(), qPrintable(tables.last()));
            compareWithMdbtools(tables.last(), expected);
        }
        QCOMPARE(JetFile::open(Database, DatabasePassword).tables(), tables);
        QVERIFY(readFile(Database) == readFile(ALEMBRA_FOLDER "/Backup/Database_uk_origin.rbk"));
    }

    void openingRefuses()
    {
        const QString password = DatabasePassword;
        const int failure = ErrorNumber::DatabaseFailure;
        const std::tuple<QString, QString, QString, int> rows[] = {
            {Database, {}, {}, failure},
            {Database, {}, password.toUpper(), failure},
            {Database, {}, password + 'x', failure},
            {Database, "somebody", password, failure},
            {Database + 'x', {}, password, ErrorNumber::FileNotFound},
            {ALEMBRA_FOLDER "/nowhere/x.mdb", {}, password, ErrorNumber::PathNotFound},
            {ALEMBRA_FOLDER "/Data", {}, password, ErrorNumber::PathAccess},
            {"/dev/zero", {}, password, ErrorNumber::PathAccess},
            {ALEMBRA_SOURCE "/data/SOURCES.md", {}, password, failure},
        };
        for (const auto &[path, user, typed, number] : rows) {
            DatabaseConnection connection;
            const auto open = std::bind_front(&DatabaseConnection::Open, &connection, path, user, typed);
            QCOMPARE(errorOf(open), number);
            QCOMPARE(connection.State(), DatabaseConnection::StateClosed);
        }
    }

    void onlyAMissingTableHasTheNumberOfAMissingTable()
    {
        const std::pair<const char *, int> rows[] = {
            {"SELECT nom FROM Solvents", ErrorNumber::TableNotFound},
            {"SELECT Id FROM MSysObjects", ErrorNumber::TableNotFound}, // no table of the user's
            {"SELECT solvant, nom FROM Solvants", ErrorNumber::ColumnNotFound},
            {"DELETE FROM Solvants", ErrorNumber::DatabaseFailure},
            {"select  CAS ,Solvant from solvants", 0},
            {"SELECT source FROM Solvants", 0},
        };
        for (const auto &row : rows)
            QCOMPARE(errorOf([&] { Recordset(row.first, *m_connection); }), row.second);
    }

    void readingPastTheEndIsAnError()
    {
        Recordset rows("SELECT conc FROM Sdspagedomain", *m_connection);
        m_connection->Close();
        for (int row = 0; row < 5; ++row)
            rows.moveNext();
        QVERIFY(rows.atEnd());
        QCOMPARE(errorOf([&] { rows.moveNext(); }), ErrorNumber::PastEnd);
        QCOMPARE(errorOf([&] { rows.field(0); }), ErrorNumber::PastEnd);
    }

    void aConnectionIsOpenedAndClosedInTurn()
    {
        DatabaseConnection &connection = *m_connection;
        QCOMPARE(connection.State(), DatabaseConnection::StateOpen);
        QCOMPARE(errorOf([&] { connection.Open(Database, {}, DatabasePassword); }), ErrorNumber::ObjectOpen);
        connection.Close();
        QCOMPARE(connection.State(), DatabaseConnection::StateClosed);
        QCOMPARE(errorOf([&] { connection.Close(); }), ErrorNumber::ObjectClosed);
        QCOMPARE(errorOf([&] { Recordset(TableCatalog::statement(1), connection); }),
                 ErrorNumber::ObjectClosed);
        QCOMPARE(errorOf([&] { DatabaseConnection().Close(); }), ErrorNumber::ObjectClosed);
    }

private:
    // The column with the sources too. An empty text is left out there, like a Null.
    static void compareWithMdbtools(const QString &table, const QList<QStringList> &expected)
    {
        QProcess mdbJson;
        mdbJson.start("mdb-json", {Database, table});
        QVERIFY2(mdbJson.waitForFinished() && mdbJson.exitCode() == 0,
                 "mdb-json of the package mdbtools is needed");
        QList<QByteArray> lines = mdbJson.readAllStandardOutput().split('\n');
        lines.removeAll({});
        const QStringList &columns = expected.first();
        QCOMPARE(columns.last(), QString("source"));
        QCOMPARE(lines.size(), expected.size() - 1);
        for (qsizetype row = 1; row < expected.size(); ++row) {
            const QJsonObject object = QJsonDocument::fromJson(lines[row - 1]).object();
            for (qsizetype i = 0; i < columns.size(); ++i)
                QCOMPARE(object[columns[i]].toString(), expected[row][i]);
        }
    }

    std::unique_ptr<DatabaseConnection> m_connection;
};

const TestClass<DeliveredTest> deliveredTest;
#include "delivered_test.moc"
