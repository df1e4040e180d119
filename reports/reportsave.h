#pragma once

#include "reports/savedialog.h"

struct DataStore;

/// What is on show in the main window, as far as reports depend on it. A control is on show by its own
/// setting.
struct ReportContext
{
    bool frmsolv = false;
    bool Frametable = false;
    bool Frame2 = false;
    bool frmbioch = false;
    bool frmsolution = false;
    bool ListView3_27 = false;
    QString panel1;         ///< of `StatusBar1`
    int solventTab = 0;     ///< selected tab of `TabStrip1`, from 1
    QString solventCaption; ///< and its caption
};

/// The flow behind the export command: asks for a file and writes the report of what is on show.
class ReportSave final
{
public:
    ReportSave(Module1 &module, const DataStore &data, Desktop &desktop);

    /// Whether the export command has a report for what is shown.
    static bool isThereOneFor(const ReportContext &shown);

    /// Shows the dialog, with its questions, and writes the file, replacing what was in it. Success is
    /// silent. A file that is in use or may not be written is told; any other failure is silent and leaves
    /// what was written so far. With none of the panes on show the dialog comes all the same and nothing is
    /// written.
    void run(const std::function<ReportContext()> &onShow);

private:
    void saveReport(const std::function<ReportContext()> &onShow);
    void tell(const RuntimeError &error);

    Module1 &m_module;
    const DataStore &m_data;
    Desktop &m_desktop;
    SaveDialog CommonDialog1;
};
