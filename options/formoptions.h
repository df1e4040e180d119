#pragma once

#include "options/optioncontrols.h"
#include "widgets/sidewindow.h"

class DatabaseTab;
class Desktop;
class StatisticsTab;
class TabStrip;
struct DataStore;
struct Module1;

/// `Formoptions`: the settings.
///
/// The constructor applies the grid lines; the controls are built when the window is first shown. OK stores
/// them in the slots and writes the options file; Cancel and the close box do not. All three unload the
/// window.
class Formoptions final : public SideWindow
{
    Q_OBJECT

public:
    /// @p owner is `Form1`. RuntimeError 53 if a file whose size it shows does not exist.
    Formoptions(Module1 &module, DataStore &store, Desktop &desktop, QWidget &owner);

    /// Builds the controls when first shown. RuntimeError 53 or 76 if a file or folder does not exist.
    void setVisible(bool visible) override;

    /// Sets `Check1(1)`; the slot already has the value.
    void setTipAtStart(bool on);

    OptionControls controls; ///< empty until the window is first shown

    void accept() override;

Q_SIGNALS:
    void optionsChanged(); ///< after OK, before the options file is written
    void optionsWritten(); ///< before the window closes

    /// The original database has replaced the working one.
    void databaseReplaced();

private:
    void buildWindow();
    QLayout *buildButtons();
    void applyGridLines();
    void build();

    Module1 &m_module;
    DataStore &m_store;
    Desktop &m_desktop;

    TabStrip *TabStrip1 = nullptr; ///< null until the controls are built
    DatabaseTab *frmbdd = nullptr;
    StatisticsTab *frmstat = nullptr;
};
