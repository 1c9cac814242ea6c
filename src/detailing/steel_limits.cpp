// Wall columns, the additional coefficient, and minimum and maximum steel.

#include "driver/program.h"

namespace pilarix {

void Program::CeoficienteAdic25() {}

void Program::AsMinMax24() {}

void Program::Taxaminima45() {}

void Program::Form10AsMinMax24() {}

} // namespace pilarix
