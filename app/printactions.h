#pragma once

#include "reports/reportsave.h"

class OwnActions;
class QAction;
class QWidget;

/// Connects "Print report" and "Save report as PDF" of the menu bar: the reports of @p exportAction, on
/// paper, and enabled with it. @p onShow returns what the main window @p form1 shows. All references outlive
/// @p form1.
void connectPrintActions(const OwnActions &actions, const QAction &exportAction, ReportSave &reports,
                         const std::function<ReportContext()> &onShow, QWidget &form1);
