#pragma once
// The detailed column checked by strain compatibility, independently of the method of
// solicitation zones that designed it: the chosen bars where the detailing put them,
// under the design forces (γn included).
//
//   detailedSection(input, result)      the reinforced section of a detailed calculation
//   verify(section, NSd, MSd, options)  the N_Rd–M_Rd curve (both signs of the moment),
//                                       M_Rd at NSd, N_Rd,max and N_Rd,min, the utilisation
//                                       (1 on the boundary) and AsCompat, the steel area
//                                       the same layout needs for (NSd, MSd)
//   verify(input, result, options)      the same for a detailed calculation; none when the
//                                       calculation stopped before a section was detailed
//
// Units of the program: kgf, kgf·cm, cm².

#include "engine/column.h"
#include "engine/interaction.h"

#include <optional>
#include <utility>
#include <vector>

namespace pilarix::engine {

struct Verification {
    double nSd = 0, mSd = 0;          // the design forces, γn included
    std::optional<double> mRd;        // at nSd; none outside [nRdMin, nRdMax]
    double nRdMax = 0, nRdMin = 0;
    double utilisation = 0;           // a fraction: 1 on the boundary, above 1 outside
    std::optional<double> asCompat;   // none where no amount of steel carries the forces
    std::vector<std::pair<double, double>> curve; // (N, M), closed, clockwise
};

// What to work out besides the utilisation: the curve and AsCompat cost the most.
struct VerificationOptions {
    bool curve = true;
    bool requiredArea = true;
};

std::optional<ReinforcedSection> detailedSection(const ColumnInput& input, const ColumnResult& result);

Verification verify(const ReinforcedSection& section, double nSd, double mSd, const VerificationOptions& options = {});

std::optional<Verification> verify(const ColumnInput& input, const ColumnResult& result,
                                   const VerificationOptions& options = {});

} // namespace pilarix::engine
