#pragma once
// The design stress–strain law of the concrete by class (NBR 6118:2014, 8.2.10.1 and
// 17.2.2), for the check by strain compatibility:
//
//   σc = ηc · 0.85 fcd · [1 − (1 − εc/εc2)ⁿ]   for 0 ≤ εc ≤ εc2
//   σc = ηc · 0.85 fcd                          for εc2 ≤ εc ≤ εcu
//
//   up to C50:  n = 2, εc2 = 2 ‰, εcu = 3.5 ‰ (the law resistance.cpp integrates);
//   C50 to C90: n   = 1.4 + 23.4·[(90 − fck)/100]⁴
//               εc2 = 2.0 ‰ + 0.085 ‰·(fck − 50)^0.53
//               εcu = 2.6 ‰ + 35 ‰·[(90 − fck)/100]⁴          (fck in MPa)
//
// The whole section shortened pivots at (εcu − εc2)/εcu of the depth from the most
// compressed face (3h/7 up to C50). With the 2023 rule set the stress is multiplied
// by ηc = (40/fck)^(1/3) above 40 MPa (1 at or below).
//
//   concreteLaw(concrete, rules)   the law of a designed concrete; CalcError for an
//                                  fck that is not positive or is above 90 MPa

#include "engine/materials.h"

namespace pilarix::engine {

enum class ConcreteRules { Nbr2014, Nbr2023 };

struct ConcreteLaw {
    double sigcd = 0;   // 0.85 fcd, kgf/cm²
    double etaC = 1;    // ηc: 1 under the 2014 rules
    double n = 2;       // exponent of the parabola
    double epsC2 = 2;   // ‰, strain at the start of the plateau
    double epsCu = 3.5; // ‰, ultimate strain in bending

    double peak() const { return etaC * sigcd; } // the stress of the plateau
    // The pivot C as a fraction of the depth from the most compressed face.
    double pivotCDepth() const { return (epsCu - epsC2) / epsCu; }
    // Stress (kgf/cm²) at the strain e (‰, shortening positive); 0 in lengthening.
    double stress(double e) const;
};

// 1 MPa is exactly 10 kgf/cm² throughout the program (the report and the checks say so).
inline constexpr double kKgfCm2PerMpa = 10;

ConcreteLaw concreteLaw(const Concrete& concrete, ConcreteRules rules = ConcreteRules::Nbr2014);

} // namespace pilarix::engine
