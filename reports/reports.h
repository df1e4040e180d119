#pragma once

class ReportPage;
struct DataStore;

/// The reports. Each writes one complete page. Pictures are only referenced; their files need not exist.
namespace Reports {

void Properties(ReportPage &page, const DataStore &data);
void Miscibility(ReportPage &page, const DataStore &data);
void Nmr(ReportPage &page, const DataStore &data);
void MassSpectrometry(ReportPage &page, const DataStore &data);
void Drying(ReportPage &page, const DataStore &data);
void CoolingMixtures(ReportPage &page, const DataStore &data);
void IrTable(ReportPage &page, const DataStore &data);
void Elements(ReportPage &page, const DataStore &data);
void Solutions(ReportPage &page, const DataStore &data);
void Biochemistry(ReportPage &page, const DataStore &data);
void ConstantsAndUnits(ReportPage &page, const DataStore &data);

} // namespace Reports
