#include "charts/chartpicture.h"

#include "widgets/windowunits.h"

#include <QPainter>

ChartPicture::ChartPicture(const QString &name, QWidget *parent) : QWidget(parent)
{
    setObjectName(name);
}

void ChartPicture::moveTo(double left, double top)
{
    move(WindowUnits::pixels(left), WindowUnits::pixels(top));
}

void ChartPicture::setTop(double top)
{
    move(x(), WindowUnits::pixels(top));
}

void ChartPicture::clear()
{
    m_picture = {};
    update();
}

void ChartPicture::paint(const QImage &picture, double left)
{
    m_picture = QPixmap::fromImage(picture);
    m_left = WindowUnits::pixels(left);
    m_rise = 0;
    resize(m_left + picture.width(), picture.height());
    update();
}

void ChartPicture::setRise(int rise)
{
    m_rise = rise;
    update();
}

void ChartPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform); // for displays finer than the picture
    painter.drawPixmap(m_left, -m_rise, m_picture);
}
