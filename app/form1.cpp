#include "app/form1.h"

#include "app/answeractions.h"
#include "app/csvaction.h"
#include "app/frmload.h"
#include "app/history.h"
#include "app/menulayout.h"
#include "app/optionshost.h"
#include "app/panescroll.h"
#include "app/placeswitch.h"
#include "app/printactions.h"
#include "app/searchactions.h"
#include "app/showinaction.h"
#include "app/sourceaction.h"
#include "browsers/biochemistrypane.h"
#include "browsers/references.h"
#include "browsers/referencespane.h"
#include "browsers/solutionspane.h"
#include "browsers/solventspane.h"
#include "browsers/textpanes.h"
#include "calc/calculationspane.h"
#include "calc/units.h"
#include "charts/reactionspane.h"
#include "charts/spectroscopypane.h"
#include "core/buildsettings.h"
#include "core/desktop.h"
#include "core/module1.h"
#include "electronics/electronicspane.h"
#include "elements/elementspane.h"
#include "sidewindows/frmabout.h"
#include "sidewindows/legends.h"
#include "store/datastore.h"
#include "store/loadtable.h"
#include "store/tablecatalog.h"
#include "widgets/modaldialogs.h"
#include "widgets/modulepanel.h"
#include "widgets/readable.h"
#include "widgets/statusline.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLineEdit>
#include <QStatusBar>

using namespace Qt::StringLiterals;

Form1::Form1(Module1 &module, DataStore &store, LaterTables &laterTables, Desktop &desktop,
             const Scale &scale)
    : m_module(module), m_store(store), m_laterTables(laterTables), m_desktop(desktop),
      m_reportSave(module, store, desktop), m_miseAjour1(desktop, m_network, module.AppFolder),
      m_scaleActions(m_ownActions, scale, laterTables, *this), m_tray(*this, module.OptionSlots)
{
    setObjectName(u"Form1"_s);
    m_miseAjour1.setObjectName(u"MiseAjour1"_s);
    setWindowTitle(u"Alembra"_s);
    keepReadable();
    buildStatusBar();
    m_panes = std::make_unique<PaneSwitch>(*m_findBar, *m_panel1);
    m_panes->setClearChartPanels([this] {
        m_spectroscopy->ClearChartPanels();
        m_reactions->ClearChartPanels();
    });
    buildPaneArea();
    m_places = new PlaceSwitch(*this, *m_panes, [this](int id) { executeCommand(id); });
    connect(m_places, &PlaceSwitch::helpPageWanted, &m_help, &HelpOpener::openPage);
    m_history = std::make_unique<History>(m_ownActions, *m_places);
    m_searchActions =
        std::make_unique<SearchActions>(m_ownActions, m_listActions, module, store, *m_history, *this);
    m_options = std::make_unique<OptionsHost>(
        module, store, desktop,
        OptionsHost::Parts{m_commandBars, m_tray, *m_elements, *m_calculations, *m_spectroscopy, laterTables},
        *this);
    connectCsvAction(m_ownActions, m_listActions, module, desktop);
    connectAnswerActions(m_ownActions, *m_calculations, module, store, *this);
    connectSourceAction(m_ownActions, m_listActions, *m_panes, module, desktop, *this);
    connectPrintActions(
        m_ownActions, m_commandBars.action(CommandId::Export), m_reportSave,
        [this] { return reportContext(); }, *this);
    m_showInAction = std::make_unique<ShowInAction>(m_ownActions, m_listActions, *m_history, store.lists,
                                                    module, desktop, *this);
    m_focusKeeper = std::make_unique<FocusKeeper>(*this, *m_panes);
    connect(&m_tray, &TrayIcon::commandWanted, this, &Form1::executeCommand);
    connect(&m_tray, &TrayIcon::donationPageWanted, this,
            [this] { m_desktop.openTarget(References::donationPage()); });
    connect(&m_commandBars, &CommandBars::execute, this, &Form1::executeCommand);
    connect(&m_commandBars, &CommandBars::updateWanted, this, &Form1::updateCommands);
}

Form1::~Form1() = default;

void Form1::buildPaneArea()
{
    m_paneArea = new QWidget;
    m_paneArea->setFixedSize(ModulePanel::Size);
    m_paneArea->setFont(ModulePanel::fittingFont(QApplication::font()));
    for (const PanelName &panel : Panels)
        m_panes->add(panel.panel, *makePanel(panel.panel));

    // Two boxes that name the detached rows of the periodic table.
    const auto addCompanion = [&](const QString &name, const QString &text, const QRect &place) {
        auto *box = Controls::named(new QLineEdit(text, &m_panes->panel(PanelId::Elements)), name);
        box->setReadOnly(true);
        box->setFrame(false);
        box->setFocusPolicy(Qt::NoFocus);
        QPalette onThePane = box->palette();
        onThePane.setColor(QPalette::Base, Qt::transparent);
        box->setPalette(onThePane);
        box->setGeometry(place);
        m_panes->addElementsCompanion(*box);
    };
    addCompanion(u"Text2(10)"_s, u"Lanthanides"_s, QRect(24, 430, 84, 20));
    addCompanion(u"Text2(11)"_s, u"Actinides"_s, QRect(24, 462, 84, 20));

    setCentralWidget(new PaneScroll(*m_paneArea, this));
    m_panes->panel(PanelId::Elements).setVisible(true);
}

ModulePanel *Form1::makePanel(PanelId id)
{
    switch (id) {
    case PanelId::Elements:
        m_elements = new ElementsPane(m_module, m_store, m_desktop, *m_findBar, m_paneArea);
        connect(m_elements, &ElementsPane::helpRequested, this, [this] { openCaptions(*this); });
        return m_elements;
    case PanelId::Solvents:
        m_solvents = new SolventsPane(m_module, m_store, m_desktop, *m_findBar, m_paneArea);
        connect(m_solvents, &SolventsPane::tabChanged, this, &Form1::updateCommands);
        return m_solvents;
    case PanelId::Calculations:
        m_calculations = new CalculationsPane(m_module, m_desktop, m_store.lists, m_paneArea);
        return m_calculations;
    case PanelId::Solutions:
        return new SolutionsPane(m_store, m_paneArea);
    case PanelId::Biochemistry:
        return new BiochemistryPane(m_module, m_store, m_desktop, m_paneArea);
    case PanelId::References:
        return new ReferencesPane(m_module, m_desktop, m_paneArea);
    case PanelId::Polymers:
        return new PolymersPane(m_paneArea);
    case PanelId::Spectroscopy:
        m_spectroscopy = new SpectroscopyPane(m_module, m_store, m_desktop, m_paneArea);
        connect(m_spectroscopy, &SpectroscopyPane::modeChanged, this, &Form1::updateCommands);
        connect(m_spectroscopy, &SpectroscopyPane::referencesRequested, this,
                [this] { openJournals(m_store.tables, *this); });
        connect(m_spectroscopy, &SpectroscopyPane::colourCodeRequested, this,
                [this] { openColourCode(*this); });
        return m_spectroscopy;
    case PanelId::Reactions:
        m_reactions = new ReactionsPane(m_module, m_store, m_laterTables, m_desktop, m_paneArea);
        return m_reactions;
    case PanelId::Electronics: {
        auto *pane = new ElectronicsPane(m_store, m_laterTables, m_desktop, m_paneArea);
        connect(pane, &ElectronicsPane::mnemonicRequested, this, [this] { openMnemonic(*this); });
        return pane;
    }
    case PanelId::Donate:
        return new DonatePane(m_desktop, m_paneArea);
    default:
        return new ModulePanel(Panels[size_t(id)].frame, m_paneArea);
    }
}

void Form1::buildStatusBar()
{
    const auto addPanel = [this](int number, const QString &text) {
        const QString name = u"StatusBar1.Panels(%1)"_s.arg(number);
        QLabel *panel = Controls::label(name, text, this);
        panel->setContentsMargins(6, 0, 6, 0);
        statusBar()->addWidget(panel);
        return panel;
    };
    statusBar()->setObjectName(u"StatusBar1"_s);
    statusBar()->setSizeGripEnabled(false);
    m_panel1 = addPanel(1, u"Elements"_s);
    m_panel1->setMinimumWidth(m_panel1->fontMetrics().averageCharWidth() * 15);
    statusBar()->addWidget(new StatusLine(u"StatusBar1.Panels(2)"_s, *this), 1);
    m_panel3 = addPanel(3, {});
    m_findBar = new FindBar(m_store, m_desktop, *m_panel3, this);
    statusBar()->addWidget(m_findBar);
    statusBar()->setFixedHeight(statusBar()->sizeHint().height() + 8);
    // The narrowest window has room for the open Find bar, if the screen has.
    m_findBar->open(false);
    constexpr int Spacing = 30; // of the status bar, altogether
    const int needed = m_panel1->minimumWidth() + m_panel3->minimumSizeHint().width() +
                       m_findBar->minimumSizeHint().width() + Spacing;
    setMinimumWidth(qMin(needed, screen()->availableSize().width() - Controls::WindowFrame.width()));
    m_findBar->ResetSearchPanel();
}

void Form1::load(frmload &splash, TableLoader &loader)
{
    splash.showAndPause(m_desktop);
    splash.ProgressTick();
    m_tray.load();
    m_module.ReadOptions(u"opt"_s, m_module.AppFolder);
    loadTables(splash, loader);
    loadMenus();
    m_module.UnitItemCount = Units::count();
}

void Form1::loadTables(frmload &splash, TableLoader &loader)
{
    loader.LoadCounter = 1;
    splash.setMaximum(185);
    for (int step = TableCatalog::FirstStep; step <= TableCatalog::LastStepAtStart; ++step) {
        splash.ProgressTick();
        loader.LoadTable(TableCatalog::statement(step));
        if (step == 29)
            splash.ProgressTick(); // a tick without a load: 37 make 185
        ++loader.LoadCounter;
    }
    // Resistors and reactions are read when the user asks for them.
    for (int step = TableCatalog::LastStepAtStart + 1; step <= TableCatalog::LastStep; ++step) {
        splash.ProgressTick();
        if (step < TableCatalog::LastStep)
            ++loader.LoadCounter;
    }
}

void Form1::loadMenus()
{
    m_commandBars.load(MenuLayout::read(m_module.shippedFile(u"menuc_uk.xcb"_s)));
    m_ownActions.place(m_commandBars);
    m_commandBars.setTheme(themeOfMenuStyle(m_module.OptionSlots(Slot::MenuStyle)));
    updateCommands();
    // The whole pane, if the screen is large enough. adjustSize() would stop at two thirds of the screen.
    resize(sizeHint().boundedTo(Controls::roomFor(*this)));
}

void Form1::showStartModule()
{
    const bool wanted = m_module.OptionSlots(Slot::StartModuleOn).equals(1);
    for (size_t module = 0; wanted && module < StartModules.size(); ++module) {
        if (m_module.OptionSlots(Slot::StartModule).equals(double(module)))
            m_panes->showAtStart(StartModules[module]);
    }
    updateCommands();
}

void Form1::restoreAndRaise()
{
    if (!ModalDialogs::raise())
        m_tray.bringBack();
}

void Form1::executeCommand(int id)
{
    if (const Command *command = findCommand(id))
        m_history->follow([&] { ignoringErrors([&] { run(*command); }); });
    updateCommands();
}

void Form1::run(const Command &command)
{
    switch (command.kind) {
    case CommandKind::Quit:
        return unloadAllWindows();
    case CommandKind::ShowPanel:
        return m_panes->show(command.panel);
    case CommandKind::ShowPanelOnce:
        if (!m_panes->isShown(command.panel))
            m_panes->show(command.panel);
        return;
    case CommandKind::SolventTab:
        m_panes->show(command.panel);
        return m_solvents->selectTab(command.argument);
    case CommandKind::SpectroscopyMode:
        return showSpectroscopy(command.argument);
    case CommandKind::Help:
        return m_help.open();
    case CommandKind::WebSite:
        return m_desktop.openTarget(QLatin1StringView(BuildSettings::WebSite));
    case CommandKind::Options:
        // Errors of other commands are ignored; an options window that cannot load ends the program.
        return endOnError(m_desktop, [this] { m_options->open(); });
    case CommandKind::Export:
        return m_reportSave.run([this] { return reportContext(); });
    case CommandKind::Find:
        return m_findBar->open(m_panes->isShown(PanelId::Elements));
    case CommandKind::About:
        return openAbout(m_desktop, *this);
    case CommandKind::CheckVersion:
        return checkVersion();
    case CommandKind::Nothing:
        return;
    }
}

ReportContext Form1::reportContext() const
{
    ReportContext context;
    context.frmsolv = m_panes->isShown(PanelId::Solvents);
    context.Frametable = m_panes->isShown(PanelId::Elements);
    context.Frame2 = m_panes->isShown(PanelId::Calculations);
    context.frmbioch = m_panes->isShown(PanelId::Biochemistry);
    context.frmsolution = m_panes->isShown(PanelId::Solutions);
    context.ListView3_27 = m_spectroscopy->isListView3_27Shown();
    context.panel1 = m_panel1->text();
    if (context.frmsolv) {
        context.solventTab = m_solvents->currentTab();
        context.solventCaption = m_solvents->currentTabCaption();
    }
    return context;
}

void Form1::checkVersion()
{
    // The English edition reads the same file.
    m_miseAjour1.setAdresse(QLatin1StringView(BuildSettings::WebSite) + u"/versions_fr.ini"_s);
    m_miseAjour1.setLogiciel(u"ALEMBRA"_s);
    m_miseAjour1.setVersion(Module1::version());
    m_miseAjour1.Verifier();
}

void Form1::showSpectroscopy(int mode)
{
    if (!m_panes->isShown(PanelId::Spectroscopy) || m_spectroscopy->mode() != mode)
        m_panes->show(PanelId::Spectroscopy, [&] { m_spectroscopy->selectMode(mode); });
}

void Form1::updateCommands()
{
    const bool searchable = m_panes->isShown(PanelId::Solvents) &&
                            (m_solvents->isListView1Shown() || m_solvents->isListView3_26Shown());
    m_commandBars.action(CommandId::Find).setEnabled(searchable || m_panes->isShown(PanelId::Elements));
    m_commandBars.action(CommandId::Export).setEnabled(ReportSave::hasReportFor(reportContext()));
    m_commandBars.action(CommandId::Print).setEnabled(false);
    m_listActions.update();
}

void Form1::closeEvent(QCloseEvent *event)
{
    if (!isEnabled()) {
        event->ignore();
        return;
    }
    event->accept();
    unloadAllWindows();
}

void Form1::keepReadable()
{
    setPalette(Readable::ownLinks(QApplication::palette()));
    Readable::showEdges();
}

void Form1::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange)
        keepReadable();
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        m_tray.windowChanged();
}

void Form1::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    m_tray.windowChanged();
}

void Form1::unloadAllWindows()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window != this)
            window->close();
    }
    hide();
    QCoreApplication::quit();
}
