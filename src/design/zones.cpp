// Reference strain fields, zone bounds, the moment the concrete alone carries, and the solicitation zone.

#include "driver/program.h"

namespace pilarix {

void Program::SConstZ10() {}

void Program::Szona15() {}

void Program::SNiCrit06() {}

void Program::SMiACEC13() {}

void Program::SMiZero14() {}

} // namespace pilarix
