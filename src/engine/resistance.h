#pragma once
// The detailed section as strain compatibility sees it, independently of the method
// of solicitation zones: a b x h rectangle with rows of bars, the ultimate strain
// planes of NBR 6118 and the forces of any plane.
//
//   rectangularColumn(b, h, d', nBase, nAltura, bar area, concrete, steel)
//                                  the program's perimeter layout as rows of bars
//   ultimatePlane(section, t)      the ultimate plane of domain parameter t, from pure
//                                  tension (t = 0) to pure compression (t = 3), top compressed
//   domainOf(section, t)           the NBR 6118 domain (1, 2, 3, 4, 4a, 5) of that plane
//   planeForces(section, plane)    N and M of any plane: the concrete integrated in
//                                  closed form, the steel row by row with steelStress
//   upsideDown(section)            the same section turned over: its top-compressed
//                                  planes are the bottom-compressed planes of the original
//   checkSection(section)          a CalcError naming the first value that is not a section
//
// Units: cm, cm², kgf, kgf·cm, kgf/cm²; strains in ‰, shortening positive; N positive
// in compression, M about mid-depth (h/2), positive when it compresses the top face.
// Every function taking a section checks it first and raises CalcError on bad data.

#include "engine/materials.h"

#include <vector>

namespace pilarix::engine {

struct BarRow {
    double depth = 0; // centre of the row below the top face, cm
    double area = 0;  // all the steel of the row, cm²
};

struct ReinforcedSection {
    double width = 0, depth = 0; // b and h, cm
    Concrete concrete;
    Steel steel;
    std::vector<BarRow> rows; // any order; the gross concrete area is not reduced by the bars
};

// A linear strain distribution over the depth, given by its strains (‰) at the two faces.
struct StrainPlane {
    double top = 0;    // at depth 0
    double bottom = 0; // at depth h
    friend bool operator==(const StrainPlane&, const StrainPlane&) = default;
};

struct SectionForces {
    double n = 0; // kgf, compression positive
    double m = 0; // kgf·cm about h/2, positive when it compresses the top face
};

// nAltura rows equally spaced from d' to h − d'; the two outer rows hold nBase bars,
// each inner row two (one on each side face); every bar has the area barArea.
// nBase must be a whole number from 2, nAltura from 2 to 500, 0 < d' < h/2, barArea > 0.
ReinforcedSection rectangularColumn(double b, double h, double dLinha, double nBase, int nAltura, double barArea,
                                    const Concrete& concrete, const Steel& steel);

// The domain parameter t runs over the ultimate planes of a moment that compresses the
// top face; the axial force of the plane grows with t:
//   [0, 1]  pivot A: 10 ‰ of lengthening at the row farthest from the top, the top
//           going from −10 to 3.5 ‰ (domains 1 and 2);
//   [1, 2]  pivot B: 3.5 ‰ at the top, the neutral axis going down linearly from the
//           end of domain 2 to the bottom face (domains 3, 4 and 4a);
//   [2, 3]  pivot C: 2 ‰ at 3h/7 from the top, the bottom going from 0 to 2 ‰ (domain 5).
// t = 0 is the uniform lengthening of 10 ‰, t = 3 the uniform shortening of 2 ‰.
// A section without rows takes its bottom face as the farthest row.
inline constexpr double kPivotBStart = 1, kPivotCStart = 2, kPureCompression = 3;

// t is clamped to [0, 3]; NaN raises CalcError.
StrainPlane ultimatePlane(const ReinforcedSection& section, double t);

enum class Domain { D1, D2, D3, D4, D4a, D5 };
Domain domainOf(const ReinforcedSection& section, double t);

SectionForces planeForces(const ReinforcedSection& section, const StrainPlane& plane);

// The section turned over (row depths h − depth). A plane of the turned section is
// the plane {bottom, top} of the original, and its moment is the opposite.
ReinforcedSection upsideDown(const ReinforcedSection& section);

void checkSection(const ReinforcedSection& section);

namespace detail {
// The unchecked versions, for searches that have checked the section once.
double farthestRowDepth(const ReinforcedSection& s);
StrainPlane ultimatePlane(const ReinforcedSection& s, double farthestRow, double t);
SectionForces planeForces(const ReinforcedSection& s, const StrainPlane& plane);
} // namespace detail

} // namespace pilarix::engine
