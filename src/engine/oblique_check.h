#pragma once
// The detailed section of a 2014 column with the moments of both directions together
// (flexão composta oblíqua, 17.2.5), by strain compatibility about any axis:
//
//   - every load case at the top and the base, with the first-order moments of both
//     directions that act there together, and, where a direction has second order,
//     at the intermediate (critical) section with αb·MA + M2d in each direction
//     (15.8.3.3.5);
//   - the envelope of the minimum moments (11.3.3.4.3; with second order 15.3.2): the
//     resisting contour at N_Sd must contain the ellipse whose semi-axes are the total
//     minimum moments of the two directions (M1d,min plus M2d where it applies);
//   - beside each point the simplified interaction of 17.2.5.2, α = 1.2, for comparison.
//
// Mx is the moment of the direction of h (the main window's), My that of b.
//
//   checkOblique(column, result) -> ObliqueCheck

#include "engine/column.h"
#include "engine/concrete_law.h"

#include <string>
#include <utility>
#include <vector>

namespace pilarix::engine {

struct Column2014Result;
struct CaseResult2014;
struct BiaxialSection;

struct ObliquePoint {
    std::string caseName;
    std::string section;        // "topo", "base", "intermediaria"
    double nSd = 0, mx = 0, my = 0;
    double utilisation = 0;     // at fixed N along the ray; +∞ when N is not carried
    double simplified = 0;      // (Mx/M_Rd,xx)^1.2 + (My/M_Rd,yy)^1.2
};

struct MinimumEnvelope {
    std::string caseName;       // the case whose ellipse has the smallest margin
    double semiAxisX = 0, semiAxisY = 0;
    double margin = 0;          // contour radius / ellipse radius, the least: ≥ 1 inside
    bool inside = false;
};

struct ObliqueCheck {
    double nSd = 0;             // the governing case's
    double mRdxx = 0, mRdyy = 0;
    std::vector<std::pair<double, double>> contour; // (Mx, My) at nSd, closed
    std::vector<ObliquePoint> points;
    MinimumEnvelope envelope;   // the worst case's
    double utilisation = 0;     // the largest of the points
    std::vector<Check> failures;
};

// `concrete` chooses ηc (2023) or not (2014). A result not detailed gives an empty check.
ObliqueCheck checkOblique(const ColumnInput& column, const Column2014Result& result,
                          ConcreteRules concrete = ConcreteRules::Nbr2014);

// The same on a section bar by bar, for the cases given (γn and second order in them);
// the contour and the axis capacities are those at the case `governing`, and only
// when `withContour` (the search needs the verdict alone).
ObliqueCheck checkOblique(const BiaxialSection& section, const std::vector<CaseResult2014>& cases, double gammaN,
                          int governing, bool withContour);

// The search's quick answer from the capacities about each axis alone at each case's N
// (M_Rd,xx and M_Rd,yy, both positive): true where every point and every ellipse of
// the minimum moments lies well inside the rhombus they make, and so inside the
// contour; false where only the exact check can tell.
bool surelyCarried(const std::vector<CaseResult2014>& cases, double gammaN,
                   const std::vector<std::pair<double, double>>& capacities);

} // namespace pilarix::engine
