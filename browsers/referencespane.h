#pragma once

#include "browsers/references.h"
#include "widgets/controlarray.h"
#include "widgets/modulepanel.h"

#include <QLabel>

class Desktop;

/// `frmbiblio`: the sources of the data by subject, some of them links.
class ReferencesPane final : public ModulePanel
{
    Q_OBJECT

public:
    ReferencesPane(Desktop &desktop, QWidget *parent);

protected:
    void buildContents() override;

private:
    QLabel *makeLabel(const References::Entry &entry);

    Desktop &m_desktop;
    ControlArray<QLabel> Label1{"Label1"};
};
