// Units of force, moment and stress. Gravity is taken as exactly 10 m/s² in every
// factor (1 N = 0.1 kgf, 1 kN = 100 kgf, 1 MPa = 10 kgf/cm²), as the program always
// has: the factors are not to be "corrected" to 9.80665.

#include "app/units.h"

#include <array>
#include <utility>

namespace pilarix {

namespace {
const std::array<std::pair<const char*, double>, 29> kUnidades{{
    // forces -> kgf
    {"Kgf", 1},
    {"Tf", 1000},
    {"N", 0.1},
    {"KN", 100},
    // moments -> kgf.cm
    {"Kgf.mm", 0.1},
    {"Kgf.cm", 1},
    {"Kgf.m", 100},
    {"Tf.mm", 100},
    {"Tf.cm", 1000},
    {"Tf.m", 100000},
    {"N.mm", 0.01},
    {"N.cm", 0.1},
    {"N.m", 10},
    {"KN.mm", 10},
    {"KN.cm", 100},
    {"KN.m", 10000},
    // stresses -> kgf/cm2
    {"Kgf/mm2", 100},
    {"Kgf/cm2", 1},
    {"Kgf/m2", 0.0001},
    {"Tf/mm2", 100000},
    {"Tf/cm2", 1000},
    {"Tf/m2", 0.1},
    {"N/mm2", 10},
    {"N/cm2", 0.1},
    {"N/m2", 0.00001},
    {"KN/mm2", 10000},
    {"KN/cm2", 100},
    {"KN/m2", 0.01},
    {"MPa", 10},
}};
} // namespace

std::optional<double> unitFactor(std::string_view name)
{
    for (const auto& [n, factor] : kUnidades)
        if (name == n)
            return factor;
    return std::nullopt;
}

ShownUnit shownForceUnit(const std::string& name)
{
    if (const auto f = unitFactor(name))
        return {name, *f};
    return {"kN", 100};
}

ShownUnit shownMomentUnit(const std::string& name)
{
    if (const auto f = unitFactor(name))
        return {name, *f};
    return {"kN·m", 10000};
}

} // namespace pilarix
