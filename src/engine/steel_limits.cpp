#include "engine/steel_limits.h"

namespace pilarix::engine {

ColumnClass classifyColumn(double base, double depth)
{
    ColumnClass c;
    if (base < depth) {
        c.smallerSide = base;
        c.largerSide = depth;
        c.wall = depth > 5 * base;
    } else {
        c.smallerSide = depth;
        c.largerSide = base;
        c.wall = base > 5 * depth;
    }
    // The steps go by whole centimetres of the smaller side; the last row that
    // matches wins (18.5 cm gives 1.05, not something between).
    static constexpr struct {
        double below, gamma;
    } kSteps[] = {{19, 1.05}, {18, 1.1}, {17, 1.15}, {16, 1.2}, {15, 1.25}, {14, 1.3}, {13, 1.35}};
    if (c.smallerSide >= 19)
        c.gammaN = 1.0;
    for (const auto& s : kSteps)
        if (c.smallerSide < s.below)
            c.gammaN = s.gamma;
    return c;
}

SteelLimits steelLimits(double Nd, double fyd, double Ac, int totalBars)
{
    SteelLimits l;
    l.asMin = 0.15 * Nd / fyd;
    if (0.004 * Ac >= l.asMin)
        l.asMin = 0.004 * Ac;
    l.asMinPerBar = l.asMin / totalBars;
    l.asMax = (0.08 * Ac) / 2;
    return l;
}

} // namespace pilarix::engine
