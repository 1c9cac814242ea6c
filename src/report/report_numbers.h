#pragma once
// How the report writes its numbers and units, for every section of it: fixed
// decimals, four significant figures at least, and the unit of a window's list with
// its factor to the program's units (kN or kN·m where a hand-edited file names one
// the units table does not know).

#include "app/units.h"

#include <string>

namespace pilarix::report::numbers {

std::string fixed(double x, int decimals);
// Four significant figures at least, whatever the unit makes of the magnitude
// (40 Tf and 40000 Kgf alike), and never fewer decimals than `least`.
std::string significant(double x, int least = 0);

using Unit = ShownUnit; // app/units.h

// A force (kgf) or a moment (kgf·cm) in the unit of the window's list and, beside it,
// in kN or kN·m: "600 KN (600.0 kN)". `typed`: a value the engineer typed, written
// back as typed rather than to four figures.
std::string forceText(double kgf, const Unit& u, bool typed = false);
std::string momentText(double kgfCm, const Unit& u, bool typed = false);

inline constexpr double kKgfPerKn = 100;
inline constexpr double kKgfCmPerKnM = 10000;

} // namespace pilarix::report::numbers
