#include "calc/calctabs.h"
#include "calc/calculation.h"
#include "calc/solver.h"
#include "calc/unitconverter.h"
#include "core/optionslots.h"
#include "sidewindows/helpbook.h"
#include "tests/support/files.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace CalcFields;

namespace {

const QString Source = ALEMBRA_SOURCE "/data/help/";

QStringList filesIn(const QString &folder, const QStringList &names)
{
    return QDir(folder).entryList(names);
}

/// What a page consists of, and the error where it is no well-formed page.
struct Page
{
    QString title, heading, error;
    QList<QStringList> rows; ///< of all tables, cell by cell, without those of titles

    explicit Page(const QString &name)
    {
        QXmlStreamReader reader(readFile(Source + name));
        const auto text = [&] {
            return reader.readElementText(QXmlStreamReader::IncludeChildElements).simplified();
        };
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (reader.name() == u"title")
                title = text();
            else if (reader.name() == u"h1")
                heading = text();
            else if (reader.name() == u"tr")
                rows << QStringList();
            else if (reader.name() == u"td")
                rows.last() << text();
        }
        error = reader.errorString();
        rows.removeIf([](const QStringList &cells) { return cells.isEmpty(); });
    }
};

/// What is in quotes after each place where @p before matches.
QStringList values(const QString &file, const QString &before)
{
    const QRegularExpression value(before + "\"([^\"]*)\"");
    QStringList found;
    for (auto matches = value.globalMatch(QString::fromLatin1(readFile(Source + file))); matches.hasNext();)
        found << matches.next().captured(1);
    return found;
}

const QString Local = "name=\"Local\" value=";
const QString Name = "name=\"Name\" value=";

} // namespace

/// The help has all pages, its links lead somewhere, and its examples are what the program answers.
class HelpTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHelpFileHasEveryPageContentsIndexAndFullText()
    {
        const QString help = ALEMBRA_FOLDER "/alembra_help_uk.chm";
        const QTemporaryDir folder;
        QProcess extract;
        extract.start("extract_chmLib", {help, folder.path()});
        QVERIFY(extract.waitForFinished() && extract.exitCode() == 0);
        for (const QString &file : filesIn(Source, {"*.html", "*.png", "*.css", "*.hhc", "*.hhk"}))
            QVERIFY2(readFile(folder.filePath(file)) == readFile(Source + file), qPrintable(file));
        // No time: the same pages give the same bytes.
        QCOMPARE(readFile(help).mid(16, 4), QByteArray(4, '\0'));
        QCOMPARE(readFile(folder.filePath("#SYSTEM")).mid(8, 4), QByteArray(4, '\0'));
        // The number of pages in the full-text index, a 32-bit number at offset 4.
        QCOMPARE(qsizetype(quint8(readFile(folder.filePath("$FIftiMain")).at(4))), m_pages.size());
    }

    void pagesContentsAndIndexLinkToPages()
    {
        QStringList links;
        for (const QString &name : m_pages) {
            const Page page(name);
            QVERIFY2(page.error.isEmpty() && page.heading == page.title,
                     qPrintable(name + ": " + page.error));
            links << values(name, "<a [^>]*href=");
            // Readers differ in the code page they assume: signs beyond it are written as references.
            const QByteArray bytes = readFile(Source + name);
            QVERIFY(std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte > 0; }));
        }
        for (const QString &link : links + values(m_index, Local))
            QVERIFY2((m_pages + m_pictures).contains(link), qPrintable(link));
        QStringList contents = values("alembra_help_uk.hhc", Local);
        const QStringList titles = values("alembra_help_uk.hhc", Name);
        for (const QString &page : contents)
            QVERIFY2(Page(page).title == titles.at(contents.indexOf(page)), qPrintable(page));
        QCOMPARE(contents.value(0), QString("index.html"));
        contents.sort();
        QCOMPARE(contents, m_pages);
        QString last;
        // In alphabetical order; the compiler garbles commas.
        for (const QString &name : values(m_index, Name)) {
            QVERIFY2(last < name.toLower() && !name.contains(','), qPrintable(name));
            last = name.toLower();
        }
    }

    void theProgramHasTheSamePages()
    {
        QCOMPARE(HelpBook::index().size(), values(m_index, Local).size());
        const QList<HelpBook::Topic> contents = HelpBook::contents();
        QCOMPARE(contents.size(), m_pages.size());
        for (const QString &file : m_pages + m_pictures)
            QVERIFY2(readFile(':' + HelpBook::address(file).path()) == readFile(Source + file),
                     qPrintable(file));
        const QList<HelpBook::Topic> found = HelpBook::search("leucine serine");
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.constFirst().page, QString("geneticcode.html"));
        QCOMPARE(found.constFirst().level, 2);
    }

    // "(fills itself)" marks a field that the program fills, an empty cell one that the example solves for.
    void everyCalculatorHasAnExampleAsTheProgramSolvesIt()
    {
        const QList<Field> concentration{TextBoxM3, TextBoxM4, TextBoxM5}; // in the order of the rows
        const std::pair<QString, QList<Field>> examples[] = {
            {"calc_amount", concentration},
            {"calc_concentration", concentration},
            {"calc_volumic_mass", concentration},
            {"calc_dilution", {Ci, Vi, Cf, Vf, T}},
            {"calc_fractions", {Xn1, Xn2, M1, M2, Xm1, Xm2}},
            {"calc_vapour", {Tc, P, TcStar, PStar}},
        };
        constexpr double Water = 109; // the entropy of its vaporisation, which only the last one asks for
        int tab = 0;
        for (const auto &[page, fields] : examples) {
            QList<QStringList> rows = Page(page + ".html").rows;
            rows.removeIf([](const QStringList &cells) { return cells[0] == "(button)"; });
            QCOMPARE(rows.size(), fields.size());
            FieldTexts texts;
            QList<Change> expected;
            for (qsizetype i = 0; i < rows.size(); ++i) {
                if (rows[i][1].isEmpty())
                    expected.append(Change{fields[i], rows[i][2]});
                else
                    texts[fields[i]] = rows[i][1] == "(fills itself)" ? rows[i][2] : rows[i][1];
            }
            const Outcome outcome = Solver::solve(++tab, texts, Water);
            QCOMPARE(outcome.message, QString());
            QCOMPARE(outcome.changes.size(), expected.size());
            for (const Change &change : expected)
                QVERIFY2(outcome.changes.contains(change), qPrintable(page));
        }
    }

    // What message boxes and calculators say and why a formula cannot be read, piece by piece between the
    // parts that vary.
    void everyMessageIsExplained()
    {
        static const QRegularExpression Call(R"((?:messageBox|endWithMessage|warn|fail)\(([^;]*);)");
        static const QRegularExpression Seam(R"(\x22(?:_s)?\s+u?\x22)"); // of adjacent literals
        static const QRegularExpression Text(R"(\x22((?:[^\x22\\]|\\.)*)\x22)");
        static const QRegularExpression Varies(R"(%\d|\\n|\\\x22|[^ -~])");
        static const QRegularExpression Tag("<[^>]*>");
        const QByteArray pages = readFile(Source + "problems.html") + readFile(Source + "molar_mass.html");
        const QString help = QString::fromUtf8(pages).remove(Tag).simplified();
        QStringList texts;
        for (const char *folder : {"app", "calc", "options", "reports", "sidewindows", "store", "update"}) {
            const QString path = ALEMBRA_SOURCE + QString("/%1/").arg(folder);
            for (const QString &file : filesIn(path, {"*.cpp"})) {
                for (const auto &call : Call.globalMatch(QString::fromUtf8(readFile(path + file)))) {
                    for (const auto &text : Text.globalMatch(call.captured(1).remove(Seam)))
                        texts << text.captured(1).split(Varies);
                }
            }
        }
        QVERIFY(texts.contains("this bracket is not closed"));
        for (const CalcTab &tab : CalcTabs::tabs()) {
            texts << tab.solver.tooFew;
            for (const Pattern &pattern : tab.solver.patterns) {
                if (const auto *message = std::get_if<const char *>(&pattern.answer))
                    texts << *message;
            }
        }
        for (const QString &text : texts)
            QVERIFY2(help.contains(text.simplified()), qPrintable(text));
    }

    void conversionsAreWhatTheProgramShows()
    {
        OptionSlots options;
        options.read(ALEMBRA_FOLDER "/options_uk.ini");
        static const QRegularExpression Equation(R"(^(\d+) (.+) = ([\d.]+) ([^(]+?)(?: \(.*)?$)");
        const auto quantities = Units::quantities();
        const QList<QStringList> rows = Page("conversions.html").rows;
        QCOMPARE(size_t(rows.size()), quantities.size());
        for (int tab = 1; tab <= rows.size(); ++tab) {
            const Quantity &quantity = quantities[size_t(tab - 1)];
            const QStringList &cells = rows[tab - 1];
            QCOMPARE(cells[0], QString(quantity.caption));
            const QRegularExpressionMatch equation = Equation.match(cells[1]);
            QVERIFY2(equation.hasMatch(), qPrintable(cells[1]));
            const QStringList names = Units::names(quantity, options);
            QCOMPARE(cells[2], names.join(", "));
            const auto position = [&](const QString &unit) {
                const auto isUnit = [&](const QString &name) { return name.startsWith(unit + " ("); };
                return int(std::find_if(names.begin(), names.end(), isUnit) - names.begin());
            };
            const UnitPair pair{position(equation.captured(2)), position(equation.captured(4))};
            QVERIFY2(pair.from < names.size() && pair.to < names.size(), qPrintable(cells[1]));
            UnitConverter converter([&](int) { return pair; });
            QCOMPARE(converter.keyReleased(tab, equation.captured(1)), equation.captured(3));
        }
    }

    void figuresAreThoseOfTheTables()
    {
        const auto rowsWith = [](const char *table, const char *source) {
            return readFile(ALEMBRA_SOURCE + QString("/data/tables/%1.tsv").arg(table)).count(source);
        };
        for (const auto &[page, words, figure] :
             {std::tuple("conversions", "between %1 units", qsizetype(Units::count())),
              {"elements", "data of %1 elements", rowsWith("Elements", "\n") - 1},
              {"database", "Solvants must not have more rows than Masse, which has %1",
               rowsWith("Masse", "\n") - 1},
              {"data", "for %1 of the 604 spectra of one collection, two numbers each",
               rowsWith("Fluorochromes", "mcnamara-boswell")}}) {
            const QString text = readFile(Source + page + ".html");
            QVERIFY2(text.simplified().contains(QString(words).arg(figure)), words);
        }
    }

    void sourcesOfEveryTableAreNamed()
    {
        const QStringList tables = filesIn(ALEMBRA_SOURCE "/data/tables", {"*.tsv"});
        QCOMPARE(tables.size(), 35);
        for (const char *page : {"/data/help/data.html", "/docs/data.md"}) {
            const QString text = QString::fromUtf8(readFile(ALEMBRA_SOURCE + QString(page)));
            for (const QString &table : tables)
                QVERIFY2(text.contains(QRegularExpression("\\b" + table.chopped(4) + "\\b")),
                         qPrintable(page + table));
        }
    }

private:
    const QStringList m_pages = filesIn(Source, {"*.html"});
    const QStringList m_pictures = filesIn(Source, {"*.png"});
    const QString m_index = "alembra_help_uk.hhk";
};

const TestClass<HelpTest> helpTest;
#include "help_test.moc"
