// The reinforcement ratio that puts the section in equilibrium, by zone.

#include "driver/program.h"

namespace pilarix {

void Program::SRO16() {}

void Program::Critico21() {}

void Program::SProc_BK19() {}

void Program::SProc_AK20() {}

void Program::SProc_BC17() {}

} // namespace pilarix
