#include "tools/make_pictures/lattice.h"

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace {

using Site = Lattice::Site;

constexpr float radians(float degrees)
{
    return degrees * float(std::numbers::pi) / 180;
}

constexpr QStringView AllEqual = u"a = b = c";
constexpr QStringView TwoEqual = u"a = b ≠ c";
constexpr QStringView NoneEqual = u"a ≠ b ≠ c";
constexpr QStringView Right = u"α = β = γ = 90°";
constexpr QStringView Hexagon = u"α = β = 90°, γ = 120°";

/// The cell with the axes given by edge lengths and, in degrees, beta (between a and c).
Lattice emptyCell(const char *name, QStringView edges, QStringView angles, const QString &note,
                  QVector3D lengths, float beta = 90)
{
    Lattice cell{QString::fromLatin1(name), edges.toString(), angles.toString(), note, {}, {}, {}, {}, {}};
    cell.a = {lengths.x(), 0, 0};
    cell.b = {0, lengths.y(), 0};
    cell.c = QVector3D(std::cos(radians(beta)), 0, std::sin(radians(beta))) * lengths.z();
    return cell;
}

QVector3D at(const Lattice &cell, float u, float v, float w)
{
    return cell.a * u + cell.b * v + cell.c * w;
}

void addCorners(Lattice &cell, Site site)
{
    for (int i = 0; i < 8; ++i)
        cell.spheres << Lattice::Sphere{at(cell, float(i & 1), float((i >> 1) & 1), float(i >> 2)), site};
}

void addEdges(Lattice &cell)
{
    for (int i = 0; i < 4; ++i) {
        const auto s = float(i & 1);
        const auto t = float(i >> 1);
        cell.lines << Lattice::Line{at(cell, 0, s, t), at(cell, 1, s, t), true}
                   << Lattice::Line{at(cell, s, 0, t), at(cell, s, 1, t), true}
                   << Lattice::Line{at(cell, s, t, 0), at(cell, s, t, 1), true};
    }
}

/// A cell with its lattice points only: the number of atoms at each point differs between elements.
Lattice pointCell(Lattice cell)
{
    addEdges(cell);
    addCorners(cell, Site::Point);
    return cell;
}

Lattice cubic(const char *name, const QString &note)
{
    Lattice cell = emptyCell(name, AllEqual, Right, note, {1, 1, 1});
    addEdges(cell);
    addCorners(cell, Site::Corner);
    return cell;
}

void addFaceCentres(Lattice &cell)
{
    for (const float w : {0.F, 1.F}) {
        cell.spheres << Lattice::Sphere{at(cell, .5F, .5F, w), Site::Centre}
                     << Lattice::Sphere{at(cell, .5F, w, .5F), Site::Centre}
                     << Lattice::Sphere{at(cell, w, .5F, .5F), Site::Centre};
    }
}

Lattice bodyCentred()
{
    Lattice cell =
        cubic("Body-centered cubic", u"2 atoms in the cell, 8 nearest neighbours, space filled to 68 %"_s);
    cell.spheres << Lattice::Sphere{at(cell, .5F, .5F, .5F), Site::Centre};
    return cell;
}

Lattice faceCentred()
{
    Lattice cell =
        cubic("Face-centered cubic", u"4 atoms in the cell, 12 nearest neighbours, space filled to 74 %"_s);
    addFaceCentres(cell);
    return cell;
}

Lattice diamond()
{
    Lattice cell =
        cubic("Diamond cubic", u"8 atoms in the cell, 4 nearest neighbours, space filled to 34 %"_s);
    addFaceCentres(cell);
    const QList<Lattice::Sphere> outer = cell.spheres;
    for (const QVector3D &inner : {at(cell, .25F, .25F, .25F), at(cell, .75F, .75F, .25F),
                                   at(cell, .75F, .25F, .75F), at(cell, .25F, .75F, .75F)}) {
        cell.spheres << Lattice::Sphere{inner, Site::Inner};
        for (const Lattice::Sphere &sphere : outer) {
            if (inner.distanceToPoint(sphere.at) < 0.45F)
                cell.lines << Lattice::Line{inner, sphere.at, false};
        }
    }
    return cell;
}

/// Hexagonal close packing in the prism of three cells. @p layers: the positions A, B, C of the layers from
/// bottom to top, the last one on the top face. The spacing of the layers is ideal.
Lattice hexagonal(const char *name, const QString &note, const QString &layers)
{
    const float height = std::sqrt(2.F / 3) * float(layers.size() - 1);
    Lattice cell = emptyCell(name, TwoEqual, Hexagon, note, {1, 1, height});
    cell.b = {std::cos(radians(120)), std::sin(radians(120)), 0};
    addEdges(cell);

    const QVector3D axis = at(cell, 1, 1, 0); // the prism is centred on this corner of the cell
    const auto rim = [&](int i, float w) {
        return axis + QVector3D(std::cos(radians(60 * i)), std::sin(radians(60 * i)), 0) + cell.c * w;
    };
    for (int i = 0; i < 6; ++i) {
        for (const float w : {0.F, 1.F})
            cell.lines << Lattice::Line{rim(i, w), rim(i + 1, w), false};
        cell.lines << Lattice::Line{rim(i, 0), rim(i, 1), false};
    }
    for (int layer = 0; layer < layers.size(); ++layer) {
        const float w = float(layer) / float(layers.size() - 1);
        if (layers[layer] == u'A') {
            cell.spheres << Lattice::Sphere{axis + cell.c * w, Site::Corner};
            for (int i = 0; i < 6; ++i)
                cell.spheres << Lattice::Sphere{rim(i, w), Site::Corner};
            continue;
        }
        // Three hollows of the layer below: every second of the six around the axis.
        const int first = layers[layer] == u'B' ? 30 : 90;
        for (int angle = first; angle < 360; angle += 120) {
            const QVector3D hollow(std::cos(radians(float(angle))), std::sin(radians(float(angle))), 0);
            cell.spheres << Lattice::Sphere{axis + hollow / std::sqrt(3.F) + cell.c * w,
                                            layers[layer] == u'B' ? Site::Centre : Site::Inner};
        }
    }
    return cell;
}

Lattice rhombohedral()
{
    Lattice cell = emptyCell("Rhombohedral", AllEqual, u"α = β = γ ≠ 90°"_s,
                             u"Lattice points only; the number of atoms differs"_s, {1, 1, 1});
    // Three equal axes, 102° between each two.
    const float cosine = std::cos(radians(102));
    const float sine = std::sin(radians(102));
    cell.a = {sine, 0, cosine};
    const float along = (cosine - cosine * cosine) / sine;
    cell.b = {along, std::sqrt(sine * sine - along * along), cosine};
    return pointCell(cell);
}

QList<Lattice> allLattices()
{
    const QString points = u"Lattice points only; the number of atoms differs"_s;
    return {
        bodyCentred(),
        faceCentred(),
        diamond(),
        cubic("Simple cubic", u"1 atom in the cell, 6 nearest neighbours, space filled to 52 %"_s),
        pointCell(emptyCell("Cubic", AllEqual, Right,
                            u"Lattice points only; large cell (58 atoms in α-manganese)"_s, {1, 1, 1})),
        hexagonal("Hexagonal", u"Close packing, layers AB; in C, Se and Te the atoms lie otherwise"_s,
                  u"ABA"_s),
        hexagonal("Double hexagonal", u"Close packing, layers ABAC: 4 atoms in the cell, 12 neighbours"_s,
                  u"ABACA"_s),
        pointCell(emptyCell("Tetragonal", TwoEqual, Right, points, {.85F, .85F, 1.2F})),
        pointCell(emptyCell("Orthorhombic", NoneEqual, Right, points, {.75F, .95F, 1.2F})),
        pointCell(emptyCell("Monoclinic", NoneEqual, u"α = γ = 90° ≠ β"_s, points, {.8F, .95F, 1.15F}, 110)),
        rhombohedral(),
    };
}

} // namespace

const QList<Lattice> &lattices()
{
    static const QList<Lattice> all = allLattices();
    return all;
}
