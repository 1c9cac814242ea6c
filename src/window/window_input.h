#pragma once
// The input of the window as values the window compares and puts back: what the
// result on show was calculated from, what the list of the search was found for,
// what the project file holds; and the checks of the input that belong to the
// window alone (an empty box, a text that is not a number, "Outros valores" out of
// range), made before a calculation reads the boxes. The command line does not
// make them: it reads the boxes as the program always has.

#include "window/control_table.h"
#include "window/program.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace pilarix {

// The inputs of the window in `alcance`, by the names the program gives them
// ("Text1", "Combo4", "Option1|Option2" for a group of options, "Form8.Text1",
// "Bitola fixa", "Casos"), each with its value as text, in the order of the table of
// controls (window/control_table.h).
std::vector<std::pair<std::string, std::string>> valoresDaEntrada(const Program& p, Alcance alcance);

// The same as one comparable value.
std::string fotoDaEntrada(const Program& p, Alcance alcance);

// Puts one input back, by the name and value valoresDaEntrada gives it; the d' box
// and its estimate follow "d' automático". False for a name it does not know.
bool restauraEntrada(Program& p, const std::string& nome, const std::string& valor);

// The whole text is one number in the program's reading: blanks around it, a sign,
// digits with "." as the decimal point, an exponent.
bool numeroCompleto(const std::string& texto);

// The first problem of the window's input that a calculation would pass over in
// silence (an empty box read as 0 or corrected to 12 cm, a text that is not a
// number, a precision or an aggregate out of range), as a message naming the box
// and its value; none when the input can be calculated.
std::optional<std::string> conferenciaDaEntrada(const Program& p);

// The values of "Outros valores" as typed: a precision in (0, 0.01], an aggregate
// size above zero or none at all.
std::optional<std::string> conferenciaDeOutrosValores(const std::string& precisao, const std::string& agregado);

// The scale of the exported drawing, pixels per cm: above zero.
std::optional<std::string> conferenciaDaEscala(const std::string& escala);

} // namespace pilarix
