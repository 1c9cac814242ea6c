// Project files and the default-values file "Padrão.txt".

#include "driver/program.h"

namespace pilarix {

void Program::Grava32() {}

void Program::Carrega33() {}

void Program::Form_Load() {}

void Program::Command7_Click() {}

void Program::mnuItemCarregpadr_Click() {}

void Program::mnuItemSaveDefault_Click() {}

void Program::mnuItemload_Click() {}

void Program::mnuItemSave_Click() {}

} // namespace pilarix
