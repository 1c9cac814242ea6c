#pragma once
// A calculation that cannot go on (a division by zero, a subscript outside its
// array, an overflow, a march that never meets its tolerance) raises CalcError.
// The driver and the other entry points catch it, show the message in the
// "Mensagem de erro" dialog and mark the run "erro": the program never stops and
// the user's input is kept.

#include <stdexcept>
#include <string>

namespace pilarix {

class CalcError : public std::runtime_error {
public:
    explicit CalcError(const std::string& message) : std::runtime_error(message) {}
};

} // namespace pilarix
