#pragma once

#include "reports/savedialog.h"

struct DataStore;

/// What the main window shows. Visible means the control's own setting, whatever its parents are.
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
    QString solventCaption; ///< of that tab
};

/// The export command: asks for a file and writes the report of the visible pane.
class ReportSave final
{
public:
    using PageConverter = std::function<QByteArray(const QByteArray &page)>;

    ReportSave(Module1 &module, const DataStore &data, Desktop &desktop);

    /// Whether the export command has a report for what is shown.
    static bool hasReportFor(const ReportContext &shown);

    /// Shows the dialog and writes the file, replacing its contents. Reports only a file that is in use or
    /// not writable. Any other failure is silent and leaves the file incomplete. Without a report for what is
    /// shown, the dialog still appears, but nothing is written.
    void run(const std::function<ReportContext()> &onShow);

    /// The same for a PDF file, which @p toPdf makes of the page for paper.
    void runPdf(const std::function<ReportContext()> &onShow, const PageConverter &toPdf);

    /// The report of what is shown, in greys, for printing. Nothing if there is none. It leaves the row class
    /// of the exported reports alone.
    std::optional<QByteArray> forPaper(const ReportContext &shown) const;

private:
    void save(SaveDialog &dialog, const std::function<ReportContext()> &onShow, const PageConverter &toPdf);
    void saveReport(SaveDialog &dialog, const std::function<ReportContext()> &onShow,
                    const PageConverter &toPdf);
    void showMessage(const RuntimeError &error, const QString &path);

    Module1 &m_module;
    const DataStore &m_data;
    Desktop &m_desktop;
    SaveDialog CommonDialog1;
    SaveDialog m_pdfDialog;
};
