// The help file: that it holds all pages, that its links lead somewhere, and that its examples are what the
// program answers.

#include "calc/solver.h"
#include "calc/unitconverter.h"
#include "core/optionslots.h"
#include "sidewindows/helpbook.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

using namespace CalcFields;

namespace {

const QString Source = QStringLiteral(ALEMBRA_SOURCE "/data/help/");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList pages()
{
    return QDir(Source).entryList({QStringLiteral("*.html")});
}

/// What a page consists of, and the error where it is no well-formed page.
struct Page
{
    QString title;
    QString heading;
    QStringList links;
    QList<QStringList> rows; ///< of all tables, cell by cell
    QString error;

    explicit Page(const QString &name)
    {
        QXmlStreamReader reader(contentOf(Source + name));
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement)
                take(reader);
        }
        error = reader.errorString();
    }

private:
    void take(QXmlStreamReader &reader)
    {
        const QStringView element = reader.name();
        if (element == QLatin1StringView("title"))
            title = reader.readElementText();
        else if (element == QLatin1StringView("h1"))
            heading = reader.readElementText();
        else if (element == QLatin1StringView("a"))
            links << reader.attributes().value(QLatin1StringView("href")).toString();
        else if (element == QLatin1StringView("tr"))
            rows << QStringList();
        else if (element == QLatin1StringView("td"))
            takeCell(reader);
    }

    void takeCell(QXmlStreamReader &reader)
    {
        QString text;
        while (reader.readNext() != QXmlStreamReader::EndElement ||
               reader.name() != QLatin1StringView("td")) {
            if (reader.atEnd())
                return;
            if (reader.isCharacters())
                text += reader.text();
            else if (reader.isStartElement() && reader.name() == QLatin1StringView("a"))
                links << reader.attributes().value(QLatin1StringView("href")).toString();
        }
        rows.last() << text.simplified();
    }
};

/// The pages that contents or index lead to, in their order.
QStringList targets(const QString &file)
{
    static const QRegularExpression Local(QStringLiteral("name=\"Local\" value=\"([^\"]*)\""));
    QStringList found;
    QRegularExpressionMatchIterator matches =
        Local.globalMatch(QString::fromLatin1(contentOf(Source + file)));
    while (matches.hasNext())
        found << matches.next().captured(1);
    return found;
}

struct Example
{
    const char *page;
    int tab;
    QList<Field> fields; ///< in the order of the rows
    std::optional<double> vaporisationEntropy = std::nullopt;
};

} // namespace

class HelpTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsEveryPageContentsIndexAndFullText();
    void pagesAreWholeAndLinkToPages_data();
    void pagesAreWholeAndLinkToPages();
    void contentsNameEveryPageOnce();
    void indexLeadsToPagesInAlphabeticalOrder();
    void theProgramHoldsTheSamePages();
    void everyCalculatorHasAnExampleAsTheProgramSolvesIt_data();
    void everyCalculatorHasAnExampleAsTheProgramSolvesIt();
    void conversionsAreWhatTheProgramShows();
    void sourcesOfEveryTableAreTold();
};

void HelpTest::holdsEveryPageContentsIndexAndFullText()
{
    const QTemporaryDir folder;
    QProcess extract;
    extract.start(QStringLiteral("extract_chmLib"),
                  {QStringLiteral(ALEMBRA_FOLDER "/alembra_help_uk.chm"), folder.path()});
    QVERIFY(extract.waitForFinished());
    QCOMPARE(extract.exitCode(), 0);

    const QStringList sources = QDir(Source).entryList({QStringLiteral("*.html"), QStringLiteral("*.css"),
                                                        QStringLiteral("*.hhc"), QStringLiteral("*.hhk")});
    for (const QString &file : sources)
        QVERIFY2(contentOf(folder.filePath(file)) == contentOf(Source + file), qPrintable(file));
    // No time: the same pages give the same bytes.
    QCOMPARE(contentOf(QStringLiteral(ALEMBRA_FOLDER "/alembra_help_uk.chm")).mid(16, 4),
             QByteArray(4, '\0'));
    QCOMPARE(contentOf(folder.filePath(QStringLiteral("#SYSTEM"))).mid(8, 4), QByteArray(4, '\0'));
    // The number of pages in the full-text index, a 32-bit number at offset 4.
    const QByteArray fullText = contentOf(folder.filePath(QStringLiteral("$FIftiMain")));
    QVERIFY(fullText.size() > 8);
    QCOMPARE(qsizetype(quint8(fullText[4])), pages().size());
}

void HelpTest::pagesAreWholeAndLinkToPages_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : pages())
        QTest::newRow(qPrintable(name)) << name;
}

void HelpTest::pagesAreWholeAndLinkToPages()
{
    QFETCH(QString, name);
    const Page page(name);
    QVERIFY2(page.error.isEmpty(), qPrintable(page.error));
    QCOMPARE(page.heading, page.title);
    for (const QString &link : page.links)
        QVERIFY2(pages().contains(link), qPrintable(link));
    // Readers differ in the code page they assume: signs beyond it are written as references.
    const QByteArray bytes = contentOf(Source + name);
    QVERIFY(std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte > 0; }));
}

void HelpTest::contentsNameEveryPageOnce()
{
    QStringList named = targets(QStringLiteral("alembra_help_uk.hhc"));
    QCOMPARE(named.value(0), QStringLiteral("index.html"));
    named.sort();
    QCOMPARE(named, pages());
}

void HelpTest::indexLeadsToPagesInAlphabeticalOrder()
{
    const QString file = QStringLiteral("alembra_help_uk.hhk");
    for (const QString &target : targets(file))
        QVERIFY2(pages().contains(target), qPrintable(target));
    static const QRegularExpression Name(QStringLiteral("name=\"Name\" value=\"([^\"]*)\""));
    QString last;
    QRegularExpressionMatchIterator names = Name.globalMatch(QString::fromLatin1(contentOf(Source + file)));
    while (names.hasNext()) {
        const QString name = names.next().captured(1).toLower();
        QVERIFY2(last < name, qPrintable(name));
        QVERIFY2(!name.contains(QLatin1Char(',')), qPrintable(name)); // the compiler garbles such entries
        last = name;
    }
}

void HelpTest::theProgramHoldsTheSamePages()
{
    QCOMPARE(HelpBook::index().size(), targets(QStringLiteral("alembra_help_uk.hhk")).size());
    const QList<HelpBook::Topic> contents = HelpBook::contents();
    QCOMPARE(contents.size(), pages().size());
    for (const HelpBook::Topic &topic : contents)
        QVERIFY2(contentOf(u':' + HelpBook::address(topic.page).path()) == contentOf(Source + topic.page),
                 qPrintable(topic.page));
    const QList<HelpBook::Topic> found = HelpBook::search(QStringLiteral("tryptophan UGG"));
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.constFirst().page, QStringLiteral("geneticcode.html"));
    QCOMPARE(found.constFirst().level, 1);
}

void HelpTest::everyCalculatorHasAnExampleAsTheProgramSolvesIt_data()
{
    QTest::addColumn<Example>("example");
    const auto row = [](const Example &example) { QTest::newRow(example.page) << example; };
    row({"calc_amount", 1, {TextBoxM3, TextBoxM4, TextBoxM5}});
    row({"calc_concentration", 2, {TextBoxM3, TextBoxM4, TextBoxM5}});
    row({"calc_volumic_mass", 3, {TextBoxM3, TextBoxM4, TextBoxM5}});
    row({"calc_dilution", 4, {Ci, Vi, Cf, Vf, T}});
    row({"calc_fractions", 5, {Xn1, Xn2, M1, M2, Xm1, Xm2}});
    row({"calc_vapour", 6, {Tc, P, TcStar, PStar}, 109});
}

void HelpTest::everyCalculatorHasAnExampleAsTheProgramSolvesIt()
{
    QFETCH(Example, example);
    QList<QStringList> rows = Page(QLatin1StringView(example.page) + QStringLiteral(".html")).rows;
    rows.removeIf(
        [](const QStringList &cells) { return cells.isEmpty() || cells[0] == QStringLiteral("(button)"); });
    QCOMPARE(rows.size(), example.fields.size());
    FieldTexts texts;
    QList<QPair<Field, QString>> expected;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const QString &entered = rows[i][1];
        const QString &result = rows[i][2];
        if (entered == QStringLiteral("(fills itself)"))
            texts[example.fields[i]] = result;
        else if (!entered.isEmpty())
            texts[example.fields[i]] = entered;
        else
            expected.append({example.fields[i], result});
    }

    const Outcome outcome = Solver::solve(example.tab, texts, example.vaporisationEntropy);

    QCOMPARE(outcome.message, QString());
    QCOMPARE(outcome.changes.size(), expected.size());
    for (const auto &[field, text] : expected)
        QVERIFY2(outcome.changes.contains(Change{field, text}), qPrintable(text));
}

void HelpTest::conversionsAreWhatTheProgramShows()
{
    OptionSlots options;
    options.read(QStringLiteral(ALEMBRA_FOLDER "/options_uk.ini"));
    static const QRegularExpression Equation(QStringLiteral("^(\\d+) (.+) = ([\\d.]+) ([^(]+?)(?: \\(.*)?$"));
    const auto quantities = Units::quantities();
    QList<QStringList> rows = Page(QStringLiteral("conversions.html")).rows;
    rows.removeIf([](const QStringList &cells) { return cells.isEmpty(); });
    QCOMPARE(size_t(rows.size()), quantities.size());

    for (size_t tab = 1; tab <= quantities.size(); ++tab) {
        const Quantity &quantity = quantities[tab - 1];
        const QStringList &cells = rows[qsizetype(tab - 1)];
        QCOMPARE(cells[0], QLatin1StringView(quantity.caption));
        const QRegularExpressionMatch equation = Equation.match(cells[1]);
        QVERIFY2(equation.hasMatch(), qPrintable(cells[1]));
        const QStringList names = Units::names(quantity, options);
        const auto position = [&](const QString &unit) {
            return int(std::find_if(names.begin(), names.end(),
                                    [&](const QString &name) {
                                        return name.startsWith(unit + QStringLiteral(" ("));
                                    }) -
                       names.begin());
        };
        const UnitPair pair{position(equation.captured(2)), position(equation.captured(4))};
        QVERIFY2(pair.from < names.size(), qPrintable(equation.captured(2)));
        QVERIFY2(pair.to < names.size(), qPrintable(equation.captured(4)));
        UnitConverter converter([&](int) { return pair; });
        QCOMPARE(converter.keyReleased(int(tab), equation.captured(1)), equation.captured(3));
    }
}

void HelpTest::sourcesOfEveryTableAreTold()
{
    const QString root = QStringLiteral(ALEMBRA_SOURCE "/");
    const QStringList tables =
        QDir(root + QStringLiteral("data/tables")).entryList({QStringLiteral("*.tsv")});
    QCOMPARE(tables.size(), 35);
    for (const char *page : {"data/help/data.html", "docs/data.md"}) {
        const QString text = QString::fromUtf8(contentOf(root + QLatin1StringView(page)));
        for (const QString &table : tables) {
            const QRegularExpression name(QStringLiteral("\\b%1\\b").arg(table.chopped(4)));
            QVERIFY2(text.contains(name), qPrintable(QLatin1StringView(page) + QLatin1Char(' ') + table));
        }
    }
}

QTEST_GUILESS_MAIN(HelpTest)
#include "help_test.moc"
