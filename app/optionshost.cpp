#include "app/optionshost.h"

#include "app/commandbars.h"
#include "app/trayicon.h"
#include "calc/calculationspane.h"
#include "charts/spectroscopypane.h"
#include "core/module1.h"
#include "elements/elementspane.h"
#include "options/formoptions.h"
#include "store/latertables.h"
#include "widgets/tooltips.h"
#include "widgets/windowunits.h"

#include <QAction>

namespace {

constexpr double HiddenTop = 10000; // twips

} // namespace

OptionsHost::OptionsHost(Module1 &module, DataStore &store, Desktop &desktop, const Parts &parts,
                         QWidget &form)
    : m_module(module), m_store(store), m_desktop(desktop), m_parts(parts), m_form(form)
{}

Formoptions &OptionsHost::loaded()
{
    if (!m_window) {
        applyAtLoad();
        m_window = new Formoptions(m_module, m_store, m_desktop, m_form);
        connect(m_window, &Formoptions::unloaded, this, [this] { m_window = nullptr; });
        connect(m_window, &Formoptions::optionsChanged, this, &OptionsHost::applyChanges);
        connect(m_window, &Formoptions::optionsWritten, &m_parts.calculations,
                &CalculationsPane::emptyEntryFields);
        connect(m_window, &Formoptions::databaseReplaced, this, [this] { m_parts.laterTables.forget(); });
    }
    return *m_window;
}

void OptionsHost::loadHidden()
{
    Formoptions &window = loaded();
    window.move(window.x(), WindowUnits::pixels(HiddenTop));
}

void OptionsHost::open()
{
    Formoptions &window = loaded();
    window.setAttribute(Qt::WA_Moved, false); // to the middle of its owner again
    window.showAboveOwner();
}

void OptionsHost::setTipAtStart(bool on)
{
    loaded().setTipAtStart(on);
}

void OptionsHost::applyAtLoad()
{
    m_parts.spectroscopy.placeIrLabels();
    enableTrayEntry();
    ToolTips::refresh(m_module.OptionSlots, m_form);
    m_parts.elements.refreshZoomPointer();
}

void OptionsHost::applyChanges()
{
    enableTrayEntry();
    m_parts.commandBars.setTheme(themeOfMenuStyle(m_module.OptionSlots(Slot::MenuStyle)));
    ToolTips::refresh(m_module.OptionSlots, m_form);
    m_parts.spectroscopy.applyIrGraduation();
    m_parts.elements.refreshZoomPointer();
    m_parts.elements.applyPictureOption();
}

void OptionsHost::enableTrayEntry()
{
    m_parts.tray.trayminimax->setEnabled(!m_module.OptionSlots(Slot::MinimiseToTray).equals(0));
}
