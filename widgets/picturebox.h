#pragma once

#include <QImage>
#include <QWidget>

/// A picture, as large as the box allows in its proportions, at the device's resolution. Space and Enter act
/// as a click.
class PictureBox final : public QWidget
{
    Q_OBJECT

public:
    PictureBox(const QString &name, QWidget *parent);

    void setPicture(const QImage &picture);
    const QImage &picture() const { return m_picture; }

    QSize sizeHint() const override { return m_picture.size(); }

    void press() { Q_EMIT clicked(); }

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QImage m_picture;
};
