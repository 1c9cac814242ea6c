#pragma once
// The units a force, a moment or a stress may be typed in, by the names the lists
// give them ("KN", "Tf.m", "MPa"...).

#include <optional>
#include <string>
#include <string_view>

namespace pilarix {

// The factor that turns a value in the named unit into kgf, kgf·cm or kgf/cm²; none
// for a name the lists do not hold.
std::optional<double> unitFactor(std::string_view name);

// A unit the results are shown in: its name and its factor from the program's units.
// A name the lists do not hold (only a hand-edited project brings one) shows forces
// in kN and moments in kN·m, in every front alike.
struct ShownUnit {
    std::string name;
    double factor = 1;
};
ShownUnit shownForceUnit(const std::string& name);
ShownUnit shownMomentUnit(const std::string& name);

} // namespace pilarix
