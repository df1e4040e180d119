#pragma once

#include "widgets/sidewindow.h"

class Desktop;

/// Version, licence and contact.
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

/// Opens the About window or raises the open one.
void openAbout(Desktop &desktop, QWidget &form1);
