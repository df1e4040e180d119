#pragma once

#include "core/scale.h"
#include "widgets/sidewindow.h"

class QPushButton;
class QSpinBox;

/// Asks for another size of the program: at once, by a new start, or with the next one.
class frmScale final : public SideWindow
{
    Q_OBJECT

public:
    frmScale(const Scale &scale, QWidget &form1);

    /// The size that is asked for, in per cent.
    int percent() const;
    void setPercent(int percent);

Q_SIGNALS:
    /// One was chosen, to be taken @p now or with the next start; the window is about to close.
    void chosen(int percent, bool now);

private:
    QLayout *buildButtons();
    void choose(bool now);

    const Scale m_scale;
    QSpinBox *spnScale;
    QPushButton *cmdStartAgain;
};
