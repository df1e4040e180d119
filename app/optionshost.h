#pragma once

#include "options/optionstarget.h"

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

/// `Formoptions` as the main window has it: made when somebody first asks for it, and what it does to the
/// main window.
class OptionsHost final : public QObject, private OptionsTarget
{
    Q_OBJECT

public:
    /// Parts of the main window that options reach.
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

    /// Makes the window without showing it, which applies the options to the main window. RuntimeError as
    /// told at Formoptions.
    void loadHidden();

    /// Shows the window above the main window.
    void open();

    /// `Check1(1)`, " Tip of the day"; loads the window if it is not loaded.
    void setTipAtStart(bool on);

private:
    Formoptions &loaded();

    void enableTrayEntry(bool enabled) override;
    void applyMenuStyle() override;
    void refreshToolTips() override;
    void placeIrLabels() override;
    void applyIrGraduation() override;
    void refreshZoomPointer() override;
    void applyPictureOption() override;
    void emptyEntryFields() override;
    void databaseReplaced() override;

    Module1 &m_module;
    DataStore &m_store;
    Desktop &m_desktop;
    const Parts m_parts;
    QWidget &m_form;
    Formoptions *m_window = nullptr; ///< null while it is not loaded
};
