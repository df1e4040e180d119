#pragma once

#include "widgets/controlarray.h"

#include <QFrame>
#include <QLabel>

/// The drawing of a resistor with its bands `Shape3`. A band is hidden until its colour is chosen.
class ResistorView final : public QWidget
{
    Q_OBJECT

public:
    /// @p bandCentres are the abscissae of the bands, by index.
    ResistorView(const QList<int> &bandCentres, QWidget *parent);

    void paintBand(int band, const QColor &colour);
    void hideBands();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QRect body() const;

    const QList<int> m_bandCentres;
    ControlArray<QFrame> Shape3{"Shape3"};
};

/// The drawing of a surface-mount resistor with its marking: code in `Label18(13)`, letter in `Label18(15)`.
class ChipView final : public QWidget
{
    Q_OBJECT

public:
    explicit ChipView(ControlArray<QLabel> &Label18, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};
