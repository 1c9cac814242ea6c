#pragma once
// The units of the window's lists of force, moment and stress, by their exact names
// ("KN", "KN.cm", "MPa"...): what one of them is in the program's own units (kgf,
// kgf·cm, kgf/cm²), with gravity taken as exactly 10 m/s².

#include <optional>
#include <string_view>

namespace pilarix {

// The factor of a unit, as Unidades30 reads it; none for a name it does not know.
std::optional<double> fatorDaUnidade(std::string_view nome);

} // namespace pilarix
