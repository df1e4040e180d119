// Some pictures of each kind, drawn here, against those in golden/, which somebody has looked at.

#include "tools/make_pictures/crystals.h"
#include "tools/make_pictures/elements.h"
#include "tools/make_pictures/geneticcode.h"
#include "tools/make_pictures/ircharts.h"
#include "tools/make_pictures/nmrcharts.h"
#include "tools/make_pictures/picturefolder.h"
#include "tools/make_pictures/polarity.h"
#include "tools/make_pictures/reactions.h"
#include "tools/make_pictures/structures.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdlib>

namespace {

// Levels of 255. Processors round the edges of lines and letters differently, by a few levels; a line that
// moves by half a pixel, or a colour that is another, changes pixels by more than this.
constexpr int Tolerance = 24;

const QString Golden = QStringLiteral(ALEMBRA_SOURCE "/tests/tools/golden/");

struct Kind
{
    void (*draw)(const QString &data, const PictureFolder &pictures);
    QStringList pictures;
};

/// The delivered data, with only the first rows of the longest tables: a few of their pictures are enough.
void copyData(const QString &folder)
{
    const QMap<QString, int> lines{{"nmr_1h.tsv", 33}, {"nmr_13c.tsv", 24}, {"structures_reactions.tsv", 18}};
    for (const char *part : {"/tables/", "/drawing/", "/notes/"}) {
        QDir().mkpath(folder + part);
        for (const QFileInfo &original :
             QDir(QStringLiteral(ALEMBRA_SOURCE "/data") + part).entryInfoList(QDir::Files)) {
            QFile from(original.filePath());
            QFile to(folder + part + original.fileName());
            QVERIFY(from.open(QIODevice::ReadOnly) && to.open(QIODevice::WriteOnly));
            for (int line = 0; !from.atEnd() && line < lines.value(original.fileName(), INT_MAX); ++line)
                to.write(from.readLine());
        }
    }
}

/// The highest difference of two pixels in red, green or blue; 256 where the sizes differ.
int difference(const QImage &a, const QImage &b)
{
    int highest = a.size() == b.size() ? 0 : 256;
    for (int y = 0; highest < 256 && y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb first = a.pixel(x, y);
            const QRgb second = b.pixel(x, y);
            highest =
                std::max({highest, std::abs(qRed(first) - qRed(second)),
                          std::abs(qGreen(first) - qGreen(second)), std::abs(qBlue(first) - qBlue(second))});
        }
    }
    return highest;
}

} // namespace

class DrawingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picturesLookAsTheyDid()
    {
        QTemporaryDir data;
        copyData(data.path());
        const Kind kinds[] = {
            {drawElements,
             {"elements/6b.jpg", "elements/92b.jpg", "elements/26.jpg", "elements/106.jpg",
              "elements/106b.jpg"}},
            {drawCrystals,
             {"cristal/Double hexagonal.bmp", "cristal/Diamond cubic.bmp", "cristal/Monoclinic.bmp"}},
            {drawStructures, {"chemicals/3.bmp", "chemicals/30.bmp"}},
            {drawIrCharts, {"ir/5.gif"}},
            {drawNmrCharts,
             {"nmr/1h/1001.gif", "nmr/1h/13.gif", "nmr/1h/28.gif", "nmr/13c/1000.gif", "nmr/13c/16.gif"}},
            {drawReactions, {"orga/2.gif", "orga/2m.gif", "orga/3.gif", "orga/3m.gif"}},
            {drawPolarity, {"img/polarite_c.jpg", "img/polarite_ng.jpg"}},
            {drawGeneticCode, {"img/gene_c.jpg"}},
        };
        for (const Kind &kind : kinds) {
            QTemporaryDir folder;
            kind.draw(data.path(), PictureFolder(folder.path()));
            for (QString name : kind.pictures) {
                const QString drawn = folder.filePath(name);
                name.replace('/', '-').replace(".bmp", ".png");
                const int levels = difference(QImage(drawn), QImage(Golden + name));
                if (levels > Tolerance) {
                    folder.setAutoRemove(false);
                    QTest::qFail(qPrintable(QStringLiteral("%1 differs by %2 levels").arg(drawn).arg(levels)),
                                 __FILE__, __LINE__);
                }
            }
        }
    }
};

QTEST_MAIN(DrawingTest)
#include "drawing_test.moc"
