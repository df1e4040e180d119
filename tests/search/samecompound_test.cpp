#include "search/samecompound.h"
#include "search/searcheverything.h"
#include "store/tablecatalog.h"
#include "tests/support/files.h"
#include "tests/support/tsvsource.h"

class SameCompoundTest final : public QObject
{
    Q_OBJECT

    DataStore m_store;

    QStringList names(const QString &list) const
    {
        const RowList &rows = Places::find(list)->rows(m_store.lists);
        QStringList texts;
        for (int row = 0; row < rows.rowCount(); ++row)
            texts << rows.text(row);
        return texts;
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (int step = TableCatalog::FirstStep; step <= TableCatalog::LastStepAtStart; ++step)
            TsvSource::load(step, TableCatalog::table(step), m_store);
    }

    void aCompoundIsFoundUnderEveryName()
    {
        const struct
        {
            const char *list;
            const char *name;
            QString others;
        } Rows[]{
            {"ListView1", "Acetone",
             "ListView6 Acetone, ListView4 Acetone, ListView5 Acetone, ListView3(26) Acetone, ListView8 "
             "Acetone"},
            {"ListView4", "tert-Butyl alcohol",
             "ListView1 2-Methyl-2-propanol, ListView5 tert-Butyl alcohol, ListView3(26) tert-Butyl alcohol, "
             "ListView8 2-Methyl-2-propanol"},
            {"ListView3(9)", "Glycine", "ListView3(3) Glycine, Comb2 Glycine"},
            {"ListView3(0)", "p-Nitrophenol", "ListView3(3) 4-Nitrophenol"},
            {"ListView3(12)", "Butyric acid",
             "ListView1 Butanoic acid, ListView3(3) Butanoic acid, ListView3(26) Butanoic acid"},
            {"ListView4", "Solvent residual peak", ""},
            {"ListView9", "Acetone + dry ice", ""},
        };
        const SameCompound compounds(m_store.lists);
        for (const auto &row : Rows) {
            QStringList found;
            for (const Place &place : compounds.of({row.list, int(names(row.list).indexOf(row.name))}))
                found << place.list + ' ' + names(place.list).at(place.row);
            QCOMPARE(found.join(", "), row.others);
        }
        QVERIFY(compounds.of({"ListView1", -1}).isEmpty());
    }

    // A false link is worse than none.
    void everySynonymIsInATableAndInOneCompound()
    {
        const SearchEverything search(m_store, {});
        QStringList all;
        for (const ListPlace &each : Places::all())
            all += each.rows ? names(each.list) : QStringList();
        QSet<QString> seen;
        QStringList lines = QString::fromUtf8(readFile(ALEMBRA_SOURCE "/data/synonyms.tsv")).split('\n');
        for (const QString &line : lines.sliced(1, lines.size() - 2)) {
            const QStringList cells = line.split('\t');
            const QString &cas = cells[1];
            for (const QString &name : QStringList(cells[0]) + cells[2].split("; ", Qt::SkipEmptyParts)) {
                QVERIFY2(all.contains(name) && !seen.contains(name), qPrintable(name));
                seen << name;
                const int solvent = int(names("ListView1").indexOf(name));
                QVERIFY2(solvent < 0 || m_store.lists.ListView1.subItem(solvent, 6) == cas, qPrintable(name));
            }
            for (const QString &name : cells[3].split("; ", Qt::SkipEmptyParts)) { // found, in no table
                const QList<SearchAnswer> answers = search.find(name).answers;
                const bool found = std::ranges::count(answers, cells[0], &SearchAnswer::name) > 0;
                QVERIFY2(found && !all.contains(name), qPrintable(name));
            }
            int sum = 0; // the last digit checks the others
            const QString digits = QString(cas).remove('-').chopped(cas.isEmpty() ? 0 : 1);
            for (int place = 1; place <= digits.size(); ++place)
                sum += place * digits.at(digits.size() - place).digitValue();
            QVERIFY2(cas.isEmpty() || sum % 10 == cas.back().digitValue(), qPrintable(cas));
        }
    }
};

const TestClass<SameCompoundTest> sameCompoundTest;
#include "samecompound_test.moc"
