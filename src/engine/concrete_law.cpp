#include "engine/concrete_law.h"

#include "base/calc_error.h"
#include "base/number_text.h"

#include <algorithm>
#include <cmath>

namespace pilarix::engine {

double ConcreteLaw::stress(double e) const
{
    if (!(e > 0))
        return 0;
    if (e >= epsC2)
        return peak();
    return peak() * (1 - std::pow(1 - e / epsC2, n));
}

ConcreteLaw concreteLaw(const Concrete& c, ConcreteRules rules)
{
    const double fck = c.fck / kKgfCm2PerMpa;
    if (!std::isfinite(fck) || !(fck > 0) || !std::isfinite(c.sigcd) || !(c.sigcd > 0))
        throw CalcError("Concreto inválido: fck = " + Str(fck) + " MPa, 0,85 fcd = " + Str(c.sigcd) + " kgf/cm².");
    if (fck > 90)
        throw CalcError("Fck = " + Str(fck)
                        + " MPa, acima de 90 MPa: o diagrama do concreto vai até a classe C90 (Item 8.2.10.1 da ABNT NBR 6118:2014).");
    ConcreteLaw law;
    law.sigcd = c.sigcd;
    if (fck > 50) {
        const double r4 = std::pow((90 - fck) / 100, 4);
        law.n = 1.4 + 23.4 * r4;
        law.epsCu = 2.6 + 35 * r4;
        // At C90 the printed coefficients give εc2 = 2.6005 ‰, a hair above εcu = 2.6 ‰:
        // the plateau cannot start past the ultimate strain, so εc2 stops at εcu (the
        // table of the code prints 2.6 ‰ for both).
        law.epsC2 = std::min(2.0 + 0.085 * std::pow(fck - 50, 0.53), law.epsCu);
    }
    if (rules == ConcreteRules::Nbr2023 && fck > 40)
        law.etaC = std::cbrt(40 / fck);
    return law;
}

} // namespace pilarix::engine
