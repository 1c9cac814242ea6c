#pragma once
// The section and detailing rules of ABNT NBR 6118:2014 for columns, as values.
// Units: cm, cm², kgf, kgf/cm². The 2001 rules the calculation applies today are in
// steel_limits.h, bar_choice.h, spacing.h, stirrups.h, cover.h and
// supplementary_stirrups.h; docs/decisions.md lists where the two differ.
//
//   gammaN2014(b, h)              γn of 13.2.3 (Tabela 13.1): 1.0 from 19 cm, 1.95 − 0.05 b
//                                 from 14 to 19 cm; below 14 cm or 360 cm², refused
//   detailingLimits2014(input)    every limit of the detailing for one section, steel,
//                                 Nd, bar, stirrup, aggregate and environmental class
//   faceTies2014(L, d', n, φt)    which bars of a face the corners of the stirrup hold
//                                 against buckling (18.2.4)
//   checkDetailing2014(in, arr)   the limits and every rule an arrangement breaks

#include "engine/checks2014.h"
#include "engine/materials.h"
#include "engine/options.h"

#include <optional>
#include <vector>

namespace pilarix::engine {

struct GammaN2014 {
    double smallerSide = 0, area = 0;
    double gammaN = 1;
    std::optional<Check2014> refusal; // smaller side below 14 cm, or Ac below 360 cm²
};

GammaN2014 gammaN2014(double base, double depth);

struct Detailing2014Input {
    double base = 0, depth = 0; // cm
    SteelGrade steel = SteelGrade::CA50A;
    double gammaS = 1.15;
    double Nd = 0;              // kgf, γn included
    double barDiameter = 0;     // φ, cm
    double stirrupDiameter = 0; // φt, cm
    double aggregate = 0;       // dmax, cm; 0 when not given
    ExposureClass exposure = ExposureClass::II;
    double deltaC = 1;          // Δc, cm: 1.0 or more, 0.5 under strict quality control
};

struct Detailing2014Limits {
    double asMin = 0, asMax = 0;               // cm² (17.3.5.3)
    double minimumBar = 1, maximumBar = 0;     // cm (18.4.2.1)
    double minimumFree = 0, maximumAxis = 0;   // cm (18.4.2.2)
    double minimumStirrup = 0;                 // cm (18.4.3)
    double maximumStirrupSpacing = 0;          // cm (18.4.3), not rounded down
    double nominalCover = 0;                   // c_nom, cm (7.4.7)
    double maximumAggregate = 0;               // 1.2 c_nom, cm (7.4.7.6)
    double tieReach = 0;                       // 20 φt, cm (18.2.4)
};

// A non-positive side, bar or stirrup, a negative aggregate, or a Δc below
// 0.5 cm raises CalcError.
Detailing2014Limits detailingLimits2014(const Detailing2014Input& input);

struct FaceTies2014 {
    double axisSpacing = 0, reach = 0; // cm
    std::vector<bool> held;            // bar 1 at element 0; corners always held
    int notHeld = 0;                   // bars that need a supplementary stirrup
};

// A corner holds the bars within 20 φt of it along the face, at most two of them.
// Fewer than two bars on a face raises CalcError.
FaceTies2014 faceTies2014(double faceLength, double dLinha, int bars, double stirrupDiameter);

// A detailed section: its bars per face (corners included), d', the steel provided,
// the stirrup spacing and the cover of the stirrups.
struct Arrangement2014 {
    int barsOnWidthFace = 2, barsOnDepthFace = 2;
    double dLinha = 0;         // cm
    double providedArea = 0;   // cm²
    double stirrupSpacing = 0; // cm
    double cover = 0;          // cm
};

struct Detailing2014Check {
    Detailing2014Limits limits;
    double freeWidth = 0, freeDepth = 0, axisWidth = 0, axisDepth = 0; // cm
    FaceTies2014 widthFace, depthFace;
    std::vector<Check2014> failures; // every broken rule; none stops the others
};

Detailing2014Check checkDetailing2014(const Detailing2014Input& input, const Arrangement2014& arrangement);

} // namespace pilarix::engine
