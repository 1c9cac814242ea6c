#pragma once
// The section as a column, and the bounds of its longitudinal steel.
//
//   classifyColumn(b, h)   the smaller side, whether the section is a wall (its larger
//                          side exceeds five times the smaller, NBR 6118 18.4.1) and the
//                          additional coefficient γn of thin columns (by whole cm of the
//                          smaller side: 1.0 from 19 cm, 1.05 below 19 ... 1.35 below 13)
//   steelLimits(Nd, fyd, Ac, totalBars)
//                          the minimum steel, the larger of 0.15 Nd/fyd and 0.4 % of Ac,
//                          per bar too, and the maximum outside splices, 4 % of Ac (half
//                          the 8 % of splice regions, NBR 6118 17.3.4.3.2)

namespace pilarix::engine {

struct ColumnClass {
    double smallerSide = 0, largerSide = 0;
    bool wall = false;
    double gammaN = 1;
};

ColumnClass classifyColumn(double base, double depth);

struct SteelLimits {
    double asMin = 0, asMinPerBar = 0, asMax = 0; // cm²
};

SteelLimits steelLimits(double Nd, double fyd, double Ac, int totalBars);

} // namespace pilarix::engine
