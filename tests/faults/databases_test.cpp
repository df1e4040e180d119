#include "tests/e2e/walk.h"
#include "tests/store/sampledatabases.h"
#include "tests/support/filetrouble.h"
#include "tests/support/wholerun.h"

/// Databases that a user has edited, or that are of another kind.
class DatabasesTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsLeftOfAnEditedTableIsShown()
    {
        const std::tuple<const char *, SampleDatabases::Edit, const char *> rows[] = {
            {"a row more", {Table, 3}, "0.0|0.1 1.0|1.1 2.0|2.1"},
            {"rows deleted", {Table, 4, {0, 2}}, "1.0|1.1 3.0|3.1"},
            {"no rows", {Table, 0}, ""},
            {"all rows deleted", {Table, 2, {0, 1}}, ""},
        };
        for (const auto &[name, edit, expected] : rows) {
            const ProgramFolder folder;
            folder.write(Database, SampleDatabases::catalogued(2, edit));
            QString shown;
            qsizetype shownAfter = 0; // of a table that is read later
            const QString end = outcome(folder, [&](Form1 &form) {
                shown = rowsOf(form, 1117, "ListView9").join(' ');
                shownAfter = rowsOf(form, 1133, "ListView3(26)").size();
            });
            QVERIFY2(end == "runs" && shown == expected && shownAfter == 2,
                     qPrintable(QString("%1: %2, %3").arg(name, end, shown)));
        }
    }

    // Refused with the question before any window, and untouched.
    void anotherKindIsRefused()
    {
        const QByteArray whole = SampleDatabases::catalogued(1);
        QByteArray jet3 = whole;
        jet3[0x14] = 0;
        QByteArray ace = whole;
        ace[0x14] = 2;
        ace.replace(4, 15, "Standard ACE DB");
        for (const auto &[name, content] :
             {std::pair("Jet 3", jet3),
              {"Access 2007", ace},
              {"header alone", whole.first(128)},
              {"one page", whole.first(4096)},
              {"another password", QByteArray(whole).replace(0x42, 4, "\1\2\3\4")},
              {"zeros", QByteArray(1 << 20, '\0')}}) {
            const ProgramFolder folder;
            folder.write(Database, content);
            const QString end = outcome(folder);
            QVERIFY2(end == "question" && !m_cameUp && folder.read(Database) == content,
                     qPrintable(QLatin1StringView(name) + QString(": ") + end));
        }
    }

    void aLockedDatabaseIsRefusedToo()
    {
        for (const auto kind : {LockElsewhere::Record, LockElsewhere::WholeFile}) {
            const ProgramFolder folder;
            const LockElsewhere lock(folder.path(Database), kind);
            QVERIFY(lock.isLocked());
            QCOMPARE(outcome(folder), "question");
            QVERIFY(!m_cameUp);
        }
    }

    // The original is copied to a file that nobody opens.
    void aMissingTableAsksUnderTheSplash()
    {
        const ProgramFolder folder;
        rename(folder, "Masse", "Mosse");
        QCOMPARE(outcome(folder), "question");
        QVERIFY(!m_cameUp);
        QVERIFY(!QFile::exists(folder.path("Data/Database.mdb")));
        const QByteArray before = folder.read(Database);
        m_desktop.answers = {Desktop::Yes};
        outcome(folder);
        const QList<QPair<QString, int>> boxes{
            {"Impossible to connect to the database! Do you want to reinstall the original database?", 20},
            {"The original database was successfully reinstalled! Changes will be effective after restating "
             "the program.",
             64}};
        QCOMPARE(m_desktop.boxes, boxes);
        QVERIFY(!m_cameUp && folder.read(Database) == before);
        QCOMPARE(folder.read("Data/Database.mdb"), folder.read("Backup/Database_uk_origin.rbk"));
    }

    void aMissingColumnLeavesItsTableEmpty()
    {
        const ProgramFolder folder;
        rename(folder, "temp", "tomp"); // of the cooling mixtures
        const QString end = outcome(folder, [&](Form1 &form) {
            QCOMPARE(rowsOf(form, 1117, "ListView9").size(), 0);
            QVERIFY(get(form, "ListView9").accessibleDescription().contains("no column Refrigeration.temp"));
            QVERIFY(!rowsOf(form, 1118, "ListView8").isEmpty());
        });
        QCOMPARE(end, "runs");
    }

    void aRowWithoutASourceOrChangedSaysSo()
    {
        const auto cooling = [this](const ProgramFolder &folder) {
            QString text;
            run(folder, [&](Form1 &form) {
                form.executeCommand(1117);
                text = Walk::sourceOf(get(form, "ListView9"), Qt::Key_Down);
            });
            return text;
        };
        const ProgramFolder without;
        rename(without, "source", "sauces");
        QVERIFY(cooling(without).contains("No source is recorded for this row"));
        const ProgramFolder changed;
        changed.write(Database, changed.read(Database).replace("1,4-Dioxane + dry", "1,3-Dioxane + dry"));
        const QString text = cooling(changed);
        QVERIFY2(text.startsWith("1,3-Dioxane + dry ice, 12\nYou added or changed this row."),
                 qPrintable(text));
        QCOMPARE(
            run(changed,
                [&](Form1 &form) { // which is changed once more, then lost
                    form.executeCommand(1117);
                    changed.write(Database,
                                  changed.read(Database).replace("1,3-Dioxane + dry", "1,2-Dioxane + dry"));
                    QVERIFY(Walk::sourceOf(get(form, "ListView9"), Qt::Key_Down)
                                .contains("now has another row here"));
                    changed.write(Database, "no database");
                    QVERIFY(
                        Walk::sourceOf(get(form, "ListView9"), Qt::Key_Up).contains("can no longer be read"));
                    form.executeCommand(1120); // the calculators
                    QVERIFY(Walk::sourceOf(form).contains("No source is recorded for this."));
                }),
            0);
    }

    void readingOnDemandFailsLikeTheStart()
    {
        const ProgramFolder folder;
        m_desktop.answers = {Desktop::Yes};
        const int status = run(folder, [&](Form1 &form) {
            form.executeCommand(1139);
            folder.write(Database, "no database");
            get<QAbstractButton>(form, "cmdReadTables(1)").click();
        });
        QCOMPARE(status, 0);
        QCOMPARE(m_desktop.boxes.size(), 2); // the question, and that it is done
        QCOMPARE(folder.read(Database), folder.read("Backup/Database_uk_origin.rbk"));
    }

private:
    inline static const QString Database = "Data/Database_uk.mdb";
    inline static const QString Table = "Refrigeration";

    // What a list shows under its command, as "text|sub-item".
    static QStringList rowsOf(Form1 &form, int command, const char *list)
    {
        form.executeCommand(command);
        const QAbstractItemModel &model = *get<RowListView>(form, list).model();
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column)
                cells << model.index(row, column).data().toString();
            rows << cells.join('|');
        }
        return rows;
    }

    // In every copy of the name; in the file it is UTF-16.
    static void rename(const ProgramFolder &folder, const QString &from, const QString &to)
    {
        const auto bytes = [](const QString &text) {
            return QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
        };
        folder.write(Database, folder.read(Database).replace(bytes(from), bytes(to)));
    }
};

const TestClass<DatabasesTest> databasesTest;
#include "databases_test.moc"
