#pragma once
// What the main window and its diagram read of the record of a calculation with its
// load cases: the governing case named, and the check of the detailed section in the
// units chosen for Nd and Md.

#include "ui/interaction_plot.h"
#include "app/calculation_record.h"

#include <QString>

namespace pilarix::ui {

// "Caso determinante: ..." where there are two or more cases; empty otherwise.
QString casoDeterminanteTexto(const app::CalculationRecord& r);

// The detailed section's curve and every case's point; needs r.verification.
DiagramData dadosDoDiagrama(const app::CalculationRecord& r);

} // namespace pilarix::ui
