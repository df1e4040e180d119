#pragma once

#include "widgets/sidewindow.h"

/// The colours that stand for bonds in the infrared charts.
class Formhelp3 final : public SideWindow
{
    Q_OBJECT

public:
    explicit Formhelp3(QWidget &form1);
};

void openColourCode(QWidget &form1);
