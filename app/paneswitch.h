#pragma once

#include "app/commands.h"

#include <functional>

class FindBar;
class ModulePanel;
class QLabel;
class QWidget;

/// Shows one pane at a time. Which one is on show is known from the panes alone.
class PaneSwitch final
{
public:
    /// @p panel1 is the panel of the status bar that names the pane.
    PaneSwitch(FindBar &findBar, QLabel &panel1) : m_findBar(findBar), m_panel1(panel1) {}

    void add(PanelId id, ModulePanel &panel) { m_panels[size_t(id)] = &panel; }

    /// A widget that is on show with the Elements pane only.
    void addElementsCompanion(QWidget &widget) { m_companions[m_companionCount++] = &widget; }

    /// What empties the chart areas on every switch.
    void setClearChartPanels(std::function<void()> clear) { m_clearChartPanels = std::move(clear); }

    /// The whole switch. @p beforePanelText is what a command does before the status bar names the pane.
    void show(PanelId id, const std::function<void()> &beforePanelText = {});

    /// The switch to the start module, which leaves the companions and the charts alone.
    void showAtStart(PanelId id);

    bool isShown(PanelId id) const;

    /// Null before the first switch.
    ModulePanel *shownPanel() const;

    ModulePanel &panel(PanelId id) const { return *m_panels[size_t(id)]; }

private:
    void makeVisible(PanelId id);
    void setPanelText(PanelId id);

    FindBar &m_findBar;
    QLabel &m_panel1;
    std::array<ModulePanel *, PanelCount> m_panels{};
    std::array<QWidget *, 2> m_companions{};
    size_t m_companionCount = 0;
    std::function<void()> m_clearChartPanels;
};
