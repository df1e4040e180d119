#include "core/modulepanel.h"

ModulePanel::ModulePanel(const char *name, QWidget *parent) : QWidget(parent)
{
    setObjectName(QLatin1StringView(name));
    setFixedSize(Size);
    hide();
}

void ModulePanel::setVisible(bool visible)
{
    if (visible)
        build();
    QWidget::setVisible(visible);
}

void ModulePanel::build()
{
    if (m_built)
        return;
    m_built = true;
    buildContents();
}
