#pragma once
// What the detailed section carries, by strain compatibility over the ultimate planes
// of resistance.h, for the engineer to see beside the design by solicitation zones.
//
//   interactionCurve(section)           the closed N_Rd–M_Rd polygon, every point with its
//                                       strain plane, and N_Rd,max, N_Rd,min
//   axialCapacity(section)              N_Rd,max (uniform 2 ‰) and N_Rd,min (uniform −10 ‰)
//   momentCapacity(section, N)          the positive M_Rd under N, its plane and domain;
//                                       empty when N is outside [N_Rd,min, N_Rd,max]
//   utilisation(section, N, M)          1/λ for the largest λ with λ·(N, M) carried, and
//                                       the point λ·(N, M) where the ray meets the boundary
//   withSteelArea(section, As)          the same layout with every row scaled to a total As
//   requiredSteelArea(section, N, M)    AsCompat: the least total As of the layout that
//                                       carries (N, M); 0 when the concrete alone does,
//                                       empty when not even As = b·h does
//
// The positive moments come from the planes that compress the top face, the negative
// ones from the section turned over (upsideDown): for the program's columns, symmetric
// about mid-depth, they are the mirror image. Units as in resistance.h. Bad data (a
// section that checkSection refuses, a NaN force) raises CalcError; every search is
// a bisection with an iteration cap.

#include "engine/resistance.h"

#include <optional>
#include <vector>

namespace pilarix::engine {

struct CurvePoint {
    double n = 0, m = 0;
    StrainPlane plane; // the ultimate plane of the point, in the section's own faces
};

struct InteractionCurve {
    // With N across and M up the points run clockwise: the top-compressed planes from
    // pure tension to pure compression (M ≥ 0), then the bottom-compressed ones back
    // (M ≤ 0); the last point joins the first. Denser where the curve bends.
    std::vector<CurvePoint> points;
    double nRdMax = 0, nRdMin = 0;
};

struct AxialCapacity {
    double nRdMax = 0; // 0.85 fcd·b·h + As·σs(2 ‰)
    double nRdMin = 0; // −As·fyd
};

struct MomentCapacity {
    double mRd = 0;    // kgf·cm
    double n = 0;      // N of the plane found: the given N to the last bit the search can move
    double t = 0;      // domain parameter of the plane
    StrainPlane plane;
    Domain domain = Domain::D1;
};

struct Utilisation {
    // 1/λ: exactly 1 on the boundary, above 1 outside; 0 for (0, 0); +∞ when no
    // positive multiple of the point is carried (a tension on a section without steel).
    double ratio = 0;
    double nRd = 0, mRd = 0;          // λ·(N, M), when there is such a point
    std::optional<StrainPlane> plane; // the ultimate plane there
};

// pointsPerSide (8 to 100 000) counts the distinct points of the positive side, both
// ends included; the curve has 2·pointsPerSide − 2 points.
InteractionCurve interactionCurve(const ReinforcedSection& section, int pointsPerSide = 161);

AxialCapacity axialCapacity(const ReinforcedSection& section);

std::optional<MomentCapacity> momentCapacity(const ReinforcedSection& section, double nSd);

Utilisation utilisation(const ReinforcedSection& section, double nSd, double mSd);

// Needs a layout with some steel to scale (a CalcError otherwise); As ≥ 0.
ReinforcedSection withSteelArea(const ReinforcedSection& section, double totalArea);

// To 1e-7 cm²; the layout must have some steel to scale unless the concrete alone suffices.
std::optional<double> requiredSteelArea(const ReinforcedSection& layout, double nSd, double mSd);

} // namespace pilarix::engine
