#pragma once
// The real bar for a required area (NBR 6118, 18.4.2.1).
//
//   smallestBar(areaPerBar, totalBars, maxBarIndex)  the thinnest allowed longitudinal
//       bar (catalogue 4, 10 mm, up to maxBarIndex) whose area reaches the area
//       required per bar; none when even the largest allowed bar is too small
//   exceedsEighthOfSide(diameter, smallerSide)       a bar thicker than 1/8 of the
//       smaller side of the section

#include "engine/column.h"

#include <optional>

namespace pilarix::engine {

std::optional<BarChoice> smallestBar(double areaPerBar, int totalBars, int maxBarIndex);

bool exceedsEighthOfSide(double diameter, double smallerSide);

} // namespace pilarix::engine
