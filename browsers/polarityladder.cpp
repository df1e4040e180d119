#include "browsers/polarityladder.h"

#include "browsers/polarities.h"

#include <QGridLayout>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;

namespace {

constexpr int FirstGroup = 3; // Label10(3) to Label10(12), the examples follow
constexpr int FirstExample = 13;
constexpr int ArrowWidth = 12;

} // namespace

PolarityLadder::PolarityLadder(QWidget *parent) : QFrame(parent)
{
    setObjectName(u"framepola"_s);
    setFrameShape(StyledPanel);
    setAutoFillBackground(true);

    auto *grid = new QGridLayout(this);
    grid->setHorizontalSpacing(10);
    grid->setColumnMinimumWidth(0, ArrowWidth);
    grid->setColumnStretch(2, 1);
    const auto place = [&](int index, const QString &text, int row, int column, bool heading = false) {
        QLabel *label = heading ? Controls::heading({}, text, this) : Controls::label({}, text, this);
        label->setWordWrap(column == 2);
        Label10.add(index, label);
        grid->addWidget(label, row, column, 1, column == 0 ? 3 : 1);
    };
    int row = 0;
    place(2, u"Relative polarities"_s, row++, 0, true);
    place(27, u"Group"_s, row, 1, true);
    place(26, u"Example"_s, row++, 2, true);
    place(0, u"Non polar"_s, row++, 0);
    for (int rung = 0; rung < int(Polarities.size()); ++rung, ++row) {
        place(FirstGroup + rung, Polarities[size_t(rung)].group, row, 1);
        place(FirstExample + rung, Polarities[size_t(rung)].examples, row, 2);
    }
    Label13 = Controls::label(u"Label13"_s, u"Water"_s, this);
    grid->addWidget(Label13, row, 1);
    place(24, u"Water"_s, row++, 2);
    place(1, u"Polar"_s, row++, 0);
}

void PolarityLadder::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    const int left = Label10[0].x();
    const QRectF room(QPointF(left, Label10[FirstGroup].y()),
                      QPointF(left + ArrowWidth, Label13->geometry().bottom()));
    const double middle = room.center().x();
    constexpr double Head = 10;
    QPainterPath arrow;
    arrow.addRect(QRectF(middle - 2.5, room.top(), 5, room.height() - Head));
    arrow.addPolygon(QPolygonF({{room.left(), room.bottom() - Head},
                                {room.right(), room.bottom() - Head},
                                {middle, room.bottom()}}));
    QLinearGradient growing(room.topLeft(), room.bottomLeft());
    growing.setColorAt(0, palette().color(QPalette::Midlight));
    growing.setColorAt(1, palette().color(QPalette::Highlight));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(arrow, growing);
}
