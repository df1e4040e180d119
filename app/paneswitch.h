#pragma once

#include "app/commands.h"

#include <QList>
#include <functional>

class FindBar;
class ModulePanel;
class QLabel;
class QWidget;

/// Shows one pane at a time.
class PaneSwitch final
{
public:
    /// @p panel1 is the panel of the status bar that names the pane.
    PaneSwitch(FindBar &findBar, QLabel &panel1) : m_findBar(findBar), m_panel1(panel1) {}

    void add(PanelId id, ModulePanel &panel) { m_panels[size_t(id)] = &panel; }

    /// A widget that is shown with the Elements pane only.
    void addElementsCompanion(QWidget &widget) { m_companions << &widget; }

    /// Runs on every switch.
    void setClearChartPanels(std::function<void()> clear) { m_clearChartPanels = std::move(clear); }

    /// Runs @p beforePanelText before the status bar names the pane.
    void show(PanelId id, const std::function<void()> &beforePanelText = {});

    /// Shows the start module, without a change of companions and charts.
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
    QList<QWidget *> m_companions;
    std::function<void()> m_clearChartPanels;
};
