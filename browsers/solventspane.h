#pragma once

#include "browsers/browserpane.h"
#include "browsers/solventtabs.h"

class Desktop;
class FindBar;
struct DataStore;
struct Module1;

/// `frmsolv`: data of solvents in six tabs, one list in each.
///
/// The Find bar stays open, emptied, on the two tabs that can be searched; a change to any other closes it.
class SolventsPane final : public BrowserPane
{
    Q_OBJECT

public:
    SolventsPane(Module1 &module, DataStore &store, Desktop &desktop, FindBar &findBar, QWidget *parent);

    /// Selects a tab of `TabStrip1`, from 1. Its handler runs if it was not selected already.
    void selectTab(int number);

    /// Number, from 1, and caption of the tab of `TabStrip1` that is selected.
    int currentTab() const;
    QString currentTabCaption() const;

    /// Whether the lists that can be searched are on, each by its own setting.
    bool isListView1Shown() const { return currentTab() == 1; }
    bool isListView3_26Shown() const { return currentTab() == 4; }

    /// Null until the pane is built.
    RowListView *ListView1 = nullptr;
    ControlArray<RowListView> ListView3{"ListView3"}; ///< 26

Q_SIGNALS:
    void tabChanged();

protected:
    void buildContents() override;

private:
    void buildProperties();
    void buildMiscibility();
    void buildNmr();
    void buildMasses();
    void buildDrying();
    void changeTab(int number);
    void chooseNucleus(SolventTabs::Nucleus nucleus);
    void openStructure(int row);

    Module1 &m_module;
    DataStore &m_store;
    Desktop &m_desktop;
    FindBar &m_findBar;

    QTabBar *TabStrip1 = nullptr;
    QRadioButton *Option1 = nullptr;
    QRadioButton *Option2 = nullptr;
    ControlArray<QLabel> Label2{"Label2"};
    SolventTabs::Nucleus NmrNucleus = SolventTabs::Proton;
};
