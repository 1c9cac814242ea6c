// The cover question and its corrections of the cover and d'.

#include "driver/program.h"

namespace pilarix {

void Program::Form4Command2_Click() {}

void Program::Form4Command1_Click() {}

void Program::CalcdLinha() {}

void Program::CalcdLinhaFi() {}

void Program::CalccNAgr() {}

} // namespace pilarix
