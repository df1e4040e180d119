#include "reports/reportsave.h"

#include "core/fileerrors.h"
#include "core/filelock.h"
#include "core/module1.h"
#include "reports/reportpage.h"
#include "reports/reports.h"

#include <array>

namespace {

using Report = void (*)(ReportPage &, const DataStore &);

struct Choice
{
    bool ReportContext::*onShow;
    QString name; ///< offered for the file
    Report report;
};

Report solventReport(int tab)
{
    constexpr std::array<Report, 6> ByTab{Reports::Properties, Reports::Miscibility,
                                          Reports::Nmr,        Reports::MassSpectrometry,
                                          Reports::Drying,     Reports::CoolingMixtures};
    return tab >= 1 && tab <= int(ByTab.size()) ? ByTab[size_t(tab - 1)] : nullptr;
}

/// The report of the first visible pane, in this order.
std::optional<Choice> choose(const ReportContext &context)
{
    const Choice choices[] = {
        {&ReportContext::frmsolv, context.panel1 + " - " + context.solventCaption,
         solventReport(context.solventTab)},
        {&ReportContext::Frametable, context.panel1, Reports::Elements},
        {&ReportContext::Frame2, "Constants and Units", Reports::ConstantsAndUnits},
        {&ReportContext::frmbioch, "Biochemistry", Reports::Biochemistry},
        {&ReportContext::frmsolution, "Solutions", Reports::Solutions},
        {&ReportContext::ListView3_27, "IR - Table", Reports::IrTable},
    };
    for (const Choice &choice : choices) {
        if (context.*choice.onShow)
            return choice;
    }
    return {};
}

QByteArray write(Report report, Module1 &module, const DataStore &data)
{
    ReportPage page(module);
    report(page, data);
    return page.bytes();
}

void openForOutput(QFile &file)
{
    FileErrors::refuseSpecialFile(file.fileName());
    if (FileLock::forbids(FileLock::Access::Write, file.fileName()))
        throw RuntimeError(ErrorNumber::PermissionDenied, file.fileName());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw FileErrors::ofWriting(file);
}

} // namespace

ReportSave::ReportSave(Module1 &module, const DataStore &data, Desktop &desktop)
    : m_module(module), m_data(data), m_desktop(desktop),
      CommonDialog1({"Page Web", {"*.htm", "*.html"}}, module, desktop),
      m_pdfDialog({"PDF", {"*.pdf"}}, module, desktop)
{}

bool ReportSave::hasReportFor(const ReportContext &shown)
{
    return choose(shown).has_value();
}

std::optional<QByteArray> ReportSave::forPaper(const ReportContext &shown) const
{
    const std::optional<Choice> choice = choose(shown);
    if (!choice || !choice->report)
        return {};
    Module1 module = m_module;
    module.OptionSlots(Slot::ReportColours) = 0;
    return write(choice->report, module, m_data);
}

void ReportSave::run(const std::function<ReportContext()> &onShow)
{
    save(CommonDialog1, onShow, {});
}

void ReportSave::runPdf(const std::function<ReportContext()> &onShow, const PageConverter &toPdf)
{
    save(m_pdfDialog, onShow, toPdf);
}

void ReportSave::save(SaveDialog &dialog, const std::function<ReportContext()> &onShow,
                      const PageConverter &toPdf)
{
    try {
        saveReport(dialog, onShow, toPdf);
        m_module.ProbedLength = 0;
    } catch (const RuntimeError &error) {
        if (error.number() != ErrorNumber::DialogCancelled)
            showMessage(error, dialog.FileName());
    }
}

// The visible pane may change while the dialog is open, so it is determined again. The file is truncated,
// without a backup, before the report is made: if it cannot be opened, the row class does not change.
void ReportSave::saveReport(SaveDialog &dialog, const std::function<ReportContext()> &onShow,
                            const PageConverter &toPdf)
{
    dialog.choose([&]() -> std::optional<QString> {
        const std::optional<Choice> choice = choose(onShow());
        return choice ? std::optional(choice->name) : std::nullopt;
    });
    const std::optional<Choice> choice = choose(onShow());
    if (!choice || !choice->report)
        return;
    QFile file(dialog.FileName());
    openForOutput(file);
    const QByteArray bytes =
        toPdf ? toPdf(forPaper(onShow()).value()) : write(choice->report, m_module, m_data);
    if (file.write(bytes) != bytes.size() || !file.flush())
        throw RuntimeError(ErrorNumber::DiskFull, file.fileName()); // a partial write sets no error
}

void ReportSave::showMessage(const RuntimeError &error, const QString &path)
{
    m_module.ProbedLength = error.number();
    if (error.number() == ErrorNumber::PermissionDenied)
        m_desktop.messageBox("Impossible to peform back-up, the file '" + path + "' is in use.",
                             Desktop::Warning);
    else if (error.number() == ErrorNumber::PathAccess)
        m_desktop.messageBox("Impossible to save '" + path +
                                 "'. The file already exists and has a read-only attribute. Save it with a "
                                 "different name or in a different folder." +
                                 FileErrors::reasonNotWritable(path),
                             Desktop::Warning);
    // Any other failure is silent.
}
