#include "charts/chartgeometry.h"
#include "tests/support/files.h"
#include "tests/support/pictures.h"
#include "tools/make_pictures/elements.h"
#include "tools/make_pictures/kinds.h"
#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/picturefolder.h"
#include "tools/make_pictures/reactionline.h"
#include "tools/make_pictures/shiftaxis.h"
#include "tools/tables/table.h"

#include <QFontMetricsF>
#include <QImageReader>

using namespace Qt::StringLiterals;

/// The pictures of the program: that they are whole, look as they did and tell the truth.
class PicturesTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKindIsWholeAndFitsItsPlace()
    {
        const QSize chart(ChartGeometry::Width, ChartGeometry::VisibleHeight);
        const QSize scrolled(ChartGeometry::Width, 2000);
        for (const auto &[folder, count, largest] : {std::tuple("elements", 2 * LastCard, QSize(480, 480)),
                                                     {"cristal", 11, {360, 360}},
                                                     {"chemicals", 392, {430, 320}},
                                                     {"ir", 6, scrolled},
                                                     {"nmr/1h", 250, chart},
                                                     {"nmr/13c", 418, chart},
                                                     {"orga", 118, chart},
                                                     {"img", 4, {426, 441}}}) {
            QSet<QByteArray> looks;
            const QFileInfoList files =
                QDir(Delivered + QLatin1StringView(folder)).entryInfoList(QDir::Files);
            for (const QFileInfo &file : files) {
                const QSize size = QImageReader(file.filePath()).size();
                QVERIFY2(largest.expandedTo(size) == largest, qPrintable(file.filePath()));
                looks << readFile(file.filePath());
            }
            QVERIFY2(files.size() == count, folder);
            // Solvents have theirs by name and by number.
            QVERIFY2(qstrcmp(folder, "chemicals") == 0 || looks.size() == count, folder);
        }
    }

    // Some of each kind, drawn here, against those in golden/, which somebody has looked at.
    void picturesLookAsTheyDid()
    {
        const QTemporaryDir data;
        copyData(data.path());
        for (const auto &[draw, kind, names] :
             {std::tuple<Draw, const char *, QStringList>{
                  drawElements, "elements/", {"6b.jpg", "92b.jpg", "26.jpg", "106.jpg", "106b.jpg"}},
              {drawCrystals, "cristal/", {"Double hexagonal.bmp", "Diamond cubic.bmp", "Monoclinic.bmp"}},
              {drawStructures, "chemicals/", {"3.bmp", "30.bmp"}},
              {drawIrCharts, "ir/", {"5.gif"}},
              {drawNmrCharts,
               "nmr/",
               {"1h/1001.gif", "1h/13.gif", "1h/28.gif", "13c/1000.gif", "13c/16.gif"}},
              {drawReactions, "orga/", {"2.gif", "2m.gif", "3.gif", "3m.gif"}},
              {drawPolarity, "img/", {"polarite_c.jpg", "polarite_ng.jpg"}},
              {drawGeneticCode, "img/", {"gene_c.jpg"}}}) {
            QTemporaryDir folder;
            draw(data.path(), PictureFolder(folder.path()));
            if (draw == drawCrystals) { // not again: the date of a file is that of its last change
                const PictureFolder again(folder.path());
                draw(data.path(), again);
                QCOMPARE(again.written(), 0);
                const QString first = folder.filePath(QLatin1StringView(kind) + names.constFirst());
                QVERIFY(QFile::copy(first, QFileInfo(first).path() + u"/of a gone row"_s));
                QCOMPARE(again.removeOthers(), 1);
            }
            for (const QString &name : names) {
                QString below = QLatin1StringView(kind) + name;
                const QString drawn = folder.filePath(below);
                const QString golden = below.replace(u'/', u'-').replace(u".bmp"_s, u".png"_s);
                const int levels = difference(QImage(drawn), QImage(Golden + golden));
                folder.setAutoRemove(folder.autoRemove() && levels <= Tolerance);
                QVERIFY2(levels <= Tolerance,
                         qPrintable(u"%1 differs by %2 levels"_s.arg(drawn).arg(levels)));
            }
        }
    }

    void axesEndOnTicks()
    {
        for (const auto &[from, to, low, high] :
             {std::array{-24.0, 76.0, -30.0, 80.0}, {1.0, 2.0, 1.0, 2.0}}) { // bounds on ticks stay
            const ShiftAxis axis = ShiftAxis::around(from, to, 100, 300);
            QVERIFY(axis.low() == low && axis.high() == high && axis.abscissa(high) == 100);
        }
    }

    void reactionsAreBrokenToTheWidthAndNotInsideATerm()
    {
        const QString smiles = u"CCCCCC.CCCCCO>>CCCCCN.CCCCCS"_s;
        const std::optional<ReactionLine> whole = ReactionLine::layOut(smiles, {}, 2000, Scale);
        const std::optional<ReactionLine> broken =
            ReactionLine::layOut(smiles, {}, whole->width() - 1, Scale);
        QVERIFY(!whole->isBroken() && broken->isBroken());
        QVERIFY(broken->width() < whole->width() && broken->height() > whole->height());
        // Too narrow for anything: each term still stands whole on a line of its own.
        QVERIFY(ReactionLine::layOut(smiles, {}, 1, Scale)->width() > sizeOf("CCCCCC").width());
    }

    void moleculesAreShort()
    {
        const auto width = [](const char *smiles) {
            return ReactionLine::layOut(QLatin1StringView(smiles), {}, 2000, Scale)->width();
        };
        const double once = width("CCCCCC>>O");
        const double thrice = width("CCCCCC.CCCCCC.CCCCCC>>O"); // with the number before it
        QVERIFY(thrice > once && thrice < once + 40);
        QVERIFY(width("CCCCCC.CCCCCN>>O") > once + 60);
        // Phenyls on phosphorus are "Ph".
        QVERIFY(sizeOf("P(c1ccccc1)(c1ccccc1)c1ccccc1").height() <
                sizeOf("N(c1ccccc1)(c1ccccc1)c1ccccc1").height() * 0.75);
        for (const char *half : {"CC", "CC>O>C", "CC>>", ">>CC", "CC>>C(", "C.>>C", "CC>>O>>C"})
            QVERIFY2(!ReactionLine::layOut(QLatin1StringView(half), {}, 500, Scale), half);
    }

    void countsAreSubscriptsAndPositionsAreNot()
    {
        for (const auto &[text, subscripts] : {std::pair("CH3", true),
                                               {"R2C=CR2", true},
                                               {"R-C(OR)3", true},
                                               {"NH2 next to C", true},
                                               {"furan C2-H", false},
                                               {"pyrrole H3", false},
                                               {"THF (C2)", false},
                                               {"2972-2862", false},
                                               {"SN2", false},
                                               {"E2: alkene", false},
                                               {"1,3-dioxane", false}}) {
            const double plain = QFontMetricsF(textFont(20)).horizontalAdvance(QLatin1StringView(text));
            const bool narrower = ScriptText::formula(QLatin1StringView(text), 20).width() < plain - 1;
            QVERIFY2(narrower == subscripts, text);
        }
    }

    void electronsAndBlocksFollowThePeriodicTable()
    {
        QCOMPARE(electronsInShells(u"1s2 2s2 2p6 3s2 3p6 3d10 4s2 4p6 4d10"_s), (QList<int>{2, 8, 18, 18}));
        for (const char *text : {"", "1s", "2x3", "1s2  2s1", "[He] 2s1"})
            QVERIFY2(electronsInShells(QLatin1StringView(text)).isEmpty(), text);
        QByteArray blocks;
        for (const int number : {1, 2, 3, 5, 10, 20, 21, 30, 31, 57, 58, 71, 72, 89, 90, 103, 104, 118})
            blocks += blockOf(number);
        QCOMPARE(blocks, "ssspps"
                         "ddpdff"
                         "ddffdp");
    }

    void aGifKeepsUpTo256ColoursExactly()
    {
        QImage picture(16, 16, QImage::Format_RGB32);
        for (int i = 0; i < 256; ++i)
            picture.setPixel(i % 16, i / 16, qRgb(i, 255 - i, i / 2));
        QCOMPARE(QImage::fromData(encodeGif(picture), "GIF").convertToFormat(QImage::Format_RGB32), picture);
    }

    void wrongDataIsRefusedWithFileAndLine()
    {
        const char *const elements = "tables/Elements.tsv";
        const char *const solvents = "drawing/structures_solvants.tsv";
        const char *const protons = "drawing/nmr_1h.tsv";
        const char *const bands = "drawing/ir_bands.tsv";
        const char *const reactions = "drawing/structures_reactions.tsv";
        for (const auto &[draw, table, line, before, after] :
             {std::tuple<Draw, const char *, int, const char *, QByteArray>{drawElements, elements, 4,
                                                                            "Lithium\tLi", "Lithium"},
              {drawElements, elements, 27, "[Ar] 3d6 4s2", "[Ar] 3d6 4s1"},
              {drawElements, elements, 12, "[Ne] 3s1", "[Nn] 3s1"},
              {drawElements, elements, 4, "Alkali metal", "Alkali"},
              {drawCrystals, elements, 85, "Simple cubic", "Plain cubic"},
              {drawStructures, solvents, 4, "CC(C)=O\t", "CC(C=O\t"},
              {drawStructures, solvents, 4, "CC(C)=O\t", "CC(C)(C)(C)C\t"}, // five bonds
              {drawStructures, solvents, 1, "smiles", "structure"},
              {drawNmrCharts, protons, 6, "0.76\t0.92", "0.76\t1.92"}, // outside its range
              {drawNmrCharts, protons, 7, "0.73\t1.00", "0.73\tone"},
              {drawNmrCharts, protons, 31, "\tC([H:1])([H:1])([H:1])Cl ", "\tC(Cl "},
              {drawNmrCharts, protons, 31, "\tC([H:1])([H:1])([H:1])Cl ", "\tC([H])([H])([H])Cl "},
              {drawIrCharts, bands, 3, "2862\t2972", "2862\t4972"}, // off the scale
              {drawIrCharts, bands, 12, "1017\t1025\tm\tHydrogen (H),  Carbon (C)\t008000",
               "1017\t1025\tm\tHydrogen (H),  Carbon (C)\tgreen"},
              {drawIrCharts, "drawing/ir_charts.tsv", 4, "Allenes\t1", "Allene\t1"}, // no bands
              {drawIrCharts, bands, 10, "C-H rock ((CH2)4 and longer)",
               QByteArray("many words ").repeated(12)},
              {drawReactions, reactions, 4, "1\tAldol addition\tstep\t2", "1\tAldol addition\tstep\t3"},
              {drawReactions, reactions, 6, "2\tAppel reaction\tequation", "3\tAppel reaction\tequation"},
              {drawReactions, reactions, 3, "CC=O.[OH-]>>", "CC(=O.[OH-]>>"}}) {
            const QTemporaryDir folder;
            copyData(folder.path());
            const QString path = folder.filePath(QLatin1StringView(table));
            QByteArray bytes = readFile(path);
            QVERIFY2(bytes.contains(before), before);
            writeFile(path, bytes.replace(before, after));
            QString refusal;
            try {
                draw(folder.path(), PictureFolder(folder.filePath(u"Data"_s)));
            } catch (const BuildError &error) {
                refusal = QString::fromUtf8(error.what());
            }
            const QString place = u"%1:%2:"_s.arg(QLatin1StringView(table)).arg(line);
            QVERIFY2(refusal.contains(place), qPrintable(place + refusal));
        }
        for (const auto &[arguments, status, message] :
             {std::tuple(QStringList(), 2, "usage: make_pictures <data folder> "),
              {{u"none"_s, u"none"_s}, 1, "make_pictures: "}}) {
            QProcess tool;
            tool.start(QStringLiteral(MAKE_PICTURES), arguments);
            QVERIFY(tool.waitForFinished());
            QCOMPARE(tool.exitCode(), status);
            QVERIFY(tool.readAllStandardError().contains(message)); // Qt may have said something before
        }
    }

private:
    using Draw = void (*)(const QString &, const PictureFolder &);
    inline static const QString Data = QStringLiteral(ALEMBRA_SOURCE "/data");
    static constexpr Formula::Style Scale{15, 12};

    inline static const QString Delivered = QStringLiteral(ALEMBRA_FOLDER "/Data/");
    inline static const QString Golden = QStringLiteral(ALEMBRA_SOURCE "/tests/tools/golden/");

    // The first rows of the longest tables are enough.
    static void copyData(const QString &folder)
    {
        const QMap<QString, int> rows{
            {u"nmr_1h.tsv"_s, 33}, {u"nmr_13c.tsv"_s, 24}, {u"structures_reactions.tsv"_s, 18}};
        for (const QString &part : {u"/tables/"_s, u"/drawing/"_s, u"/notes/"_s}) {
            for (const QFileInfo &file : QDir(Data + part).entryInfoList(QDir::Files)) {
                const QByteArray all = readFile(file.filePath());
                const int cut = rows.value(file.fileName());
                writeFile(folder + part + file.fileName(),
                          cut == 0 ? all : all.split('\n').first(cut).join('\n') + '\n');
            }
        }
    }

    static QSizeF sizeOf(const char *smiles)
    {
        return Formula::fromSmiles(QLatin1StringView(smiles), Scale)->size();
    }
};

QTEST_MAIN(PicturesTest)
#include "pictures_test.moc"
