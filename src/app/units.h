#pragma once
// The units a force, a moment or a stress may be typed in, by the names the lists
// give them ("KN", "Tf.m", "MPa"...).

#include <optional>
#include <string_view>

namespace pilarix {

// The factor that turns a value in the named unit into kgf, kgf·cm or kgf/cm²; none
// for a name the lists do not hold.
std::optional<double> unitFactor(std::string_view name);

} // namespace pilarix
