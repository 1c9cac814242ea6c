#pragma once
// The calculation report ("memorial de cálculo") as a PDF: A4 portrait, in Portuguese,
// real text in embedded fonts, the interaction diagram and the section's drawing as
// vector paths (Qt's own PDF writer; Qt Gui only, no widgets).
//
//   writeReport(record, path, stamp, error)    the report of one calculation's record
//   writeReportPdf(report, path, error)        the same from report data already built
//   currentStamp()                             now, "dd/MM/yyyy HH:mm", and Pilarix's version
//
// The first page opens with "Dados da obra" (work, client, column, engineer,
// revision) where they were given. Every page has the column's name and the
// project's, the date and time, "Pilarix" and its version at the top and "página /
// páginas" at the foot (with the work and the revision, when given). In order: the
// load cases with the governing one (two or more), the data, the design, the
// detailing, the steel's quantities, every message of the calculation with its clause and the answer given
// and the verdict ("Resultado: Ok" / "Resultado: erro", the failed checks in bold
// red), the check by strain compatibility with the N_Rd–M_Rd diagram, the section
// drawn to a stated scale and, after a search, its lightest solutions.
//
// Text needs a QGuiApplication, which the caller must have made (the command line
// makes one on the offscreen platform); without one the report fails with a message.
// A failure never throws: false, and in `error` the file and the reason in Portuguese.
// A file already at `path` is only replaced by a complete new one.

#include "render/interaction_painter.h"
#include "report/report_data.h"

#include <QByteArray>

#include <string>

namespace pilarix::render {

bool writeReport(const app::CalculationRecord& record, const std::string& path, const report::ReportStamp& stamp,
                 std::string& error);

bool writeReportPdf(const report::ReportData& report, const std::string& path, std::string& error);

// The PDF's bytes; empty (with the reason) when it cannot be made.
QByteArray reportPdf(const report::ReportData& report, std::string& error);

report::ReportStamp currentStamp();

// The report's interaction diagram as the one painter of the diagram takes it: the
// same chart the window's "Diagrama de interação" paints for the same calculation.
InteractionChart diagramChart(const report::Diagram& diagram);

} // namespace pilarix::render
