#pragma once
// A column under several load cases (the combinations of a storey, the envelope of
// the frame analysis): every case designed from a fresh start of the method, the one
// that needs the most steel detailed, and the detailed section verified for them all.
//
//   calculateCases(column, cases, questions)          -> CasesResult
//   calculateCases(column, cases, questions, state)   the same on the caller's
//                                                     method variables (the governing
//                                                     case's calculation leaves them)
//
// The governing case is the one with the largest required area (the first of equal
// ones); its calculation asks and tells as a single column's does. A case the
// detailed section does not carry (utilisation above 100 %) is a failed check that
// names it. One case is exactly a single column's calculation with a fresh Memory.

#include "engine/column.h"
#include "engine/verification.h"

#include <string>
#include <vector>

namespace pilarix::engine {

struct LoadCase {
    std::string name;
    double Nd = 0, Md = 0; // kgf (compression positive) and kgf·cm, before γn
};

struct CaseResult {
    LoadCase loadCase;
    ColumnResult design;     // its design by zones alone
    double utilisation = 0;  // on the detailed section; NaN where it could not be verified
    bool governing = false;
};

struct CasesResult {
    std::vector<CaseResult> cases;
    int governing = 0;                        // index into cases
    ColumnResult detail;                      // the governing case, calculated in full
    std::optional<Verification> verification; // of the governing case: curve, M_Rd, AsCompat
    std::vector<Check> failures;              // the cases not carried, one check each
    // Detailed, every check passed, and every case carried.
    bool ok() const { return detail.ok() && failures.empty(); }
};

CasesResult calculateCases(const ColumnInput& column, const std::vector<LoadCase>& cases, Questions& questions);
CasesResult calculateCases(const ColumnInput& column, const std::vector<LoadCase>& cases, Questions& questions,
                           MethodState& state);

// The utilisation of each case on a detailed section (γn as the design took it).
std::vector<double> caseUtilisations(const ReinforcedSection& section, double gammaN,
                                     const std::vector<LoadCase>& cases);

} // namespace pilarix::engine
