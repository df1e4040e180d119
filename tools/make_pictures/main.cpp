// make_pictures <data folder> <program folder's Data>: draws every picture that the program shows or prints,
// from the tables of data/, and removes the pictures of rows that are gone. Ends with status 1 and a line on
// standard error if one cannot be made.

#include "tools/make_pictures/kinds.h"
#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/picturefolder.h"
#include "tools/tables/table.h"

#include <QGuiApplication>

#include <array>
#include <cstdio>

namespace {

constexpr std::array Kinds{drawElements,  drawCrystals,  drawStructures, drawIrCharts,
                           drawNmrCharts, drawReactions, drawPolarity,   drawGeneticCode};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: make_pictures <data folder> <program folder's Data>\n", stderr);
        return 2;
    }
    try {
        requireTypeface();
        const PictureFolder pictures(arguments[2]);
        for (const auto draw : Kinds)
            draw(arguments[1], pictures);
        const int removed = pictures.removeOthers();
        std::printf("pictures: %d written, %d unchanged, %d removed\n", pictures.written(),
                    pictures.unchanged(), removed);
        return 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "make_pictures: %s\n", error.what());
        return 1;
    }
}
