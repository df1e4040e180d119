#pragma once

#include "browsers/references.h"
#include "widgets/controlarray.h"
#include "widgets/modulepanel.h"

#include <QLabel>

class Desktop;
class LinkLabel;
struct Module1;

/// `frmbiblio`: the sources of the data by subject, some of them links. Texts can be selected and copied.
class ReferencesPane final : public ModulePanel
{
    Q_OBJECT

public:
    ReferencesPane(const Module1 &module1, Desktop &desktop, QWidget *parent);

protected:
    void buildContents() override;

private:
    QLabel *makeLabel(const References::Entry &entry);
    LinkLabel *makeLink(const References::Entry &entry);

    const Module1 &m_module1;
    Desktop &m_desktop;
    ControlArray<QLabel> Label1{"Label1"};
};
