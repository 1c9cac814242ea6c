#pragma once
// What the detailed section carries under N with moments about both axes
// (flexão composta oblíqua, Item 17.2.5 da ABNT NBR 6118:2014), by strain
// compatibility over the ultimate planes of biaxial_section.h at every angle of the
// neutral axis. Axes, signs, angles (in turns) and units as there.
//
//   axialRange(section)                   N_Rd,min (uniform −10 ‰) and N_Rd,max (uniform εc2)
//   momentContour(section, N)             the closed curve of (M_Rd,x, M_Rd,y) at N
//   axisCapacities(section, N)            M_Rd,xx and M_Rd,yy: each moment alone, positive side
//   utilisationAtN(section, N, Mx, My)    the factor to the contour along the ray from the
//                                         moment origin, at the fixed N
//   minimumMomentMargin(section, N, a, b) how far the contour lies outside the ellipse
//                                         of the minimum moments (Mx/a)² + (My/b)² = 1
//   simplifiedInteraction(section, N, Mx, My)
//                                         (Mx/M_Rd,xx)^α + (My/M_Rd,yy)^α, α = 1.2 (17.2.5.2)
//
// At a fixed N every angle of the neutral axis has one ultimate plane carrying N
// exactly (the plane parameter t found by a bracketed search, N growing with t), and
// its two moments are a point of the contour. The contour is the resisting moments at
// that N; a point (N, Mx, My) is carried when its moments lie inside it.
//
// Utilisation at fixed N. Unlike the uniaxial `utilisation` of interaction.h, which
// scales N with M, this one keeps N: the ray runs from (0, 0) through (Mx, My) in the
// moment plane at N_Sd, meets the contour at the radius R, and the ratio is
// |(Mx, My)|/R: exactly 1 on the contour, above 1 outside, 0 for zero moments. With
// My = 0 it is Mx over interaction.h's momentCapacity(...)->mRd of the same layout.
// When N_Sd lies outside [N_Rd,min, N_Rd,max] the ratio is +∞ (nCarried false).
// The ray needs the moment origin inside the contour, which holds when the bars'
// centre of area is the centre of the rectangle (every layout of the program): a
// uniform strain then carries any N of the range without moment. Other layouts raise
// CalcError in the functions that follow rays.
//
// Bad data (a section that checkSection refuses, a NaN force, semi-axes that are not
// positive) raises CalcError; every search has an iteration cap.

#include "engine/biaxial_section.h"

#include <optional>
#include <vector>

namespace pilarix::engine {

struct AxialRange {
    double nRdMin = 0, nRdMax = 0; // kgf
};

struct ContourPoint {
    double mx = 0, my = 0; // kgf·cm
    double angle = 0;      // turns: the direction of the plane's greatest shortening
    double t = 0;          // the plane's parameter (biaxial_section.h)
};

struct MomentContour {
    // False when N_Sd is outside [N_Rd,min, N_Rd,max]: then there are no points.
    bool inRange = false;
    double nSd = 0;
    AxialRange range;
    // Counter-clockwise with Mx across and My up, by the angle of the plane from 0;
    // the last point joins the first. At least 72 points, one at every quarter turn,
    // no two neighbours more than 5° apart as seen from the origin (where the contour
    // has a size).
    std::vector<ContourPoint> points;
};

struct AxisCapacities {
    bool inRange = false;
    double mRdxx = 0; // kgf·cm, the largest Mx > 0 with My = 0 at N
    double mRdyy = 0; // kgf·cm, the largest My > 0 with Mx = 0 at N
};

struct BiaxialUtilisation {
    bool nCarried = false; // N_Sd within [N_Rd,min, N_Rd,max]
    double ratio = 0;      // |M_Sd| / R; 0 for zero moments, +∞ when N is not carried
    // The contour point on the ray (absent for zero moments or N not carried).
    std::optional<ContourPoint> boundary;
};

struct EnvelopeMargin {
    bool inRange = false;
    // min over directions of (contour radius / ellipse radius): ≥ 1 when the whole
    // ellipse lies inside the contour; 0 when N is not carried.
    double margin = 0;
    double direction = 0; // turns in the (Mx, My) plane from +Mx toward +My, where it is least
    double mx = 0, my = 0; // the contour point in that direction
};

struct SimplifiedInteraction {
    bool inRange = false;
    double value = 0;             // (|Mx|/M_Rd,xx)^α + (|My|/M_Rd,yy)^α; +∞ when N is not carried
    double mRdxx = 0, mRdyy = 0;  // the capacities on the side of each moment's sign
};

AxialRange axialRange(const BiaxialSection& section);

MomentContour momentContour(const BiaxialSection& section, double nSd);

AxisCapacities axisCapacities(const BiaxialSection& section, double nSd);

BiaxialUtilisation utilisationAtN(const BiaxialSection& section, double nSd, double mx, double my);

// a and b: the semi-axes M1d,min,xx and M1d,min,yy (kgf·cm), both positive.
EnvelopeMargin minimumMomentMargin(const BiaxialSection& section, double nSd, double a, double b);
// The same on a contour already worked out at its N (momentContour of this section).
EnvelopeMargin minimumMomentMargin(const BiaxialSection& section, const MomentContour& contour, double a, double b);

SimplifiedInteraction simplifiedInteraction(const BiaxialSection& section, double nSd, double mx, double my,
                                            double exponent = 1.2);

} // namespace pilarix::engine
