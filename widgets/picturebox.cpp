#include "widgets/picturebox.h"

#include <QMouseEvent>
#include <QPainter>

PictureBox::PictureBox(const QString &name, QWidget *parent) : QWidget(parent)
{
    setObjectName(name);
}

void PictureBox::setPicture(const QImage &picture)
{
    m_picture = picture;
    m_scaled = {};
    updateGeometry();
    update();
}

void PictureBox::paintEvent(QPaintEvent *)
{
    if (m_picture.isNull())
        return;
    const double ratio = devicePixelRatioF();
    const QSize fitted = m_picture.size().scaled(size() * ratio, Qt::KeepAspectRatio);
    if (m_scaled.size() != fitted)
        m_scaled = m_picture.scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    m_scaled.setDevicePixelRatio(ratio);

    QPainter painter(this);
    const QSizeF drawn = m_scaled.deviceIndependentSize();
    painter.drawImage(QPointF((width() - drawn.width()) / 2, (height() - drawn.height()) / 2), m_scaled);
}

void PictureBox::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        press();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void PictureBox::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        press();
}
