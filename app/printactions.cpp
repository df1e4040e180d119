#include "app/printactions.h"

#include "app/ownactions.h"
#include "app/paperreport.h"

#include <QAction>
#include <QPrintPreviewDialog>
#include <QPrinter>

using namespace Qt::StringLiterals;

PrintActions::PrintActions(const OwnActions &actions, ReportSave &reports, Context onShow, QWidget &form1)
    : m_reports(reports), m_onShow(std::move(onShow)), m_form1(form1),
      m_print(actions.action(OwnAction::PrintReport)), m_pdf(actions.action(OwnAction::PdfReport))
{
    connect(&m_print, &QAction::triggered, this, &PrintActions::openPreview);
    connect(&m_pdf, &QAction::triggered, this, [this] { m_reports.runPdf(m_onShow, PaperReport::pdf); });
}

void PrintActions::update(const ReportContext &shown)
{
    for (QAction *action : {&m_print, &m_pdf})
        action->setEnabled(ReportSave::hasReportFor(shown));
}

// The preview has the buttons for the printer, the pages and the paper.
void PrintActions::openPreview()
{
    const std::optional<QByteArray> page = m_reports.forPaper(m_onShow());
    if (!page)
        return;
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setPageLayout(PaperReport::pageLayout());
    auto report = std::make_shared<PaperReport>(*page);
    auto *preview = new QPrintPreviewDialog(printer.get(), &m_form1);
    preview->setObjectName(u"frmPreview"_s);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->setWindowTitle(u"Print report"_s);
    preview->resize(m_form1.size());
    connect(preview, &QPrintPreviewDialog::paintRequested, preview,
            [report, printer](QPrinter *paper) { report->print(paper); });
    preview->open();
}
