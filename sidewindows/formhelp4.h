#pragma once

#include "widgets/sidewindow.h"

/// A mnemonic for the colour code of resistors, as a picture.
class Formhelp4 final : public SideWindow
{
    Q_OBJECT

public:
    explicit Formhelp4(QWidget &form1);
};

void openMnemonic(QWidget &form1);
