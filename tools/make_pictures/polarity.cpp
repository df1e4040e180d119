#include "tools/make_pictures/kinds.h"

#include "browsers/polarities.h"
#include "tools/make_pictures/painting.h"
#include "tools/make_pictures/picturefolder.h"

#include <QLinearGradient>

using namespace Qt::StringLiterals;

namespace {

constexpr int Width = 313; // the size that the reports state
constexpr int Height = 441;
constexpr int Top = 52;
constexpr int Bottom = 418;
const QColor NonPolar(0xf2, 0xc4, 0x4d);
const QColor Polar(0x3b, 0x78, 0xc2);

/// Paints an arrow on the left that grows wider and darker towards the polar end.
void paintArrow(QPainter &painter)
{
    QLinearGradient colours(0, Top, 0, Bottom);
    colours.setColorAt(0, NonPolar);
    colours.setColorAt(1, Polar);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours);
    painter.drawPolygon(QPolygonF{QPointF(22, Top), QPointF(26, Top), QPointF(30, Bottom - 18),
                                  QPointF(38, Bottom - 18), QPointF(24, Bottom), QPointF(10, Bottom - 18),
                                  QPointF(18, Bottom - 18)});
    setType(painter, Ink, 11, true);
    painter.drawText(QRectF(6, Top - 20, 90, 16), Qt::AlignLeft | Qt::AlignVCenter, u"Non polar"_s);
    painter.drawText(QRectF(6, Bottom + 3, 90, 16), Qt::AlignLeft | Qt::AlignVCenter, u"Polar"_s);
}

void paintRung(QPainter &painter, int rung, const Polarity &polarity)
{
    constexpr int Rungs = int(Polarities.size()) + 1;
    constexpr double RungHeight = double(Bottom - Top) / Rungs;
    const QRectF row(48, Top + rung * RungHeight, Width - 54, RungHeight - 3);
    const QColor colour = mixed(NonPolar, Polar, double(rung) / (Rungs - 1));
    painter.setPen(Qt::NoPen);
    painter.setBrush(tint(colour, 0.3));
    painter.drawRoundedRect(row, 3, 3);
    painter.setBrush(colour);
    painter.drawRect(QRectF(row.left(), row.top(), 5, row.height()));

    const QString examples = QString::fromUtf8(polarity.examples);
    const QRectF text = row.adjusted(12, 1, -2, -1);
    setType(painter, Ink, 12, true);
    painter.drawText(text, Qt::AlignLeft | (examples.isEmpty() ? Qt::AlignVCenter : Qt::AlignTop),
                     QString::fromUtf8(polarity.group));
    painter.setFont(textFont(11));
    painter.drawText(text, Qt::AlignLeft | Qt::AlignBottom, examples);
}

QImage drawLadder()
{
    QImage picture = blankPicture(Width, Height);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    setType(painter, Ink, 14, true);
    painter.drawText(QRectF(0, 6, Width, 20), Qt::AlignCenter, u"Relative polarities"_s);
    paintArrow(painter);

    for (std::size_t rung = 0; rung < Polarities.size(); ++rung)
        paintRung(painter, int(rung), Polarities[rung]);
    paintRung(painter, int(Polarities.size()), {"Water", ""});
    return picture;
}

} // namespace

void drawPolarity(const QString &, const PictureFolder &pictures)
{
    const QImage ladder = drawLadder();
    pictures.write(u"img/polarite_c.jpg"_s, ladder);
    pictures.write(u"img/polarite_ng.jpg"_s, inGreys(ladder));
}
