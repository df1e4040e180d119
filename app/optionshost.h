#pragma once

#include <QObject>

class CalculationsPane;
class CommandBars;
class Desktop;
class ElementsPane;
class Formoptions;
class LaterTables;
class SpectroscopyPane;
class TrayIcon;
struct DataStore;
struct Module1;

/// Opens `Formoptions` and applies the options to the main window, when it loads and on its OK.
class OptionsHost final : public QObject
{
    Q_OBJECT

public:
    /// Parts of the main window with options.
    struct Parts
    {
        CommandBars &commandBars;
        TrayIcon &tray;
        ElementsPane &elements;
        CalculationsPane &calculations;
        SpectroscopyPane &spectroscopy;
        LaterTables &laterTables;
    };

    OptionsHost(Module1 &module, DataStore &store, Desktop &desktop, const Parts &parts, QWidget &form);

    /// Loads the window without showing it. RuntimeError as for Formoptions.
    void loadHidden();

    /// Shows the window above the main window.
    void open();

    /// `Check1(1)`, " Tip of the day"; loads the window if it is not loaded.
    void setTipAtStart(bool on);

private:
    Formoptions &loaded();

    void applyAtLoad();
    void applyChanges();
    void enableTrayEntry();

    Module1 &m_module;
    DataStore &m_store;
    Desktop &m_desktop;
    const Parts m_parts;
    QWidget &m_form;
    Formoptions *m_window = nullptr; ///< null while not loaded
};
