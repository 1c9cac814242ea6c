// Steel and concrete laws: design yield stress and strain, and the design stress of the steel for a strain.

#include "driver/program.h"

namespace pilarix {

void Program::Aço04() {}

void Program::SigSd05() {}

} // namespace pilarix
