#pragma once

#include "widgets/controlarray.h"

#include <QFrame>
#include <QLabel>

/// The drawn resistor of the colour code, with the bands `Shape3` on it. A hidden band is one that is not
/// chosen.
class ResistorView final : public QWidget
{
    Q_OBJECT

public:
    /// @p bandCentres are the abscissae of the bands, by their index.
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

/// The drawn resistor for surface mounting, with its marking: the code in `Label18(13)`, the letter in
/// `Label18(15)`.
class ChipView final : public QWidget
{
    Q_OBJECT

public:
    explicit ChipView(ControlArray<QLabel> &Label18, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};
