#pragma once
// The part of the calculation report that only a column by ABNT NBR 6118:2014 (or
// 2023) has: the rule set named in the data, γn, the slenderness and the second
// order of both directions of the governing case, and both directions together
// (flexão composta oblíqua) with the envelope of the minimum moments; each figure
// with its clause. A 2001 report gets nothing from here.

#include "report/report_data.h"

namespace pilarix::report {

// Fills report.norma, report.norma2014 and report.momentContour when the record is
// of a calculation under 2014 or 2023; leaves them empty otherwise.
void addNorma2014(const app::CalculationRecord& record, ReportData& report);

} // namespace pilarix::report
