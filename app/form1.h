#pragma once

#include "app/commandbars.h"
#include "app/focuskeeper.h"
#include "app/helpopener.h"
#include "app/listactions.h"
#include "app/ownactions.h"
#include "app/paneswitch.h"
#include "app/scaleactions.h"
#include "app/trayicon.h"
#include "reports/reportsave.h"
#include "search/findbar.h"
#include "update/miseajour.h"
#include "update/qtupdatenetwork.h"
#include "widgets/focusmark.h"

#include <QLabel>
#include <QMainWindow>

class CalculationsPane;
class Desktop;
class ElementsPane;
class History;
class LaterTables;
class OptionsHost;
class PlaceSwitch;
class ReactionsPane;
class SearchActions;
class ShowInAction;
class SolventsPane;
class SpectroscopyPane;
class TableLoader;
class frmload;
struct DataStore;
struct Module1;

/// The main window: owns the panes and dispatches the commands. It neither computes nor searches.
class Form1 final : public QMainWindow
{
    Q_OBJECT

public:
    Form1(Module1 &module, DataStore &store, LaterTables &laterTables, Desktop &desktop, const Scale &scale);
    ~Form1() override;

    /// Reads options and tables and fills the fixed lists, in this order, under the splash.
    void load(frmload &splash, TableLoader &loader);

    /// For `Formoptions`, which is made on demand.
    OptionsHost &options() { return *m_options; }

    /// Shows the start module of the options, if there is one.
    void showStartModule();

    /// Runs command @p id and ignores its errors. Unknown ids do nothing.
    void executeCommand(int id);

    /// Enables the commands that the current pane and tab allow.
    void updateCommands();

    /// Brings the open modal dialog to the front, or else the window, also from the tray.
    void restoreAndRaise();

    /// 0 while the window is on the screen, -1 while it is in the tray.
    qint16 TrayMinimized() const { return m_tray.TrayMinimized; }

protected:
    /// Unloads every window, unless a side window is open.
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildPaneArea();
    void buildStatusBar();
    ModulePanel *makePanel(PanelId id);
    void loadTables(frmload &splash, TableLoader &loader);
    void loadMenus();
    void run(const Command &command);
    void checkVersion();
    void showSpectroscopy(int mode);
    ReportContext reportContext() const;
    void unloadAllWindows();
    void keepReadable();

    Module1 &m_module;
    DataStore &m_store;
    LaterTables &m_laterTables;
    Desktop &m_desktop;
    ReportSave m_reportSave;
    QtUpdateNetwork m_network;
    MiseAjour m_miseAjour1;

    CommandBars m_commandBars{*this};
    OwnActions m_ownActions{*this};
    ListActions m_listActions{m_ownActions, *this};
    HelpOpener m_help{m_module, m_desktop, m_ownActions.action(OwnAction::HelpPages)};
    ScaleActions m_scaleActions;
    TrayIcon m_tray;
    QLabel *m_panel1;
    QLabel *m_panel3;
    FindBar *m_findBar;
    QWidget *m_paneArea;
    CalculationsPane *m_calculations = nullptr;
    ElementsPane *m_elements = nullptr;
    SolventsPane *m_solvents = nullptr;
    SpectroscopyPane *m_spectroscopy = nullptr;
    ReactionsPane *m_reactions = nullptr;
    std::unique_ptr<PaneSwitch> m_panes;
    PlaceSwitch *m_places;
    std::unique_ptr<History> m_history;
    std::unique_ptr<SearchActions> m_searchActions;
    std::unique_ptr<ShowInAction> m_showInAction;
    std::unique_ptr<FocusKeeper> m_focusKeeper;
    FocusMark m_focusMark;
    std::unique_ptr<OptionsHost> m_options;
};
