#include "electronics/partviews.h"

#include <QHBoxLayout>
#include <QPainter>

namespace {

// The colours of the real parts, on a light and on a dark desktop alike.
constexpr QColor Lead(0x9a, 0xa0, 0xa6);
constexpr QColor Body(0xe3, 0xcf, 0xa4);
constexpr QColor BodyEdge(0xa8, 0x8f, 0x5c);
constexpr QColor ChipBody(0x22, 0x24, 0x27);
constexpr QColor ChipContact(0xc9, 0xcd, 0xd2);
constexpr QColor ChipPrint(0xf4, 0xf4, 0xf4);

constexpr int BandWidth = 26;
constexpr int BodyMargin = 46;   // from the outer bands to the ends of the body
constexpr int ContactWidth = 26; // of a chip, at each end

} // namespace

ResistorView::ResistorView(const QList<int> &bandCentres, QWidget *parent)
    : QWidget(parent), m_bandCentres(bandCentres)
{
    for (int band = 0; band < bandCentres.size(); ++band) {
        auto *shape = new QFrame(this);
        shape->setAutoFillBackground(true);
        Shape3.add(band, shape);
    }
    hideBands();
}

void ResistorView::paintBand(int band, const QColor &colour)
{
    QPalette palette;
    palette.setColor(QPalette::Window, colour);
    Shape3[band].setPalette(palette);
    Shape3[band].show();
}

void ResistorView::hideBands()
{
    for (const auto &[band, shape] : Shape3)
        shape->hide();
}

QRect ResistorView::body() const
{
    const auto [first, last] = std::minmax_element(m_bandCentres.begin(), m_bandCentres.end());
    return QRect(QPoint(*first - BodyMargin, 4), QPoint(*last + BodyMargin, height() - 5));
}

void ResistorView::resizeEvent(QResizeEvent *)
{
    const QRect room = body();
    for (const auto &[band, shape] : Shape3)
        shape->setGeometry(m_bandCentres[band] - BandWidth / 2, room.top() + 1, BandWidth, room.height() - 2);
}

void ResistorView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Lead, 6));
    painter.drawLine(QPointF(0, height() / 2.0), QPointF(width(), height() / 2.0));
    QLinearGradient round(0, body().top(), 0, body().bottom());
    round.setColorAt(0, Body.darker(108));
    round.setColorAt(0.3, Body.lighter(106));
    round.setColorAt(1, Body.darker(118));
    painter.setPen(BodyEdge);
    painter.setBrush(round);
    painter.drawRoundedRect(QRectF(body()).adjusted(0.5, 0.5, -0.5, -0.5), 20, 20);
}

ChipView::ChipView(ControlArray<QLabel> &Label18, QWidget *parent) : QWidget(parent)
{
    auto *row = new QHBoxLayout(this);
    row->setSpacing(0);
    row->addStretch();
    for (const int part : {13, 15}) {
        auto *label = new QLabel(this);
        label->setTextFormat(Qt::PlainText);
        QFont print = label->font();
        print.setPointSizeF(print.pointSizeF() * 3.2);
        print.setBold(true);
        label->setFont(print);
        QPalette palette;
        palette.setColor(QPalette::WindowText, ChipPrint);
        label->setPalette(palette);
        row->addWidget(label);
        Label18.add(part, label);
    }
    row->addStretch();
}

void ChipView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ChipContact);
    painter.drawRoundedRect(rect(), 5, 5);
    painter.setBrush(ChipBody);
    painter.drawRect(rect().adjusted(ContactWidth, 0, -ContactWidth, 0));
}
