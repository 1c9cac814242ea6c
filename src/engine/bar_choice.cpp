#include "engine/bar_choice.h"

#include "engine/catalogue.h"

#include "base/calc_error.h"

#include <string>

namespace pilarix::engine {

namespace {
// Looked up by the AreaBitola column, as the bar choice reads the catalogue.
const Bar& catalogueBar(int index) { return bar(index, "AreaBitola"); }
} // namespace

std::optional<BarChoice> smallestBar(double areaPerBar, int totalBars, int maxBarIndex)
{
    if (areaPerBar > catalogueBar(maxBarIndex).area)
        return std::nullopt;
    // A counted loop: when the largest allowed bar is below 10 mm it does not run
    // and the thinnest longitudinal bar is taken.
    int i = kFirstLongitudinalBar;
    for (; i <= maxBarIndex; ++i)
        if (catalogueBar(i).area >= areaPerBar)
            break;
    const Bar& b = catalogueBar(i);
    return BarChoice{i, b.diameter, b.area, totalBars * b.area, b.mass};
}

bool exceedsEighthOfSide(double diameter, double smallerSide) { return diameter > smallerSide / 8; }

} // namespace pilarix::engine
