#pragma once
// The controls of the main window and of "Outros valores" by the names the program
// gives them ("Text1", "Combo4", "Option7(1)", "Form8.Text1"), for the command line,
// and the heading of the report: "Obra", "Cliente", "Pilar", "Engenheiro", "Revisao",
// as the table of controls (window/control_table.h) names them.

#include "window/control_table.h"

#include <string>
#include <utility>
#include <vector>

namespace pilarix {

// Sets one control from text. A list text must be one of the list's entries, a
// check box takes 0, 1 or 2, an option button True or False (True clears the other
// buttons of its group). On failure returns false and says why in `error`.
bool setControlByName(Program& program, const std::string& name, const std::string& value, std::string& error);

} // namespace pilarix
