#include "app/printactions.h"

#include "app/ownactions.h"
#include "app/paperreport.h"

#include <QAction>
#include <QPrintPreviewDialog>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace {

// The preview has the buttons for the printer, the pages and the paper.
void openPreview(const QByteArray &page, QWidget &form1)
{
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setPageLayout(PaperReport::pageLayout());
    auto report = std::make_shared<PaperReport>(page);
    auto *preview = new QPrintPreviewDialog(printer.get(), &form1);
    preview->setObjectName(u"frmPreview"_s);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->setWindowTitle(u"Print report"_s);
    preview->resize(form1.size());
    QObject::connect(preview, &QPrintPreviewDialog::paintRequested, preview,
                     [report, printer](QPrinter *paper) { report->print(paper); });
    preview->open();
}

} // namespace

void connectPrintActions(const OwnActions &actions, const QAction &exportAction, ReportSave &reports,
                         const std::function<ReportContext()> &onShow, QWidget &form1)
{
    QAction &print = actions.action(OwnAction::PrintReport);
    QAction &pdf = actions.action(OwnAction::PdfReport);
    for (QAction *action : {&print, &pdf})
        QObject::connect(&exportAction, &QAction::enabledChanged, action, &QAction::setEnabled);
    QObject::connect(&print, &QAction::triggered, &form1, [&reports, &form1, onShow] {
        if (const std::optional<QByteArray> page = reports.forPaper(onShow()))
            openPreview(*page, form1);
    });
    QObject::connect(&pdf, &QAction::triggered, &form1,
                     [&reports, onShow] { reports.runPdf(onShow, PaperReport::pdf); });
}
