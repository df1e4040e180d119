#include "app/paneswitch.h"

#include "core/runtimeerror.h"
#include "search/findbar.h"
#include "widgets/controls.h"
#include "widgets/modulepanel.h"

#include <QLabel>
#include <algorithm>

void PaneSwitch::show(PanelId id, const std::function<void()> &beforePanelText)
{
    m_findBar.ResetSearchPanel();
    makeVisible(id);
    for (QWidget *companion : std::as_const(m_companions))
        companion->setVisible(id == PanelId::Elements);
    if (m_clearChartPanels)
        m_clearChartPanels();
    if (beforePanelText)
        ignoringErrors(beforePanelText);
    setPanelText(id);
}

void PaneSwitch::showAtStart(PanelId id)
{
    m_findBar.ResetSearchPanel();
    makeVisible(id);
    setPanelText(id);
}

bool PaneSwitch::isShown(PanelId id) const
{
    return Controls::isShown(panel(id));
}

ModulePanel *PaneSwitch::shownPanel() const
{
    const auto shown = std::find_if(m_panels.begin(), m_panels.end(),
                                    [](const ModulePanel *panel) { return Controls::isShown(*panel); });
    return shown == m_panels.end() ? nullptr : *shown;
}

// The new pane first, so that the window is never blank in between.
void PaneSwitch::makeVisible(PanelId id)
{
    panel(id).setVisible(true);
    panel(id).raise();
    for (const PanelName &other : Panels) {
        if (other.panel != id)
            panel(other.panel).setVisible(false);
    }
}

void PaneSwitch::setPanelText(PanelId id)
{
    if (const char *text = Panels[size_t(id)].statusText)
        m_panel1.setText(text);
}
