// Supplementary stirrups of the faces.

#include "driver/program.h"

namespace pilarix {

void Program::EstriboSuplementarH29() {}

void Program::EstriboSuplementarV30() {}

} // namespace pilarix
