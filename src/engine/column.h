#pragma once
// The whole calculation of one column, as the "&Calcula" button runs it: the design
// by solicitation zones, a real bar, the stirrup, the cover (asking where a rule is
// broken, and running the pass again where the correction moved d'), the steel
// limits, the spacing, the supplementary stirrups, the weight and the drawing.
//
//   calculate(input, questions, memory)        -> ColumnResult
//   calculate(input, questions, memory, state) the same on the caller's method
//                                              variables (the window's listing keeps
//                                              what earlier calculations left)
//
// A column in ten lines:
//   engine::ColumnInput in;                       // 20 x 50 cm, 8 bars, CA-50A...
//   in.Nd = 40000; in.Md = 1000000;               // kgf, kgf·cm
//   engine::FixedAnswers answers;                 // correct the cover when asked
//   engine::Memory memory;                        // a fresh start of the method
//   engine::ColumnResult r = engine::calculate(in, answers, memory);
//   r.design.zone, r.design.asNec, r.bar->diameter, r.stirrup.text, r.ok()

#include "engine/checks.h"
#include "engine/geometry.h"
#include "engine/materials.h"
#include "engine/memory.h"
#include "engine/method_state.h"
#include "engine/options.h"
#include "engine/questions.h"

#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace pilarix::engine {

// d' as the engineer gives it: typed (the cover corrections then rewrite the typed
// text, and a repeated pass reads it back), or found from the cover, starting at 3 cm.
struct DLinhaInput {
    bool automatic = false;
    double typed = 0; // cm
};

struct ColumnInput {
    // section, cm
    double base = 20, depth = 50, length = 300;
    double barsOnWidthFace = 2; // nBase: bars on each face of width b, corners included
    int barsOnDepthFace = 4;    // nAltura: bars on each face of depth h, corners included
    DLinhaInput dLinha;
    // design forces before γn: kgf (compression positive) and kgf·cm
    double Nd = 40000, Md = 1000000;
    // materials, kgf/cm²
    double fck = 200, Es = 2100000, gammaC = 1.5, gammaS = 1.15;
    SteelGrade steel = SteelGrade::CA50A;
    // "Outros valores"
    double precision = 0.0001;
    double aggregate = 0;     // largest aggregate, cm
    int maxBarIndex = 11;     // largest longitudinal bar allowed (catalogue index, 4 to 11)
    int fixedBarIndex = 0;    // the bar the engineer fixed (catalogue index 4 to 11); 0: the calculation chooses
    double maxStirrupIndex = 4; // largest stirrup allowed (catalogue index, 1 to 4)
    // cover
    double deltaC = 1; // execution tolerance Δc, cm (1 or 0.5)
    ExposureClass exposure = ExposureClass::II;
    bool correctCoverWithoutAsking = false;
    // stirrups
    StirrupMode stirrupMode = StirrupMode::Predefined;
    int predefinedStirrup = 1; // catalogue index 1 to 4
    bool stirrupsOfBarSteel = false; // "Mesmo tipo de aço"
    // "Definir manualmente" with the stirrup typed by the engineer: taken as it is,
    // nothing asked; the re-check of the final arrangement tells the rules it breaks.
    struct TypedStirrup {
        double diameter = 0; // cm, one of the catalogue's stirrups, which gives the mass
        double spacing = 0;  // cm
    };
    std::optional<TypedStirrup> typedStirrup;
    Hook hook = Hook::Angle45;
    // The rule set; under ABNT NBR 6118:2014 the caller works γn out (13.2.3) and may
    // ask for more steel than this direction's design needs (the other direction's,
    // or the minimum of 17.3.5.3.1).
    RuleSet rules = RuleSet::Nbr2001;
    std::optional<double> gammaN;   // none: the 2001 table by whole cm of the smaller side
    double requiredAreaAtLeast = 0; // cm²
};

// The silent pass of the best-solution search: the stirrup is the candidate's, the
// checks show nothing and only mark the calculation as failed, the cover is
// corrected without asking, and d' is found from the cover.
struct CandidateStirrup {
    double diameter = 0; // cm
    double mass = 0;     // kg/m
};

struct ReferenceField {
    double betaX = 0, eta = 0, etaLin = 0, kapa = 0, lambda = 0;
};

struct DesignResult {
    Concrete concrete;
    Steel steel;
    double dLinha = 0, delta = 0;
    double smallerSide = 0, gammaN = 0;
    double nu = 0, mu = 0;           // reduced by b·h·σcd and b·h²·σcd, γn included
    ReferenceField c1, c2, a, e;     // βx = 0.5 − P, 0.5 + P, 1 − δ, δ
    double niCrit = 0, mi0 = 0, miA = 0, miE = 0, miC = 0, miC1 = 0;
    Zone zone = Zone::None;
    double betaX = 0;                // of the equilibrium field
    double rho = 0;                  // As,tot / Ac
    double asNec = 0;                // cm²
    int totalBars = 0;
};

struct BarChoice {
    int index = 0;          // catalogue index, 4 to 11
    double diameter = 0;    // cm
    double barArea = 0;     // cm²
    double providedArea = 0;// cm², all bars
    double massPerMetre = 0;// kg/m
};

struct StirrupResult {
    double diameter = 0, spacing = 0, massPerMetre = 0;
    double minimumDiameter = 0;
    double hookAllowance = 0, tieHookAllowance = 0; // both hooks together, cm
    std::string text; // "φ5 c/15"
};

struct CoverResult {
    double nominal = 0, effective = 0;
    double stirrupInnerWidth = 0, stirrupInnerDepth = 0, stirrupLength = 0;
};

struct SpacingResult {
    double freeWidth = 0, freeDepth = 0, axisWidth = 0, axisDepth = 0;
    double minimumFree = 0, maximumAxis = 0;
};

struct ColumnResult {
    // The stages reached: a calculation stops at a wall section, at a bar the
    // catalogue cannot give, at an input it cannot use (failure).
    bool designed = false;  // the section was designed (not a wall)
    bool detailed = false;  // bars, stirrup, cover, limits, spacing, weight
    DesignResult design;
    std::optional<BarChoice> bar;
    StirrupResult stirrup;
    CoverResult cover;
    double asMin = 0, asMax = 0;
    SpacingResult spacing;
    int tiesAcrossWidth = 0, tiesAcrossDepth = 0; // supplementary stirrups on each pair of faces
    double excess = 0;      // % of the provided steel
    double steelWeight = 0; // kg of longitudinal steel
    std::optional<SectionGeometry> geometry;
    // Every check that failed, in the order they failed, and the questions asked.
    std::vector<Check> checks;
    int passes = 0;
    // The zones method found no equilibrium: the required area is strain compatibility's.
    bool byStrainCompatibility = false;
    // d' as the cover correction rewrote it in the typed box, when it did.
    std::optional<std::string> dLinhaText;
    // Set when the calculation could not go on; the message names the stage.
    std::optional<std::string> failure;
    // In the silent pass of the search: the arrangement passed every check.
    bool passedSearch = false;
    // The verdict beyond the method's own checks (none of them touches the method's
    // variables): the detailed section under the design forces by strain
    // compatibility (a fraction; NaN before it is detailed or where it cannot be
    // verified), and the rules the final arrangement breaks.
    double utilisation = std::nan("");
    bool carried = true;
    int arrangementFailures = 0;
    // A negative moment was designed by its magnitude (the section is symmetric).
    bool momentAsMagnitude = false;

    // The "Erros" verdict: designed and detailed, no check of the method failed, no
    // failure, the detailed section carries its forces and the final arrangement
    // holds every rule.
    bool ok() const;
    ErrorFlag flag = ErrorFlag::Unset;
};

ColumnResult calculate(const ColumnInput& input, Questions& questions, Memory& memory);
ColumnResult calculate(const ColumnInput& input, Questions& questions, Memory& memory, MethodState& state);

// The design by solicitation zones alone, as the first pass of calculate() makes it
// (d' as typed, or 3 cm when found from the cover): `designed`, `design`, a wall's
// check and `failure` are filled; nothing is asked or told, no bar is chosen.
ColumnResult design(const ColumnInput& input, Memory& memory);

// The silent pass of the best-solution search for one candidate arrangement (the
// bars per face in `input`, the stirrup given): nothing is asked or told, every
// check only marks the arrangement as failed, the cover is corrected at once.
ColumnResult calculateCandidate(const ColumnInput& input, const CandidateStirrup& stirrup, Memory& memory,
                                MethodState& state);

// d' as the cover correction writes it back: the whole part, a point, and the
// fraction scaled by 1e9 then divided by 1e4 (so 4.25 reads "4.25000" and the
// leading zeros of a fraction such as 4.05 are lost: "4.5000"). The program has
// always written it so, and a repeated pass reads d' back from this text.
std::string dLinhaText(double dLinha);

} // namespace pilarix::engine
