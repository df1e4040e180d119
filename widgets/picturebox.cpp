#include "widgets/picturebox.h"

#include "widgets/controls.h"

#include <QMouseEvent>
#include <QPainter>

PictureBox::PictureBox(const QString &name, QWidget *parent) : QWidget(parent)
{
    setObjectName(name);
}

void PictureBox::setPicture(const QImage &picture)
{
    m_picture = picture;
    updateGeometry();
    update();
}

void PictureBox::paintEvent(QPaintEvent *)
{
    if (m_picture.isNull())
        return;
    const double ratio = devicePixelRatioF();
    QImage scaled = m_picture.scaled(size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    const QSizeF drawn = scaled.deviceIndependentSize();
    QPainter(this).drawImage(QPointF((width() - drawn.width()) / 2, (height() - drawn.height()) / 2), scaled);
}

void PictureBox::keyPressEvent(QKeyEvent *event)
{
    if (Controls::isPressKey(event->key()))
        press();
    else
        QWidget::keyPressEvent(event);
}

void PictureBox::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        press();
}
