// The d' estimate from stirrup, bar and cover.

#include "driver/program.h"

namespace pilarix {

void Program::Form5Calcula() {}

void Program::Form5Aceita() {}

} // namespace pilarix
