// The plane strain field of the ultimate limit state, identified by the relative neutral-axis depth.

#include "driver/program.h"

namespace pilarix {

void Program::SEpSig11() {}

void Program::SBxTeta07() {}

void Program::SEta08() {}

void Program::SEtalin09() {}

void Program::SKapa12() {}

void Program::SEc1Bx18() {}

} // namespace pilarix
