#pragma once
// Slenderness and local second-order effects of a column braced at both ends without
// transverse load, by ABNT NBR 6118:2014 (11.3.3.4.3, 15.6, 15.8.1 to 15.8.3.3).
//
// Units as everywhere in the engine: cm, kgf (compression positive), kgf·cm, kgf/cm².
// The formulas are homogeneous in force, so kN and kN·cm give the same numbers
// scaled by 100 (1 kN = 100 kgf).
//
// One direction is the bending in which the section's depth is `side` (h): the 20 cm
// direction of a 20 × 50 cm column bends about the axis parallel to its 50 cm side.
//
//   slendernessIndex(ℓe, h)        λ = 3.46 ℓe / h
//   minimumFirstOrderMoment(Nd, h) M1d,min = Nd (1.5 + 0.03 h), h in cm, kgf·cm
//   alphaB(MA, MB, M1d,min)        0.60 + 0.40 MB/MA within 0.40 to 1.0; 1.0 when
//                                  |MA| < M1d,min
//   limitSlenderness(e1, h, αb)    λ1 = (25 + 12.5 e1/h)/αb within 35 to 90
//   curvatureMoment(...)           Md,tot by the approximate curvature (15.8.3.3.2):
//                                  1/r = 0.005 / (h (ν + 0.5)) ≤ 0.005/h,
//                                  Md,tot = αb M1d,A + Nd ℓe²/10 · 1/r ≥ M1d,A
//   stiffnessMoment(...)           Md,tot by the approximate stiffness κ (15.8.3.3.3):
//                                  the positive root of A M² + B M + C = 0 with
//                                  A = 5h [cm], B = h² Nd − Nd ℓe²/320 − 5h αb M1d,A
//                                  [kgf·cm²], C = −Nd h² αb M1d,A [kgf²·cm³], so that
//                                  A M², B M and C are all kgf²·cm³; ≥ M1d,A
//   directionSlenderness(...)      all of it for one direction, with the refusal of
//                                  λ > 90
//   columnSlenderness(input)       γn (13.2.3), ν and both directions of a column
//
// A column in a few lines (the textbook's 20 × 50 cm intermediate column):
//   engine::ColumnSlendernessInput in;
//   in.base = 20; in.depth = 50; in.Nd = 140000;  // kgf
//   in.fck = 300; in.gammaC = 1.4;                // kgf/cm²
//   in.alongBase.effectiveLength = in.alongDepth.effectiveLength = 280;
//   engine::ColumnSlenderness s = engine::columnSlenderness(in);
//   s.alongBase.totalMoment                       // 531 900 kgf·cm = 5319 kN·cm

#include "engine/checks2014.h"

#include <optional>

namespace pilarix::engine {

enum class SecondOrderMethod {
    ApproximateCurvature, // 15.8.3.3.2
    ApproximateStiffness, // 15.8.3.3.3 (κ)
};

// λ = 3.46 ℓe/h: the radius of gyration of a rectangle, h/√12, with √12 taken as the
// 3.46 that the standard's worked figures and the textbooks print.
inline constexpr double kSlendernessFactor = 3.46;

// The first-order design moments at the two ends, kgf·cm; equal signs tension the
// same face. Which end is which does not matter: MA is the larger in magnitude.
struct EndMoments {
    double top = 0, bottom = 0;
};

struct DirectionInput {
    double side = 0;            // h, the depth of the section in this direction, cm
    double effectiveLength = 0; // ℓe, cm
    EndMoments moments;         // kgf·cm, γn included
};

struct DirectionSlenderness {
    double side = 0, effectiveLength = 0;
    double lambda = 0, lambda1 = 0, alphaB = 1;
    double e1 = 0;            // |MA| / Nd, cm: the first-order eccentricity, the minimum moment left out
    double MA = 0, MB = 0;    // MA ≥ 0, the larger end moment; MB signed against it, kgf·cm
    double minimumMoment = 0; // M1d,min, kgf·cm
    double firstOrderMoment = 0; // M1d,A used: the larger of |MA| and M1d,min, kgf·cm
    bool secondOrder = false; // λ1 < λ ≤ 90
    double curvature = 0;     // 1/r, 1/cm (the curvature method only)
    double e2 = 0;            // cm
    double secondOrderMoment = 0; // M2d, kgf·cm
    double totalMoment = 0;   // Md,tot at the critical section, kgf·cm
    std::optional<Check2014> refusal; // λ > 90: nothing past λ, λ1 and αb is filled
};

double slendernessIndex(double effectiveLength, double side);
double minimumFirstOrderMoment(double Nd, double side);
// MA ≥ 0 and MB signed as in DirectionSlenderness.
double alphaB(double MA, double MB, double minimumMoment);
double limitSlenderness(double e1, double side, double alphaB);

struct SecondOrderMoment {
    double curvature = 0; // 1/cm; 0 for the κ method, which has none of its own
    double e2 = 0;        // cm
    double secondOrderMoment = 0;
    double totalMoment = 0;
};

// M1 is M1d,A (the larger of |MA| and M1d,min), ν = Nd / (Ac fcd).
SecondOrderMoment curvatureMoment(double Nd, double nu, double side, double effectiveLength, double alphaB,
                                  double M1);
SecondOrderMoment stiffnessMoment(double Nd, double side, double effectiveLength, double alphaB, double M1);

// Nd in kgf with γn; a non-positive Nd, side or ℓe raises CalcError.
DirectionSlenderness directionSlenderness(const DirectionInput& direction, double Nd, double nu,
                                          SecondOrderMethod method);

struct ColumnSlendernessInput {
    double base = 0, depth = 0; // cm
    double Nd = 0;              // kgf, before γn
    double fck = 0, gammaC = 1.4;
    // Bending in which h is the base, and in which h is the depth; moments before γn.
    DirectionInput alongBase, alongDepth; // their `side` is taken from base and depth
    SecondOrderMethod method = SecondOrderMethod::ApproximateCurvature;
};

struct ColumnSlenderness {
    double gammaN = 1;
    double Nd = 0; // kgf, γn included
    double nu = 0; // Nd / (Ac fcd)
    DirectionSlenderness alongBase, alongDepth;
    // γn's refusal (both directions left empty), or the first direction refused.
    std::optional<Check2014> refusal;
    bool ok() const { return !refusal; }
};

// γn multiplies Nd and the end moments before anything else. Non-positive sides, Nd,
// fck, γc or ℓe raise CalcError.
ColumnSlenderness columnSlenderness(const ColumnSlendernessInput& input);

} // namespace pilarix::engine
