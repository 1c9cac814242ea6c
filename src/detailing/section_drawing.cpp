// The drawing of the section to scale.

#include "driver/program.h"

namespace pilarix {

void Program::Desenha35() {}

void Program::DesenhaSup36() {}

} // namespace pilarix
