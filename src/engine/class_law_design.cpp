#include "engine/class_law_design.h"

#include "engine/biaxial.h"

#include "base/calc_error.h"

#include <cmath>

namespace pilarix::engine {

namespace {
bool carries(const ColumnInput& c, double dLinha, double totalArea, double nSd, double mx, double my,
             ConcreteRules rules)
{
    const double bars = 2 * (c.barsOnWidthFace + c.barsOnDepthFace) - 4;
    // A vanishing area stands for none: the section of concrete alone.
    const double perBar = std::max(totalArea / bars, 1e-9);
    const BiaxialSection s = biaxialColumn(c.base, c.depth, dLinha, c.barsOnWidthFace, c.barsOnDepthFace, perBar,
                                           designConcrete(c.fck, c.gammaC), designSteel(c.steel, c.gammaS, c.Es),
                                           rules);
    return utilisationAtN(s, nSd, mx, my).ratio <= 1;
}
} // namespace

std::optional<double> requiredAreaByClassLaw(const ColumnInput& c, double dLinha, double nSd, double mx, double my,
                                             ConcreteRules rules)
{
    if (carries(c, dLinha, 0, nSd, mx, my, rules))
        return 0.0;
    double low = 0, high = c.base * c.depth;
    if (!carries(c, dLinha, high, nSd, mx, my, rules))
        return std::nullopt;
    // Bisection to 1e-4 cm²: more than fifty halvings never happen from b·h.
    for (int i = 0; i < 80 && high - low > 1e-4; ++i) {
        const double mid = (low + high) / 2;
        (carries(c, dLinha, mid, nSd, mx, my, rules) ? high : low) = mid;
    }
    return high;
}

} // namespace pilarix::engine
