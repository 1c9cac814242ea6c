// The bar catalogue and the choice of a real bar for the required area.

#include "driver/program.h"

namespace pilarix {

void Program::Bitolas22() {}

void Program::AsReal23() {}

void Program::Form10AsReal23() {}

} // namespace pilarix
