// Stirrup diameter and spacing, hooks, and the stirrup choice dialog.

#include "driver/program.h"

namespace pilarix {

void Program::Estribo28() {}

void Program::Form10Estribo28() {}

void Program::Ganchos41() {}

void Program::Form7Command1_Click() {}

void Program::Form7MelhorSolução() {}

void Program::Form7zera() {}

} // namespace pilarix
