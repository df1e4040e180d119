#pragma once

#include "widgets/controlarray.h"

#include <QFrame>
#include <QLabel>

/// `framepola`: the classes of solvents by polarity, with examples, from non polar at the top to water.
class PolarityLadder final : public QFrame
{
    Q_OBJECT

public:
    explicit PolarityLadder(QWidget *parent);

protected:
    /// Draws the arrow along the ladder.
    void paintEvent(QPaintEvent *event) override;

private:
    ControlArray<QLabel> Label10{"Label10"};
    QLabel *Label13;
};
