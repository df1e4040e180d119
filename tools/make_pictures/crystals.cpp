#include "tools/make_pictures/kinds.h"

#include "tools/make_pictures/lattice.h"
#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/picturefolder.h"
#include "tools/tables/table.h"

#include <QPolygonF>
#include <QRadialGradient>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numbers>

using namespace Qt::StringLiterals;

namespace {

constexpr int Side = 360;
constexpr int CellArea = 292; // the texts are below
constexpr int Pieces = 48;    // a line is cut into pieces so that spheres can hide parts of it

/// Looks at the cell from the front, slightly from the right and above, so that the axis a points to the
/// viewer's left, b to the right and c upwards.
class View
{
public:
    explicit View(const Lattice &cell)
    {
        QList<QVector3D> points{axisTip(cell.a), axisTip(cell.b), axisTip(cell.c)};
        for (const Lattice::Sphere &sphere : cell.spheres)
            points << sphere.at;
        m_distance = 3.5F * (cell.a + cell.b + cell.c).length();
        QPolygonF flat;
        for (const QVector3D &point : points)
            m_centre += point / float(points.size());
        for (const QVector3D &point : points)
            flat << project(point);
        const QRectF bounds = flat.boundingRect();
        const QRectF room = QRectF(0, 0, Side, CellArea).adjusted(30, 30, -30, -26);
        m_scale = float(std::min(room.width() / bounds.width(), room.height() / bounds.height()));
        m_offset = room.center() - bounds.center() * m_scale;
    }

    /// The end of the arrow along an axis.
    static QVector3D axisTip(QVector3D axis) { return axis * (1 + 0.26F / axis.length()); }

    float depth(QVector3D point) const
    {
        return m_distance - QVector3D::dotProduct(point - m_centre, Towards);
    }

    float pixelsPerUnit(QVector3D point) const { return m_scale * m_distance / depth(point); }

    QPointF project(QVector3D point) const
    {
        const QVector3D offset = point - m_centre;
        const float zoom = pixelsPerUnit(point);
        return m_offset + QPointF(QVector3D::dotProduct(offset, RightHand) * zoom,
                                  -QVector3D::dotProduct(offset, Upwards) * zoom);
    }

private:
    static inline const float Turn = 24 * float(std::numbers::pi) / 180;
    static inline const float Rise = 19 * float(std::numbers::pi) / 180;
    static inline const QVector3D Towards{std::cos(Rise) * std::cos(Turn), std::cos(Rise) * std::sin(Turn),
                                          std::sin(Rise)};
    static inline const QVector3D RightHand{-std::sin(Turn), std::cos(Turn), 0};
    static inline const QVector3D Upwards = QVector3D::crossProduct(Towards, RightHand);

    QVector3D m_centre;
    float m_distance; ///< of the eye
    float m_scale = 1;
    QPointF m_offset;
};

/// Something to paint, farther things first.
struct Item
{
    float depth;
    std::function<void(QPainter &)> paint;
};

QColor colourOf(Lattice::Site site)
{
    constexpr std::array<QRgb, 4> Colours{0x3f74b5, 0xd9822b, 0x4a9e5c, 0x8c949c};
    return QColor(Colours[std::size_t(site)]);
}

float radiusOf(const Lattice::Sphere &sphere)
{
    return sphere.site == Lattice::Site::Point ? 0.055F : 0.1F;
}

void addLine(QList<Item> &items, const View &view, const Lattice &cell, const Lattice::Line &line)
{
    const auto inSphere = [&](QVector3D point) {
        return std::any_of(cell.spheres.begin(), cell.spheres.end(), [&](const Lattice::Sphere &sphere) {
            return sphere.at.distanceToPoint(point) < radiusOf(sphere);
        });
    };
    for (int i = 0; i < Pieces; ++i) {
        const QVector3D from = line.from + (line.to - line.from) * (float(i) / Pieces);
        const QVector3D to = line.from + (line.to - line.from) * (float(i + 1) / Pieces);
        if (inSphere((from + to) / 2))
            continue;
        const QLineF piece(view.project(from), view.project(to));
        const QPen pen(line.bold ? Ink : QColor(0x9a, 0xa2, 0xaa), line.bold ? 2.2 : 1.2, Qt::SolidLine,
                       Qt::RoundCap);
        // Where the cell and its surroundings share an edge, the bold line covers the thin one.
        items << Item{view.depth((from + to) / 2) - (line.bold ? 0.01F : 0), [piece, pen](QPainter &painter) {
                          painter.setPen(pen);
                          painter.drawLine(piece);
                      }};
    }
}

void addSphere(QList<Item> &items, const View &view, const Lattice::Sphere &sphere)
{
    const double radius = radiusOf(sphere) * view.pixelsPerUnit(sphere.at);
    const QPointF centre = view.project(sphere.at);
    const QColor colour = colourOf(sphere.site);
    items << Item{view.depth(sphere.at), [=](QPainter &painter) {
                      QRadialGradient light(centre, radius * 1.15, centre - QPointF(radius, radius) * 0.4);
                      light.setColorAt(0, tint(colour, 0.25));
                      light.setColorAt(0.5, colour);
                      light.setColorAt(1, colour.darker(190));
                      painter.setPen(Qt::NoPen);
                      painter.setBrush(light);
                      painter.drawEllipse(centre, radius, radius);
                  }};
}

/// An arrow from the origin past the end of the axis, and its letter.
void paintAxis(QPainter &painter, const View &view, QVector3D axis, const QString &letter)
{
    const QPointF from = view.project(axis);
    const QPointF tip = view.project(View::axisTip(axis));
    const QLineF arrow(from, tip);
    painter.setPen(QPen(QColor(0xb0, 0x30, 0x30), 2));
    painter.drawLine(arrow);
    for (const double turn : {150.0, -150.0}) {
        QLineF barb = QLineF::fromPolar(8, arrow.angle() + turn);
        painter.drawLine(barb.translated(tip));
    }
    painter.setFont(textFont(15, true));
    const QPointF place = QLineF::fromPolar(12, arrow.angle()).translated(tip).p2();
    painter.drawText(QRectF(place - QPointF(12, 12), QSizeF(24, 24)), Qt::AlignCenter, letter);
}

QImage drawCell(const Lattice &cell)
{
    // Painted larger than shown, so that the pieces of a line join without a seam.
    constexpr int Oversize = 3;
    QImage large = blankPicture(Side * Oversize, Side * Oversize);
    QPainter painter(&large);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(Oversize, Oversize);
    const View view(cell);
    QList<Item> items;
    for (const Lattice::Line &line : cell.lines)
        addLine(items, view, cell, line);
    for (const Lattice::Sphere &sphere : cell.spheres)
        addSphere(items, view, sphere);
    std::stable_sort(items.begin(), items.end(),
                     [](const Item &x, const Item &y) { return x.depth > y.depth; });
    for (const Item &item : items)
        item.paint(painter);
    painter.end();

    QImage picture = large.scaled(Side, Side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.begin(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    paintAxis(painter, view, cell.a, u"a"_s);
    paintAxis(painter, view, cell.b, u"b"_s);
    paintAxis(painter, view, cell.c, u"c"_s);

    setType(painter, Ink, 14);
    painter.drawText(QRectF(0, CellArea + 6, Side, 22), Qt::AlignCenter,
                     cell.edges + u"     "_s + cell.angles);
    setType(painter, SoftInk, 11);
    painter.drawText(QRectF(4, CellArea + 28, Side - 8, 36), Qt::AlignHCenter | Qt::TextWordWrap, cell.note);
    return picture;
}

} // namespace

void drawCrystals(const QString &data, const PictureFolder &pictures)
{
    constexpr const char *Column = "cristallo";
    const Table table = Table::read(data + u"/tables/Elements.tsv"_s);
    for (int row = 0; row < table.rowCount(); ++row) {
        const QString name = table.cell(row, Column);
        if (name == "-"_L1 || table.find(Column, name) != row)
            continue;
        const auto cell = std::find_if(lattices().begin(), lattices().end(),
                                       [&](const Lattice &lattice) { return lattice.name == name; });
        if (cell == lattices().end())
            table.fail(row, u"there is no drawing of the crystal structure \"%1\""_s.arg(name));
        pictures.write(u"cristal/%1.bmp"_s.arg(name), drawCell(*cell));
    }
}
