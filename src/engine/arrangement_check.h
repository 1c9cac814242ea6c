#pragma once
// The final arrangement checked again as it will be built: the bar, the stirrup and
// d' that the calculation ended with, whatever path it took to them. The passes check
// the cover and the stirrup with the bar chosen for the design; when the minimum
// steel then asks for a thicker bar, nothing of the method looks at them again. This
// check reads only the final geometry, so its answer depends on the column, not on
// the order of the stages.
//
//   recheckArrangement(arrangement)   every rule the final arrangement breaks, as
//                                     checks with their clauses (none: it holds)

#include "engine/checks.h"
#include "engine/materials.h"
#include "engine/options.h"

#include <vector>

namespace pilarix::engine {

struct FinalArrangement {
    double base = 0, depth = 0;   // cm
    double dLinha = 0;            // cm, to the centre of the corner bars
    double barsOnWidthFace = 0;
    double barsOnDepthFace = 0;
    double barDiameter = 0;       // cm
    double stirrupDiameter = 0;   // cm
    double stirrupSpacing = 0;    // cm
    double nominalCover = 0;      // cm, as the cover stage set it (class and Δc, or the aggregate)
    double aggregate = 0;         // cm, 0 when not given
    SteelGrade steel = SteelGrade::CA50A;
    bool stirrupsOfBarSteel = false; // the same-steel rule holds: thinner stirrups at their own spacing
    RuleSet rules = RuleSet::Nbr2001;
};

std::vector<Check> recheckArrangement(const FinalArrangement& arrangement);

} // namespace pilarix::engine
