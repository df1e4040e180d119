#pragma once

#include "options/optioncontrols.h"
#include "widgets/sidewindow.h"

class DatabaseTab;
class Desktop;
class OptionsTarget;
class StatisticsTab;
class TabStrip;
struct DataStore;
struct Module1;

/// `Formoptions`: the one place where the user changes settings.
///
/// Making it is its load, which applies some slots to the main window. That is why it is made hidden at
/// start. The controls, which show the slots, are built when it is first shown: the start does not wait for
/// them. OK stores the controls in the slots, applies them and writes the options file; Cancel and the close
/// box leave the slots alone. Each of them unloads the window.
class Formoptions final : public SideWindow
{
    Q_OBJECT

public:
    /// @p owner is `Form1`. RuntimeError 53 or 76 if a file or folder that it measures is not there.
    Formoptions(Module1 &module, DataStore &store, Desktop &desktop, OptionsTarget &target, QWidget &owner);

    /// Builds the controls when it first shows the window. RuntimeError as above.
    void setVisible(bool visible) override;

    /// `Check1(1)`; the slot has the value already.
    void setTipAtStart(bool on);

    OptionControls controls; ///< none before the window is first shown

Q_SIGNALS:
    /// The window is closed and will be destroyed; nobody may use it any more.
    void unloaded();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildWindow();
    QLayout *buildButtons();
    void connectClickRules();
    void load();
    void build();
    void applyGridLines();
    void ok();

    Module1 &m_module;
    DataStore &m_store;
    Desktop &m_desktop;
    OptionsTarget &m_target;

    TabStrip *TabStrip1 = nullptr; ///< null until the controls are built
    DatabaseTab *frmbdd = nullptr;
    StatisticsTab *frmstat = nullptr;
};
