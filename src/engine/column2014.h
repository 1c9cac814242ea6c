#pragma once
// A column by ABNT NBR 6118:2014: γn by formula (13.2.3), the minimum first-order
// moment and the local second order in both directions (11.3.3.4.3, 15.8), the
// section designed by solicitation zones in each direction (the same section turned
// for the direction of b), the larger area detailed on the same perimeter
// arrangement, and the detailed section checked by strain compatibility in both
// directions for every load case.
//
//   calculate2014(column, cases, slenderness, questions, memory, state) -> Column2014Result
//
// The direction of h is the main window's: the moment bends the section so that a
// face of width b is compressed (the section's depth is h). The direction of b is
// the same section turned: the faces of nAltura bars are the compressed ones.

#include "engine/column.h"
#include "engine/oblique_check.h"
#include "engine/slenderness.h"

#include <optional>
#include <string>
#include <vector>

namespace pilarix::engine {

// One load case with the first-order moments of both ends in both directions,
// kgf (compression positive) and kgf·cm, before γn. Equal signs at the two ends of
// a direction tension the same face.
struct Case2014 {
    std::string name;
    double Nd = 0;
    double MdTop = 0, MdBase = 0; // direction of h
    double MyTop = 0, MyBase = 0; // direction of b
};

struct Slenderness2014Input {
    double effectiveLengthH = 0, effectiveLengthB = 0; // ℓe, cm; 0: the column's length
    SecondOrderMethod method = SecondOrderMethod::ApproximateCurvature;
    // The check of both directions together (flexão oblíqua, oblique_check.h) is
    // part of the verdict; the search may leave it to the arrangement it puts in.
    bool oblique = true;
};

struct Direction2014 {
    DirectionSlenderness slenderness; // λ, λ1, αb, e1, M1d,min, M2d, Md,tot (γn included)
    double asNec = 0;                 // cm², by solicitation zones (or strain compatibility)
    double utilisation = std::nan(""); // on the detailed section
};

struct CaseResult2014 {
    Case2014 loadCase;
    double nSd = 0;                   // γn·Nd, kgf
    double nu = 0;                    // Nd/(Ac·fcd), γn included
    Direction2014 h, b;
    bool governing = false;
};

struct Column2014Result {
    double gammaN = 1;
    std::vector<CaseResult2014> cases;
    int governingCase = 0;
    char governingDirection = 'h';
    double asNec = 0;                 // the largest of every case and direction, cm²
    ColumnResult detail;              // the governing case detailed in the direction of h
    std::optional<Check> refusal;     // γn or λ > 90: nothing was designed
    std::vector<Check> failures;      // the rules beyond the detail's own: the other
                                      // direction and the other cases, c_nom ≥ φ,
                                      // both directions together
    std::optional<ObliqueCheck> oblique;
    bool ok() const { return !refusal && detail.ok() && failures.empty(); }
};

Column2014Result calculate2014(const ColumnInput& column, const std::vector<Case2014>& cases,
                               const Slenderness2014Input& slenderness, Questions& questions, Memory& memory,
                               MethodState& state, ConcreteRules concrete = ConcreteRules::Nbr2014);

// The effective length of a direction as the column uses it (0 means the length).
double effectiveLength(double given, double columnLength);

} // namespace pilarix::engine
