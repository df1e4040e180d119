#include "search/samecompound.h"
#include "search/searcheverything.h"
#include "store/tablecatalog.h"
#include "tests/support/deliveredtables.h"
#include "tests/support/files.h"

/// What a user looks up in the delivered tables: numbers, and other rows of a compound.
class DeliveredTablesTest final : public QObject
{
    Q_OBJECT

    DataStore m_store;
    std::unique_ptr<SearchEverything> m_search;

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
            loadDelivered(step, m_store);
        m_search = std::make_unique<SearchEverything>(m_store, QList<NamedPlaces>());
    }

    void answersInTheirOrder()
    {
        const auto row = [this](const char *typed, const QStringList &first) {
            const SearchResult result = m_search->find(QString::fromUtf8(typed));
            for (qsizetype index = 0; index < first.size(); ++index) {
                const SearchAnswer answer = result.answers.value(index);
                const QString found = answer.name + '|' + answer.values;
                QCOMPARE(found.first(std::min(found.size(), first[index].size())), first[index]);
            }
        };
        row("2.05 4.12 CDCl3", {"Ethyl acetate|CH3CO, s, CDCl3 2.05 ppm; CH2 (ethyl), q, CDCl3 4.12 ppm",
                                "Dimethylacetamide|CH3CO, s, CDCl3 2.09 ppm"});
        row("CDCl3: 4,12, 2,05", {"Ethyl acetate|CH2 (ethyl), q, CDCl3 4.12 ppm; CH3CO, s, CDCl3 2.05 ppm"});
        row("7.15 ppm acetone", {"Toluene|CH(2,4,6), m, acetone 7.1-7.2 ppm"}); // a range
        row("13C 29.9 acetone", {"Solvent signal|CD or CD3, acetone 29.84 ppm"});
        row("m/z 58", {"tert-Butylamine|m/z 58 (100), 41 (14)"});
        row("m/z 58 and 43",
            {"2-Heptanone|m/z 58 (78), 43 (100)", "Methyl isobutyl ketone|m/z 58 (38), 43 (100)",
             "Acetone|m/z 58 (30), 43 (100)"});
        row("bp 80", {"2-Methyltetrahydrofuran|bp 80", "Benzene|bp 80.1"});
        row("bp 80 n 1.36", {"Ethanol|bp 78.2 °C, n 1.3611", "2-Methyltetrahydrofuran|bp 80"});
        row("mp 1080-1090", {"Copper|Cu, mp 1084.62 °C"});
        row("mp -73", {"Petroleum ether (30-40 °C)|mp below -73"});
        row("pKa 0.5", {"Uracil|C4H4N2O2, pKa1 0.5"});
        row("pH 8.5",
            {"4,4'-Bis(4-amino-1-naphthylazo)-2,2'-stilbenedisulfonic acid|blue - red, pH 8.0 - 9.0"});
        row("E 0.77", {"Fe3+ + e- = Fe2+|E° 0.771 V"});
        row("770mV", {"Fe3+ + e- = Fe2+|E° 0.771 V"});
        row("ex 488 em 520 nm", {"SYTO 16|ex 489, em 520 nm"});
        row("1715 cm⁻¹", {"Ketones|C=O stretch (saturated), 1725-1705 cm-1"});
        row("1700 3000 cm-1",
            {"Carboxylic acids|C=O stretch (dimer), 1720-1680 cm-1; O-H stretch, 3300-2500 cm-1"});
        row("Mw 145", {"Promethium|Pm, M [145] g/mol"});
        row("66 kDa", {"High range, 29,000 - 200,000 Da|Serum albumin (bovine), mass 66,000 Da"});
        row("resolving gel", {"Resolving gel buffer, Tris-HCl 1.5 M, pH 8.8 (100 mL)|Tris base 1.5 M"});
        row("−20 °C", {"Methanol + water (30:70) + dry ice|cools to -20 °C", "Propionic acid|mp -20.5"});
    }

    void saysWhatItUnderstood()
    {
        const auto understood = [this](const char *typed) {
            return m_search->find(QString::fromUtf8(typed)).understood;
        };
        QCOMPARE(understood("2.05 CDCl3"),
                 "Looked for 1H shift 2.05 ppm in CDCl3, within 0.05 ppm, or 13C shift, "
                 "within 0.5 ppm, nearest first: 6 answers");
        QCOMPARE(understood("m/z 58 43 41"),
                 "Looked for m/z 58, 43 and 41, among the ten strongest peaks, strongest "
                 "first; what has all comes first: 120 answers");
        QVERIFY(understood("13C 30 ppm")
                    .startsWith("Looked for 13C shift 30 ppm in any solvent, within 0.5 ppm"));
        QCOMPARE(understood("n 3.5"),
                 "Looked for refractive index 3.5, within 0.005, nearest first: no answers");
        // As text: words without a number, numbers without a word, names and numbers in them, nothing so
        // high.
        for (const char *typed :
             {"pKa acetic", "2.05", "67-64-1", "acetone 58", "n 8", "3,6-", "bp 80 acetone"})
            QVERIFY2(!understood(typed).startsWith("Looked for"), typed);
    }

    void everyExampleHasAnswersAndIsInTheHelp()
    {
        const QString page =
            QString::fromUtf8(readFile(QStringLiteral(ALEMBRA_SOURCE "/data/help/search.html")));
        for (const SoughtQuantity &quantity : NumberGrammar::quantities()) {
            QString row = QString("<tr><td>%1</td><td>%2</td><td>%3</td><td>%4</td><td>%5, %6</td></tr>")
                              .arg(quantity.name, quantity.example, quantity.words, quantity.units,
                                   quantity.scope(), quantity.order());
            for (const QChar sign : {u'°', u'δ', u'ρ'})
                row.replace(sign, QString("&#%1;").arg(sign.unicode())); // the pages are plain ASCII
            QVERIFY2(page.contains(row), qPrintable(row));
            QVERIFY2(m_search->find(QString(quantity.example)).understood.startsWith("Looked for"),
                     quantity.example);
        }
    }

    void aCompoundIsFoundUnderEveryName()
    {
        const std::tuple<QString, const char *, QString> Rows[]{
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
        for (const auto &[list, name, others] : Rows) {
            QStringList found;
            for (const Place &place : compounds.of({list, int(names(list).indexOf(name))}))
                found << place.list + ' ' + names(place.list).at(place.row);
            QCOMPARE(found.join(", "), others);
        }
        QVERIFY(compounds.of({"ListView1", -1}).isEmpty());
    }

    // A false link is worse than none.
    void everySynonymIsInATableAndInOneCompound()
    {
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
                const QList<SearchAnswer> answers = m_search->find(name).answers;
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

const TestClass<DeliveredTablesTest> deliveredTablesTest;
#include "delivered_tables_test.moc"
