#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

/// A picture area that charts are painted into: `Picture3`, `Picture4`. Its frame clips it.
///
/// A chart is shown at its own size. Positions are twips; the area grows with what is painted into it.
class ChartPicture final : public QWidget
{
    Q_OBJECT

public:
    ChartPicture(const QString &name, QWidget *parent);

    void moveTo(double left, double top);
    void setTop(double top);

    void clear();

    /// Paints @p picture with its left edge at @p left and its top at 0.
    void paint(const QImage &picture, double left);

    /// Moves what is painted up by that many logical pixels, within the area.
    void setRise(int rise);

    bool isClear() const { return m_picture.isNull(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_picture;
    int m_left = 0; ///< logical pixels
    int m_rise = 0; ///< logical pixels
};
