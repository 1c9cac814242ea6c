// d' and the bar layers of the section.

#include "driver/program.h"

namespace pilarix {

void Program::dLinha01() {}

void Program::SArran1R03() {}

} // namespace pilarix
