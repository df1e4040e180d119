#pragma once

#include "core/scale.h"
#include "widgets/sidewindow.h"

class QPushButton;
class QSpinBox;

/// Asks for another scale, to be used after a restart now or from the next start on.
class frmScale final : public SideWindow
{
    Q_OBJECT

public:
    frmScale(const Scale &scale, QWidget &form1);

    /// The scale in the field, in per cent.
    int percent() const;
    void setPercent(int percent);

Q_SIGNALS:
    /// The user chose a scale, to be used @p now or from the next start on. The window closes next.
    void chosen(int percent, bool now);

private:
    QLayout *buildButtons();
    void choose(bool now);

    const Scale m_scale;
    QSpinBox *spnScale;
    QPushButton *cmdStartAgain;
};
