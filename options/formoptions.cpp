#include "options/formoptions.h"

#include "core/buildsettings.h"
#include "core/desktop.h"
#include "core/module1.h"
#include "options/databasetab.h"
#include "options/exporttab.h"
#include "options/filefigures.h"
#include "options/generaltab.h"
#include "options/statisticstab.h"
#include "store/datastore.h"
#include "store/gridlines.h"
#include "widgets/tabstrip.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QStackedLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize WindowSize{560, 440}; // logical pixels

} // namespace

Formoptions::Formoptions(Module1 &module, DataStore &store, Desktop &desktop, QWidget &owner)
    : SideWindow("Formoptions", owner), m_module(module), m_store(store), m_desktop(desktop)
{
    setWindowTitle(u"Options"_s);
    applyGridLines();
    for (const char *file : {"Data/Database_uk.mdb", BuildSettings::Executable}) // the tabs need these files
        FileFigures::fileLength(m_module.shippedFile(file));
}

void Formoptions::setVisible(bool visible)
{
    if (visible && !TabStrip1)
        build();
    SideWindow::setVisible(visible);
}

void Formoptions::setTipAtStart(bool on)
{
    if (TabStrip1)
        controls.Check1[1].setChecked(on);
}

void Formoptions::buildWindow()
{
    TabStrip1 = new TabStrip(u"TabStrip1"_s, {u"&General"_s, u"&Export"_s, u"&Database"_s, u"&Statistics"_s},
                             TabStrip::Across, this);
    auto *page = new QFrame(this);
    page->setFrameShape(QFrame::StyledPanel);
    auto *frames = new QStackedLayout(page);
    frmbdd = new DatabaseTab(m_module, m_desktop, page);
    connect(frmbdd, &DatabaseTab::databaseReplaced, this, &Formoptions::databaseReplaced);
    frmstat = new StatisticsTab(m_store, m_module, page);
    for (QWidget *frame : {makeGeneralTab(controls, page), makeExportTab(controls, page),
                           static_cast<QWidget *>(frmbdd), static_cast<QWidget *>(frmstat)})
        frames->addWidget(frame);
    connect(TabStrip1, &TabStrip::tabClicked, frames,
            [frames](int tab) { frames->setCurrentIndex(tab - 1); });

    auto *rows = new QVBoxLayout(this);
    auto *sheet = new QVBoxLayout; // no gap between strip and page
    sheet->setSpacing(0);
    sheet->addWidget(TabStrip1);
    sheet->addWidget(page, 1);
    rows->addLayout(sheet, 1);
    rows->addLayout(buildButtons());
}

QLayout *Formoptions::buildButtons()
{
    QPushButton *XPButton1 = makeOkButton(u"XPButton1"_s);
    auto *XpButton2 = Controls::named(new QPushButton(u"&Cancel"_s, this), u"XpButton2"_s);
    XpButton2->setAutoDefault(false);
    connect(XpButton2, &QPushButton::clicked, this, &QWidget::close);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(XPButton1);
    buttons->addWidget(XpButton2);
    return buttons;
}

void Formoptions::build()
{
    buildWindow();
    // The balloon needs the tray.
    controls.Check1.connectEach(&QCheckBox::toggled, this, [this](int) {
        controls.Check1[8].setEnabled(controls.Check1[7].isChecked());
    });
    connect(controls.Check10, &QCheckBox::toggled, controls.Combo3, &QWidget::setEnabled);
    controls.Combo2->addItems(
        {u"Office 2000"_s, u"Office XP"_s, u"Office 2003"_s, u"Windows XP"_s, u"Office 2007"_s, u"Vista"_s});
    controls.Combo3->addItems({u"Solvents"_s, u"Solutions"_s, u"Elements"_s, u"Biochemistry"_s,
                               u"Spectroscopy"_s, u"Calculations"_s});
    controls.show(m_module.OptionSlots);
    frmbdd->load();
    frmstat->load();
    resize(sizeHint().expandedTo(WindowSize));
}

// Any value but 0 turns them on.
void Formoptions::applyGridLines()
{
    ApplyGridLines(m_store.lists, !m_module.OptionSlots(Slot::GridLines).equals(0));
}

void Formoptions::accept()
{
    endOnError(m_desktop, [this] {
        controls.store(m_module.OptionSlots);
        applyGridLines();
        Q_EMIT optionsChanged();
        owner().setEnabled(true);
        m_module.WriteOptions();
        Q_EMIT optionsWritten();
        close();
    });
}
