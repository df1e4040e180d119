#pragma once

#include "widgets/modulepanel.h"

class Desktop;

/// `frmdon`: why and how to give, with two pictures that open the donation page.
class DonatePane final : public ModulePanel
{
    Q_OBJECT

public:
    DonatePane(Desktop &desktop, QWidget *parent);

protected:
    void buildContents() override;

private:
    QWidget *makePicture(const QString &name, const QIcon &icon);

    Desktop &m_desktop;
};

/// `frmpolym`: a note that there is nothing on polymers yet.
class PolymersPane final : public ModulePanel
{
    Q_OBJECT

public:
    explicit PolymersPane(QWidget *parent);

protected:
    void buildContents() override;
};
