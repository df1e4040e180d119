#pragma once

#include <QImage>
#include <QWidget>

/// A picture, as large as the box allows without changing its proportions, drawn at the device's resolution.
///
/// The box paints nothing of its own beside the picture. With a focus policy that lets the keyboard in, Space
/// and Enter do what a click does.
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
    QImage m_scaled; ///< the picture at the size last drawn, in device pixels
};
