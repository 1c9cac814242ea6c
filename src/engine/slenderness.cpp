#include "engine/slenderness.h"

#include "engine/rules2014.h"

#include "base/calc_error.h"

#include <algorithm>
#include <cmath>

namespace pilarix::engine {

namespace {
void require(bool ok, const char* what)
{
    if (!ok)
        throw CalcError(what);
}

// The larger end moment as MA ≥ 0, the other signed against it: MB > 0 tensions the
// same face as MA (single curvature), MB < 0 the opposite face (double curvature).
void orderEndMoments(const EndMoments& m, double& MA, double& MB)
{
    const bool topLarger = std::fabs(m.top) >= std::fabs(m.bottom);
    const double a = topLarger ? m.top : m.bottom;
    const double b = topLarger ? m.bottom : m.top;
    MA = std::fabs(a);
    MB = a < 0 ? -b : b;
}
} // namespace

double slendernessIndex(double effectiveLength, double side) { return kSlendernessFactor * effectiveLength / side; }

double minimumFirstOrderMoment(double Nd, double side) { return Nd * (1.5 + 0.03 * side); }

double alphaB(double MA, double MB, double minimumMoment)
{
    // Below the minimum moment the column is designed for M1d,min, constant along
    // its length: no reduction towards the critical section.
    if (MA < minimumMoment || MA == 0)
        return 1.0;
    return std::clamp(0.60 + 0.40 * MB / MA, 0.40, 1.0);
}

double limitSlenderness(double e1, double side, double alphaB)
{
    return std::clamp((25 + 12.5 * e1 / side) / alphaB, 35.0, 90.0);
}

SecondOrderMoment curvatureMoment(double Nd, double nu, double side, double effectiveLength, double alphaB,
                                  double M1)
{
    SecondOrderMoment m;
    m.curvature = std::min(0.005 / (side * (nu + 0.5)), 0.005 / side);
    m.e2 = effectiveLength * effectiveLength / 10 * m.curvature;
    m.secondOrderMoment = Nd * m.e2;
    m.totalMoment = std::max(alphaB * M1 + m.secondOrderMoment, M1);
    return m;
}

SecondOrderMoment stiffnessMoment(double Nd, double side, double effectiveLength, double alphaB, double M1)
{
    // Md,tot = αb M1d,A / (1 − λ²/(120 κ/ν)) with κ = 32 (1 + 5 Md,tot/(h Nd)) ν and
    // λ² = 12 ℓe²/h², cleared of fractions. C ≤ 0 < A, so the discriminant is never
    // negative and the root taken is the one that is not negative.
    const double h = side;
    const double A = 5 * h;
    const double B = h * h * Nd - Nd * effectiveLength * effectiveLength / 320 - 5 * h * alphaB * M1;
    const double C = -Nd * h * h * alphaB * M1;
    const double root = (-B + std::sqrt(B * B - 4 * A * C)) / (2 * A);
    SecondOrderMoment m;
    m.secondOrderMoment = root - alphaB * M1;
    m.e2 = m.secondOrderMoment / Nd;
    m.totalMoment = std::max(root, M1);
    return m;
}

DirectionSlenderness directionSlenderness(const DirectionInput& in, double Nd, double nu, SecondOrderMethod method)
{
    require(in.side > 0, "A dimensão da seção na direção considerada deve ser maior que zero.");
    require(in.effectiveLength > 0, "O comprimento equivalente ℓe deve ser maior que zero.");
    require(Nd > 0, "A esbeltez só se verifica em pilares comprimidos: Nd deve ser maior que zero.");
    require(nu >= 0, "ν deve ser maior ou igual a zero.");
    require(std::isfinite(in.moments.top) && std::isfinite(in.moments.bottom), "Momento de extremidade inválido.");

    DirectionSlenderness d;
    d.side = in.side;
    d.effectiveLength = in.effectiveLength;
    orderEndMoments(in.moments, d.MA, d.MB);
    d.minimumMoment = minimumFirstOrderMoment(Nd, in.side);
    d.firstOrderMoment = std::max(d.MA, d.minimumMoment);
    d.e1 = d.MA / Nd;
    d.lambda = slendernessIndex(in.effectiveLength, in.side);
    d.alphaB = alphaB(d.MA, d.MB, d.minimumMoment);
    d.lambda1 = limitSlenderness(d.e1, in.side, d.alphaB);

    if (d.lambda > 90) {
        d.refusal = checks2014::slendernessAbove90(d.lambda, in.side);
        return d;
    }
    d.secondOrder = d.lambda > d.lambda1;
    if (!d.secondOrder) {
        d.totalMoment = d.firstOrderMoment;
        return d;
    }
    const SecondOrderMoment m =
        method == SecondOrderMethod::ApproximateCurvature
            ? curvatureMoment(Nd, nu, in.side, in.effectiveLength, d.alphaB, d.firstOrderMoment)
            : stiffnessMoment(Nd, in.side, in.effectiveLength, d.alphaB, d.firstOrderMoment);
    d.curvature = m.curvature;
    d.e2 = m.e2;
    d.secondOrderMoment = m.secondOrderMoment;
    d.totalMoment = m.totalMoment;
    return d;
}

ColumnSlenderness columnSlenderness(const ColumnSlendernessInput& in)
{
    require(in.fck > 0, "Fck deve ser maior que zero.");
    require(in.gammaC > 0, "GamaC (coeficiente de minoração do concreto) deve ser maior que zero.");
    require(in.Nd > 0, "A esbeltez só se verifica em pilares comprimidos: Nd deve ser maior que zero.");

    ColumnSlenderness s;
    const GammaN2014 g = gammaN2014(in.base, in.depth);
    s.gammaN = g.gammaN;
    if (g.refusal) {
        s.refusal = g.refusal;
        return s;
    }
    s.Nd = s.gammaN * in.Nd;
    s.nu = s.Nd / (g.area * (in.fck / in.gammaC));

    auto direction = [&](const DirectionInput& d, double side) {
        DirectionInput withGamma = d;
        withGamma.side = side;
        withGamma.moments.top = s.gammaN * d.moments.top;
        withGamma.moments.bottom = s.gammaN * d.moments.bottom;
        return directionSlenderness(withGamma, s.Nd, s.nu, in.method);
    };
    s.alongBase = direction(in.alongBase, in.base);
    s.alongDepth = direction(in.alongDepth, in.depth);
    if (s.alongBase.refusal)
        s.refusal = s.alongBase.refusal;
    else if (s.alongDepth.refusal)
        s.refusal = s.alongDepth.refusal;
    return s;
}

} // namespace pilarix::engine
