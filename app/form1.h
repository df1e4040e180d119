#pragma once

#include "app/commandbars.h"
#include "app/paneswitch.h"
#include "calc/unitlists.h"
#include "reports/reportsave.h"
#include "search/findbar.h"
#include "update/miseajour.h"
#include "update/qtupdatenetwork.h"

#include <QLabel>
#include <QMainWindow>

class Desktop;
class ElementsPane;
class ReactionsPane;
class SolventsPane;
class SpectroscopyPane;
class TableLoader;
class frmload;
struct DataStore;
struct Module1;

/// The main window: owner of the panes and switchboard of the commands. It neither computes nor searches.
class Form1 final : public QMainWindow
{
    Q_OBJECT

public:
    Form1(Module1 &module, DataStore &store, Desktop &desktop);

    /// Reads the options, loads all tables and fills the fixed lists, in this order, under the splash.
    void load(frmload &splash, TableLoader &loader);

    /// What the options set on the main window at start: grid lines, help balloons, the pointer over the
    /// picture.
    void applyOptions();

    /// The start module of the options, if there is one.
    void showStartModule();

    /// Runs command @p id; ids without a command do nothing. Failures inside are passed over.
    void executeCommand(int id);

    /// Enables what can be used with the pane and tab on show.
    void updateCommands();

    /// Out of the tray or from behind other windows.
    void restoreAndRaise();

protected:
    /// Closing by any route unloads every window. A side window that is open keeps the main window from
    /// closing.
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildPaneArea();
    void buildStatusBar();
    ModulePanel *makePanel(PanelId id);
    ModulePanel *makeSpectroscopy();
    ModulePanel *makeElectronics();
    void ClearChartPanels();
    void loadTables(frmload &splash, TableLoader &loader);
    void loadMenus();
    void run(const Command &command);
    void checkVersion();
    void showSpectroscopy(int mode);
    ReportContext reportContext() const;
    void showPanel(PanelId id);
    void focusPanel();
    void unloadAllWindows();
    void keepLinksReadable();

    Module1 &m_module;
    DataStore &m_store;
    Desktop &m_desktop;
    ReportSave m_reportSave;
    QtUpdateNetwork m_network;
    MiseAjour m_miseAjour1;

    CommandBars m_commandBars{*this};
    QLabel *m_panel1;
    QLabel *m_panel3;
    FindBar *m_findBar;
    QWidget *m_paneArea;
    ElementsPane *m_elements = nullptr;
    SolventsPane *m_solvents = nullptr;
    SpectroscopyPane *m_spectroscopy = nullptr;
    ReactionsPane *m_reactions = nullptr;
    std::unique_ptr<PaneSwitch> m_panes;

    UnitLists m_units; ///< filled at the end of the load
    Value m_decimals;  ///< decimals of the calculators, from the options
};
