// The result boxes of the main window and their reset.

#include "driver/program.h"

namespace pilarix {

void Program::Zera31() {}

void Program::Imprime37() {}

} // namespace pilarix
