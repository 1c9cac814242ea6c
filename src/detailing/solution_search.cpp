// The best-solution search, its store and the solutions list.

#include "driver/program.h"

namespace pilarix {

void Program::Command8_Click() {}

void Program::GuardaValores42() {}

void Program::EscolheValores43() {}

void Program::ValoresnoForm1144() {}

void Program::Command11_Click() {}

void Program::Command9_Click() {}

void Program::Command10_Click() {}

void Program::Form11Escolhe() {}

void Program::Form11BotaoMais() {}

void Program::Form11BotaoMenos() {}

} // namespace pilarix
