#pragma once

#include "widgets/sidewindow.h"

class Desktop;

/// What the program is, who answers for it and where to find more.
class frmAbout final : public SideWindow
{
    Q_OBJECT

public:
    frmAbout(Desktop &desktop, QWidget &form1);

private:
    QLayout *buildTexts();
    QLayout *buildAddresses();
    QLayout *buildButtons();
    void StartSysInfo();

    Desktop &m_desktop;
};

/// One at a time: a second call raises the open window.
void openAbout(Desktop &desktop, QWidget &form1);
