#pragma once

#include "options/optioncontrols.h"
#include "widgets/sidewindow.h"

class DatabaseTab;
class Desktop;
class StatisticsTab;
class TabStrip;
struct DataStore;
struct Module1;

/// `Formoptions`: the one place where the user changes settings.
///
/// Loading it applies the grid lines; the controls are built when it is first shown. OK stores them in the
/// slots and writes the options file; Cancel and the close box leave the slots alone. Each of them unloads
/// the window.
class Formoptions final : public SideWindow
{
    Q_OBJECT

public:
    /// @p owner is `Form1`. RuntimeError 53 or 76 if a file or folder that it measures is not there.
    Formoptions(Module1 &module, DataStore &store, Desktop &desktop, QWidget &owner);

    /// Builds the controls when it first shows the window. RuntimeError as above.
    void setVisible(bool visible) override;

    /// `Check1(1)`; the slot has the value already.
    void setTipAtStart(bool on);

    OptionControls controls; ///< none before the window is first shown

    void accept() override;

Q_SIGNALS:
    /// OK has stored the controls in the slots; the options file is written next.
    void optionsChanged();

    /// The options file is written; the window closes next.
    void optionsWritten();

    /// The original database is back in place of the working one.
    void databaseReplaced();

private:
    void buildWindow();
    QLayout *buildButtons();
    void applyGridLines();
    void connectClickRules();
    void build();

    Module1 &m_module;
    DataStore &m_store;
    Desktop &m_desktop;

    TabStrip *TabStrip1 = nullptr; ///< null until the controls are built
    DatabaseTab *frmbdd = nullptr;
    StatisticsTab *frmstat = nullptr;
};
