// make_pictures <data folder> <program folder's Data> [kind ...]: draws every picture that the program shows
// or prints, from the tables of data/. Unless only some kinds are named, it removes the pictures of rows that
// are gone. Ends with status 1 and a line on standard error if one cannot be made.

#include "tools/make_pictures/crystals.h"
#include "tools/make_pictures/elements.h"
#include "tools/make_pictures/geneticcode.h"
#include "tools/make_pictures/ircharts.h"
#include "tools/make_pictures/nmrcharts.h"
#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/picturefolder.h"
#include "tools/make_pictures/polarity.h"
#include "tools/make_pictures/reactions.h"
#include "tools/make_pictures/structures.h"
#include "tools/tables/table.h"

#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

struct Kind
{
    const char *name;
    void (*draw)(const QString &data, const PictureFolder &pictures);
};

constexpr std::array Kinds{
    Kind{"elements", drawElements},     Kind{"crystals", drawCrystals},
    Kind{"structures", drawStructures}, Kind{"ir", drawIrCharts},
    Kind{"nmr", drawNmrCharts},         Kind{"reactions", drawReactions},
    Kind{"polarity", drawPolarity},     Kind{"genetic code", drawGeneticCode},
};

bool areKinds(const QStringList &names)
{
    return std::all_of(names.begin(), names.end(), [](const QString &name) {
        return std::any_of(Kinds.begin(), Kinds.end(),
                           [&](const Kind &kind) { return name == QLatin1String(kind.name); });
    });
}

void drawKinds(const QString &data, const PictureFolder &pictures, const QStringList &wanted)
{
    requireTypeface();
    for (const Kind &kind : Kinds) {
        if (wanted.isEmpty() || wanted.contains(QLatin1String(kind.name)))
            kind.draw(data, pictures);
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments().mid(1);
    if (arguments.size() < 2 || !areKinds(arguments.mid(2))) {
        std::fputs("usage: make_pictures <data folder> <program folder's Data> [kind ...]\n", stderr);
        return 2;
    }
    try {
        const PictureFolder pictures(arguments[1]);
        drawKinds(arguments[0], pictures, arguments.mid(2));
        const int removed = arguments.size() == 2 ? pictures.removeOthers() : 0;
        std::printf("pictures: %d written, %d unchanged, %d removed\n", pictures.written(),
                    pictures.unchanged(), removed);
        return 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "make_pictures: %s\n", error.what());
        return 1;
    }
}
