#include "elements/portrait.h"

#include <QPainter>
#include <array>

using namespace Qt::StringLiterals;

namespace {

const QColor Paper(0xf7, 0xf2, 0xe6);
const QColor Ink(0x4a, 0x3d, 0x2c);
const QColor Cell(0xc9, 0xb8, 0x95);

/// Neighbouring cells of a period, from the first group to the last.
struct Stretch
{
    int period;
    int first;
    int last;
};

constexpr std::array<Stretch, 11> Motif{{
    {0, 0, 0},
    {0, 17, 17},
    {1, 0, 1},
    {1, 12, 17},
    {2, 0, 1},
    {2, 12, 17},
    {3, 0, 17},
    {4, 0, 17},
    {5, 0, 17},
    {7, 3, 16},
    {8, 3, 16},
}};

void drawMotif(QPainter &painter, const QRectF &area)
{
    const double pitch = area.width() / 18;
    for (const Stretch &stretch : Motif) {
        for (int group = stretch.first; group <= stretch.last; ++group) {
            const QPointF corner(area.left() + group * pitch, area.top() + stretch.period * pitch);
            painter.fillRect(QRectF(corner, QSizeF(pitch - 1, pitch - 1)), Cell);
        }
    }
}

} // namespace

Portrait::Portrait(QWidget *parent) : QWidget(parent)
{
    setObjectName(u"Picture1"_s);
    setAccessibleName(inscription());
}

QString Portrait::inscription()
{
    return u"Dmitri Mendeleev (1834-1907)"_s;
}

void Portrait::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Paper);
    const QRectF plate = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(Ink);
    painter.drawRect(plate);
    painter.drawRect(plate.adjusted(5, 5, -5, -5));
    drawMotif(painter, QRectF(16, 20, width() - 31, 0));

    const QRectF words(6, height() - 62, width() - 12, 26);
    painter.drawText(words, Qt::AlignCenter, u"Dmitri Mendeleev"_s);
    painter.drawText(words.translated(0, 24), Qt::AlignCenter, u"1834\u20131907"_s);
}
