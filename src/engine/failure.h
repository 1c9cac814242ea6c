#pragma once
// A calculation that cannot go on: a division by zero, the root of a negative
// number or an overflow in a stage, a march that never meets its tolerance, a pass
// repeated without end. The engine raises CalcError with a message naming the stage
// and the data of the column; the calculation's entry points turn it into a value
// (ColumnResult::failure) and the window shows it. The stages keep the names the
// method gives them, so that a message can be traced to its routine.

#include "base/calc_error.h"

#include <string>

namespace pilarix::engine {

// A march of the design that cannot meet its tolerance (its step no longer moves
// the variable, or it passes its cap). The calculation takes the area that strain
// compatibility needs instead and goes on.
class MarchFailure : public CalcError {
public:
    using CalcError::CalcError;
};

// The values that identify a calculation, for a message about one that failed.
struct ColumnSummary {
    double base = 0, depth = 0;      // cm
    double barsOnWidthFace = 0;
    double barsOnDepthFace = 0;
    double dLinha = 0;               // cm
    double Nd = 0, Md = 0;           // kgf, kgf·cm
    double fck = 0;                  // kgf/cm²
    double precision = 0;
};

std::string describe(const ColumnSummary& s);

// The floating-point status flags of a calculation: cleared once when it starts,
// then read after every stage. They are sticky, so the first stage after which one
// is raised is the stage that raised it.
void startFloatingPointWatch();
// Raises CalcError naming the stage and the fault when a flag is raised.
void checkFloatingPoint(const char* stage, const ColumnSummary& s);
// Whether a division by zero, an invalid operation or an overflow has been raised
// since the watch started: cheap enough to ask after every stage.
bool floatingPointFault();

// Caps on the work of one calculation. A converging march needs a few hundred steps
// and a repeated pass ends after two or three; past these the method has lost its
// way and the calculation stops with a message.
inline constexpr long kMarchCap = 100000;
inline constexpr int kPassCap = 100;

} // namespace pilarix::engine
