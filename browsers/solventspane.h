#pragma once

#include "browsers/browserpane.h"

#include <array>

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

    /// Selects a tab of `TabStrip1`, from 1.
    void selectTab(int number);

    /// Number, from 1, and caption of the selected tab of `TabStrip1`.
    int currentTab() const;
    QString currentTabCaption() const;

    /// The two lists that can be searched: whether their tab is selected, on screen or not.
    bool isListView1Shown() const;
    bool isListView3_26Shown() const;

    /// Null until the pane is built.
    RowListView *ListView1 = nullptr;
    ControlArray<RowListView> ListView3{"ListView3"}; ///< 26

Q_SIGNALS:
    void tabChanged();

protected:
    void buildContents() override;
    void applyChoice() override;

private:
    void buildProperties();
    void buildMiscibility();
    void buildNmr();
    void buildMasses();
    void buildDrying();
    void changeTab();
    void openStructure(int row);

    Module1 &m_module;
    DataStore &m_store;
    Desktop &m_desktop;
    FindBar &m_findBar;

    QTabBar *TabStrip1 = nullptr;
    std::array<QList<QWidget *>, 6> m_contents; ///< by tab, from 0, without the lists of the NMR tab
    QRadioButton *Option1 = nullptr;
    QRadioButton *Option2 = nullptr;
    RowListView *ListView4 = nullptr;
    RowListView *ListView5 = nullptr;
    ControlArray<QLabel> Label2{"Label2"};
};
