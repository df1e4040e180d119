#pragma once

#include "reports/reportsave.h"

#include <QObject>

class OwnActions;
class QAction;
class QWidget;

/// "Print report" and "Save report as PDF" of the menu bar: the reports of the export, on paper.
class PrintActions final : public QObject
{
    Q_OBJECT

public:
    using Context = std::function<ReportContext()>;

    /// @p onShow returns what the main window @p form1 shows. All references outlive this.
    PrintActions(const OwnActions &actions, ReportSave &reports, Context onShow, QWidget &form1);

    /// Enables both if there is a report for @p shown.
    void update(const ReportContext &shown);

private:
    void openPreview();

    ReportSave &m_reports;
    Context m_onShow;
    QWidget &m_form1;
    QAction &m_print;
    QAction &m_pdf;
};
