#pragma once
// For the design tests: a Program left as the driver leaves it before the zone stages,
// and a plain computation of the ultimate fields from the mechanics (exact integration
// of the parabola-rectangle diagram, the class B curve inverted by bisection).

#include "driver/program.h"
#include "support/tolerance.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace pilarix::test {

// 20 x 50 cm, fck = 200 kgf/cm², γc = 1.4, γs = 1.15, Es = 2100000 kgf/cm², γn = 1, P = 0.0001.
struct Projeto {
    SilentDialogs d;
    Program p{d};
    explicit Projeto(const std::string& aco = "Aço CA-50A", double dLinha = 3, double nBase = 2, int nAltura = 4)
    {
        p.Form1.Combo1.Text = aco;
        p.Fck = 200, p.GamaC = 1.4, p.GamaS = 1.15, p.Es = 2100000, p.GamaN = 1, p.Precisao = 0.0001;
        p.Base = 20, p.Altura = 50, p.dLinha = dLinha, p.nBase = nBase;
        p.nAltura = static_cast<std::int16_t>(nAltura);
        p.fcd = p.Fck / p.GamaC, p.SigCd = 0.85 * p.fcd, p.Ac = 1000, p.MeiaAltura = 25, p.MeioD = 0.5;
        p.Aço04();
        p.Delta = p.Delta2 = p.DeltaD = p.dLinha / p.Altura;
        p.SArran1R03();
    }
    // The zone stages and the ratio for (ν, μ), in the driver's order.
    Program& dimensiona(double nu, double mu)
    {
        p.Ni = nu, p.Mi = mu, p.Rho = 0;
        for (auto etapa : {&Program::SNiCrit06, &Program::SConstZ10, &Program::SMiACEC13, &Program::SMiZero14,
                           &Program::Szona15})
            (p.*etapa)();
        if (nu != 0 || mu != 0)
            p.SRO16();
        return p;
    }
};

namespace ref {

// The strain per mille at depth y (/h) of the ultimate field βx: ε(y) = ec - th·y, with
// 10 ‰ of lengthening at 1 - δ, 3.5 ‰ at the top, or 2 ‰ at 3/7.
struct Campo {
    double ec, th;
    double em(double y) const { return ec - th * y; }
};
inline Campo campo(double bx, double delta)
{
    if (bx <= 3.5 * (1 - delta) / 13.5)
        return {10 * bx / (1 - delta - bx), 10 / (1 - delta - bx)};
    if (bx <= 1)
        return {3.5, 3.5 / bx};
    return {2 + 6 / (7 * bx - 3), 14 / (7 * bx - 3)};
}

// η = ∫σc/σcd dy and η' = ∫σc/σcd·y dy: Simpson's rule is exact between the depths
// where ε = 0 and ε = 2.
inline std::pair<double, double> concreto(const Campo& c)
{
    auto sigma = [&](double y) { const double e = c.em(y); return e <= 0 ? 0 : e >= 2 ? 1 : e - e * e / 4; };
    std::vector<double> ys{0, 1};
    for (double y : {c.ec / c.th, (c.ec - 2) / c.th})
        if (y > 0 && y < 1)
            ys.push_back(y);
    std::sort(ys.begin(), ys.end());
    double eta = 0, etaLin = 0;
    for (std::size_t k = 0; k + 1 < ys.size(); ++k) {
        const double a = ys[k], b = ys[k + 1], m = (a + b) / 2;
        eta += (b - a) / 6 * (sigma(a) + 4 * sigma(m) + sigma(b));
        etaLin += (b - a) / 6 * (sigma(a) * a + 4 * sigma(m) * m + sigma(b) * b);
    }
    return {eta, etaLin};
}

// The mean stress of the bars of p, and of stress times depth, in the field βx.
inline std::pair<double, double> barras(const Program& p, bool classeB, double bx)
{
    const Campo f = campo(bx, p.Delta);
    double med = 0, medY = 0;
    for (int i = 0; i < p.nAltura; ++i) {
        const double ae = std::fabs(f.em(p.YRel(i)));
        double sig = std::min(ae * p.Es / 1000, p.fyd);
        if (classeB && ae > 700 * p.fyd / p.Es && ae < 2 + 1000 * p.fyd / p.Es) {
            double lo = 0.7 * p.fyd, hi = p.fyd; // ε = σ/Es + (σ/fyd - 0.7)²/45
            for (int k = 0; k < 100; ++k) {
                const double s = (lo + hi) / 2, q = s / p.fyd - 0.7;
                (1000 * (s / p.Es + q * q / 45) < ae ? lo : hi) = s;
            }
            sig = (lo + hi) / 2;
        }
        sig = std::copysign(sig, f.em(p.YRel(i))) * p.NBarCam(i) / p.NBarrasTotal;
        med += sig;
        medY += sig * p.YRel(i);
    }
    return {med, medY};
}

// What the field βx with ratio ρ leaves of (ν, μ): forces, and moments about the
// compressed face.
inline std::pair<double, double> residuos(const Program& p, bool classeB, double bx, double rho)
{
    const auto [eta, etaLin] = concreto(campo(bx, p.Delta));
    const auto [med, medY] = barras(p, classeB, bx);
    return {p.Ni - eta - rho * med / p.SigCd, 0.5 * p.Ni - p.Mi - etaLin - rho * medY / p.SigCd};
}

} // namespace ref
} // namespace pilarix::test
