// The pictures of the reactions, the genetic code and the polarities, and the tool as a program.

#include "charts/chartgeometry.h"
#include "tests/tools/pictures_data.h"
#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/reactionline.h"
#include "tools/make_pictures/reactions.h"

#include <QFontMetricsF>
#include <QImage>
#include <QProcess>
#include <QTest>

#include <algorithm>

namespace {

constexpr Formula::Style Scale{15, 12};

double widthOf(const QString &smiles)
{
    return ReactionLine::layOut(smiles, {}, 2000, Scale)->width();
}

} // namespace

class PictureReactionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyReactionHasItsEquationAndMechanism();
    void reactionsAreBrokenToTheWidthAndNotInsideATerm();
    void equalMoleculesStandOnce();
    void halfReactionsAreNone();
    void phenylsOnPhosphorusAreShort();
    void reportPicturesComeInColourAndInGreys();
    void countsAreSubscriptsAndPositionsAreNot();
    void wrongDataIsRefusedWithFileAndLine_data();
    void wrongDataIsRefusedWithFileAndLine();
    void theToolSaysWhyItEnds_data();
    void theToolSaysWhyItEnds();
};

void PictureReactionsTest::everyReactionHasItsEquationAndMechanism()
{
    const int rows = Table::read(Data + QStringLiteral("/tables/Reaction.tsv")).rowCount();
    for (int row = 1; row <= rows; ++row) {
        for (const QString &suffix : {QStringLiteral(".gif"), QStringLiteral("m.gif")}) {
            const QString name = Pictures + QStringLiteral("orga/%1").arg(row) + suffix;
            const QImage picture(name);
            QCOMPARE(picture.width(), ChartGeometry::Width);
            QVERIFY2(picture.height() <= ChartGeometry::VisibleHeight, qPrintable(name));
        }
    }
}

void PictureReactionsTest::reactionsAreBrokenToTheWidthAndNotInsideATerm()
{
    const QString smiles = QStringLiteral("CCCCCC.CCCCCO>>CCCCCN.CCCCCS");
    const std::optional<ReactionLine> whole = ReactionLine::layOut(smiles, {}, 2000, Scale);
    const std::optional<ReactionLine> broken = ReactionLine::layOut(smiles, {}, whole->width() - 1, Scale);
    QVERIFY(!whole->isBroken());
    QVERIFY(broken->isBroken());
    QVERIFY(broken->width() < whole->width());
    QVERIFY(broken->height() > whole->height());
    // Too narrow for anything: each term still stands whole on a line of its own.
    const std::optional<ReactionLine> narrow = ReactionLine::layOut(smiles, {}, 1, Scale);
    QVERIFY(narrow->width() > Formula::fromSmiles(QStringLiteral("CCCCCC"), Scale)->size().width());
}

void PictureReactionsTest::equalMoleculesStandOnce()
{
    const double once = widthOf(QStringLiteral("CCCCCC>>O"));
    const double thrice = widthOf(QStringLiteral("CCCCCC.CCCCCC.CCCCCC>>O"));
    const double different = widthOf(QStringLiteral("CCCCCC.CCCCCN>>O"));
    QVERIFY(thrice > once && thrice < once + 40);
    QVERIFY(different > once + 60);
}

void PictureReactionsTest::halfReactionsAreNone()
{
    for (const char *smiles : {"CC", "CC>O>C", "CC>>", ">>CC", "CC>>C(", "C.>>C", "CC>>O>>C"})
        QVERIFY2(!ReactionLine::layOut(QString::fromLatin1(smiles), {}, 500, Scale), smiles);
}

void PictureReactionsTest::phenylsOnPhosphorusAreShort()
{
    const QSizeF phosphine =
        Formula::fromSmiles(QStringLiteral("P(c1ccccc1)(c1ccccc1)c1ccccc1"), Scale)->size();
    const QSizeF amine = Formula::fromSmiles(QStringLiteral("N(c1ccccc1)(c1ccccc1)c1ccccc1"), Scale)->size();
    QVERIFY(phosphine.height() < amine.height() * 0.75);
}

void PictureReactionsTest::reportPicturesComeInColourAndInGreys()
{
    for (const QString &name : {QStringLiteral("img/polarite"), QStringLiteral("img/gene")}) {
        const QImage colour(Pictures + name + QStringLiteral("_c.jpg"));
        const QImage grey(Pictures + name + QStringLiteral("_ng.jpg"));
        QVERIFY(!colour.isNull());
        QVERIFY(!colour.allGray());
        QVERIFY(grey.allGray());
        QCOMPARE(grey.size(), colour.size());
    }
    QCOMPARE(QImage(Pictures + QStringLiteral("img/polarite_c.jpg")).size(), QSize(313, 441));
}

void PictureReactionsTest::countsAreSubscriptsAndPositionsAreNot()
{
    const auto narrower = [](const char *text) {
        const QString formula = QString::fromUtf8(text);
        const double plain = QFontMetricsF(textFont(20)).horizontalAdvance(formula);
        return ScriptText::formula(formula, 20).width() < plain - 1;
    };
    for (const char *text : {"CH3", "R2C=CR2", "C6H5-CO-R", "R-C(OR)3", "NH2 next to C"})
        QVERIFY2(narrower(text), text);
    for (const char *text : {"furan C2-H", "pyrrole H3", "THF (C2)", "uracil C4=O", "2972-2862", "SN2",
                             "E2: alkene", "1,3-dioxane"})
        QVERIFY2(!narrower(text), text);
}

void PictureReactionsTest::wrongDataIsRefusedWithFileAndLine_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<Draw>("draw");
    QTest::addColumn<int>("line");
    const auto row = [](const char *name, const char *table, const char *before, const char *after, Draw draw,
                        int line) {
        QTest::newRow(name) << QString::fromLatin1(table) << QByteArray(before) << QByteArray(after) << draw
                            << line;
    };
    const char *reactions = "drawing/structures_reactions.tsv";
    row("step left out", reactions, "1\tAldol addition\tstep\t2", "1\tAldol addition\tstep\t3", drawReactions,
        4);
    row("reaction left out", reactions, "2\tAppel reaction\tequation", "3\tAppel reaction\tequation",
        drawReactions, 6);
    row("structure that is none", reactions, "CC=O.[OH-]>>", "CC(=O.[OH-]>>", drawReactions, 3);
}

void PictureReactionsTest::wrongDataIsRefusedWithFileAndLine()
{
    QFETCH(QString, table);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(Draw, draw);
    QFETCH(int, line);
    const QString message = WrongData{table, before, after, draw}.refusal();
    QVERIFY2(message.contains(table + QStringLiteral(":%1:").arg(line)), qPrintable(message));
}

void PictureReactionsTest::theToolSaysWhyItEnds_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("message");
    const QString file = QStringLiteral(ALEMBRA_SOURCE "/LICENSE");
    QTest::newRow("no arguments") << QStringList{} << 2 << QByteArray("usage: ");
    QTest::newRow("no data") << QStringList{QStringLiteral("/nonexistent"), QStringLiteral("/nonexistent")}
                             << 1 << QByteArray("/nonexistent/tables/Elements.tsv");
    QTest::newRow("folder that is a file")
        << QStringList{Data, file, QStringLiteral("polarity")} << 1 << QByteArray("LICENSE/img");
    QTest::newRow("unknown kind") << QStringList{Data, file, QStringLiteral("paintings")} << 2
                                  << QByteArray("usage: ");
}

void PictureReactionsTest::theToolSaysWhyItEnds()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QByteArray, message);
    QProcess tool;
    tool.start(QStringLiteral(MAKE_PICTURES), arguments);
    QVERIFY(tool.waitForFinished());
    QCOMPARE(tool.exitStatus(), QProcess::NormalExit);
    QCOMPARE(tool.exitCode(), status);
    const QByteArray output = tool.readAllStandardError();
    QVERIFY2(output.contains(message), output.constData());
}

QTEST_MAIN(PictureReactionsTest)
#include "picturereactions_test.moc"
