#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

/// A picture area for charts: `Picture3`, `Picture4`. It takes the size of its chart; its frame clips it.
/// Positions are twips.
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

    /// Moves the chart up by @p rise logical pixels within the area.
    void setRise(int rise);

    bool isClear() const { return m_picture.isNull(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_picture;
    int m_left = 0; ///< logical pixels
    int m_rise = 0; ///< logical pixels
};
