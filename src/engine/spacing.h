#pragma once
// Spacing of the longitudinal bars (NBR 6118, 18.4.2.2).
//
//   checkSpacing(...)  the free and axis spacing along the faces of width b and of
//       depth h; the free spacing must reach 4 φl (or 2.4 times the largest
//       aggregate, the 1.2 rule doubled so that it still holds at splices), the axis
//       spacing must not pass twice the smaller side nor 40 cm. Every failed rule is
//       a check; none stops the others. The silent pass of the search only needs to
//       know that a rule failed: `withMessages` false leaves the texts empty.

#include "engine/checks.h"
#include "engine/column.h"
#include "engine/options.h"

#include <string_view>
#include <vector>

namespace pilarix::engine {

struct SpacingCheck {
    SpacingResult values;
    std::string_view freeLimit; // the text naming the governing free-spacing limit
    std::string_view axisLimit;
    std::vector<Check> failures;
};

// Under ABNT NBR 6118:2014 the free spacing must reach 2 cm, φl and 1.2 times the
// largest aggregate (18.4.2.2).
SpacingCheck checkSpacing(double base, double depth, double dLinha, double barsOnWidthFace, double barsOnDepthFace,
                          double barDiameter, double aggregate, double smallerSide, bool withMessages = true,
                          RuleSet rules = RuleSet::Nbr2001);

} // namespace pilarix::engine
