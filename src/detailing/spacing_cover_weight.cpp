// Bar spacing, nominal and effective cover, and the weight of the longitudinal steel.

#include "driver/program.h"

namespace pilarix {

void Program::Espaçamento26() {}

void Program::Form10Espaçamento26() {}

void Program::CobNominal40() {}

void Program::Cobrimento27() {}

void Program::Form10Cobrimento27() {}

void Program::Peso29() {}

} // namespace pilarix
