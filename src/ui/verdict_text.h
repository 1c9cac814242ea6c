#pragma once
// What the main window and its diagram read of the last calculation with its load
// cases: the governing case named, and the check of the detailed section in the
// units chosen for Nd and Md.

#include "ui/interaction_plot.h"
#include "window/program.h"

#include <QString>

namespace pilarix::ui {

// "Caso determinante: ..." where there are two or more cases; empty otherwise.
QString casoDeterminanteTexto(const Program& p);

// The detailed section's curve and every case's point; needs p.Verificacao.
DiagramData dadosDoDiagrama(const Program& p);

} // namespace pilarix::ui
