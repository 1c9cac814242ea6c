#pragma once
// A second, plain computation of the ultimate strain fields of a rectangular section
// with symmetric layers of bars, written from the mechanics and not from the
// program's closed forms: the concrete resultant by exact integration of the
// parabola-rectangle diagram over the depth, the class B steel stress by Newton's
// iteration on its strain law, and the required ratio by scanning the whole ultimate domain for the
// fields in equilibrium. The design tests measure the program against it.

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace pilarix::test::ref {

struct Camada {
    double y; // depth / h from the most compressed face
    double n; // bars in the layer
};

struct Secao {
    double delta = 0.1;
    std::vector<Camada> camadas;
    bool classeB = false;
    double fyd = 0;
    double Es = 0;
};

// Layers of a section with nb bars per width face and na per depth face.
inline std::vector<Camada> camadasDe(double delta, int nb, int na)
{
    std::vector<Camada> c;
    for (int i = 1; i <= na; ++i) {
        const double y = (1 - delta) - (i - 1) * (1 - 2 * delta) / (na - 1);
        c.push_back({y, (i == 1 || i == na) ? double(nb) : 2.0});
    }
    return c;
}

// Strain at depth y: ε(y) = εc - θ·y, per mille, by the pivot of the field.
struct Campo {
    double ec;
    double th;
    double em(double y) const { return ec - th * y; }
};

inline Campo campo(double bx, double delta)
{
    const double L = 3.5 * (1 - delta) / 13.5;
    if (bx <= L) {
        // -10 per mille at depth 1 - δ
        const double th = 10 / (1 - delta - bx);
        return {th * bx, th};
    }
    if (bx <= 1)
        return {3.5, 3.5 / bx};
    // 2 per mille at depth 3/7
    const double th = 14 / (7 * bx - 3);
    return {2 + th * 3.0 / 7.0, th};
}

inline double tensaoConcreto(double e)
{
    if (e <= 0)
        return 0;
    if (e >= 2)
        return 1;
    return e - e * e / 4;
}

struct Concreto {
    double eta;    // ∫ σc/σcd dy over the depth
    double etaLin; // ∫ σc/σcd · y dy
};

// Simpson's rule is exact on each piece where the diagram is one polynomial of degree
// two in y (times y: three), so splitting at ε = 0 and ε = 2 makes it exact.
inline Concreto concreto(const Campo& c)
{
    double pts[4] = {0.0, 1.0, 0.0, 0.0};
    int n = 2;
    for (double alvo : {0.0, 2.0}) {
        if (c.th != 0) {
            const double y = (c.ec - alvo) / c.th;
            if (y > 0 && y < 1)
                pts[n++] = y;
        }
    }
    for (int i = 1; i < n; ++i)
        for (int j = i; j > 0 && pts[j] < pts[j - 1]; --j)
            std::swap(pts[j], pts[j - 1]);
    Concreto r{0, 0};
    for (int k = 0; k + 1 < n; ++k) {
        const double a = pts[k], b = pts[k + 1], m = (a + b) / 2;
        const double fa = tensaoConcreto(c.em(a)), fm = tensaoConcreto(c.em(m)), fb = tensaoConcreto(c.em(b));
        r.eta += (b - a) / 6 * (fa + 4 * fm + fb);
        r.etaLin += (b - a) / 6 * (fa * a + 4 * fm * m + fb * b);
    }
    return r;
}

// Design stress of the steel, kgf/cm², for a strain in per mille.
inline double tensaoAco(const Secao& s, double e)
{
    const double ae = std::fabs(e);
    double sig;
    if (!s.classeB) {
        sig = std::min(ae * s.Es / 1000, s.fyd);
    } else {
        const double ep = 0.7 * s.fyd / s.Es * 1000;
        const double ey = 2 + s.fyd / s.Es * 1000;
        if (ae <= ep) {
            sig = ae * s.Es / 1000;
        } else if (ae >= ey) {
            sig = s.fyd;
        } else {
            // ε = σ/Es + (σ/fyd - 0.7)²/45 rises and is convex in σ on
            // [0.7 fyd, fyd]: Newton's iteration from fyd, where the law gives at
            // least ε, comes down on the root without overshooting it.
            sig = s.fyd;
            for (int k = 0; k < 50; ++k) {
                const double q = sig / s.fyd - 0.7;
                const double f = sig / s.Es + q * q / 45 - ae / 1000;
                const double df = 1 / s.Es + 2 * q / (45 * s.fyd);
                const double passo = f / df;
                sig -= passo;
                if (std::fabs(passo) <= 1e-13 * s.fyd)
                    break;
            }
        }
    }
    return e > 0 ? sig : (e < 0 ? -sig : 0.0);
}

struct Barras {
    double sigMed;  // mean stress of all bars
    double sigMedY; // mean of stress times depth
};

inline Barras barras(const Secao& s, const Campo& c)
{
    double total = 0;
    for (const auto& k : s.camadas)
        total += k.n;
    Barras b{0, 0};
    for (const auto& k : s.camadas) {
        const double sig = tensaoAco(s, c.em(k.y));
        b.sigMed += k.n * sig / total;
        b.sigMedY += k.n * sig * k.y / total;
    }
    return b;
}

struct Estado {
    Concreto c;
    Barras b;
};

inline Estado estado(const Secao& s, double bx)
{
    const Campo f = campo(bx, s.delta);
    return {concreto(f), barras(s, f)};
}

// Residuals of equilibrium of a field with ratio ρ, for (ν, μ) and σcd:
// forces, and moments about the most compressed face.
struct Residuos {
    double forca;
    double momento;
};

inline Residuos residuos(const Estado& e, double nu, double mu, double rho, double sigCd)
{
    return {nu - e.c.eta - rho * e.b.sigMed / sigCd, 0.5 * nu - mu - e.c.etaLin - rho * e.b.sigMedY / sigCd};
}

struct Solucao {
    double rho;
    double betaX;
};

// The smallest ratio ρ ≥ 0 for which some ultimate field balances (ν, μ), and that
// field; nullopt when no field does with steel (the concrete alone is enough).
inline std::optional<Solucao> solucaoNecessaria(const Secao& s, double nu, double mu, double sigCd)
{
    // ρ eliminated between the two equilibrium equations: continuous in βx even
    // where the bars' resultant vanishes.
    auto g = [&](double bx) {
        const Estado e = estado(s, bx);
        return (0.5 * nu - mu - e.c.etaLin) * e.b.sigMed - (nu - e.c.eta) * e.b.sigMedY;
    };
    // Fields from deep lengthening to nearly uniform shortening, finest where the
    // neutral axis crosses the section.
    std::vector<double> xs;
    for (int i = 0; i < 60; ++i)
        xs.push_back(-std::pow(10.0, 3 - 6.0 * i / 59));
    for (int i = 0; i <= 600; ++i)
        xs.push_back(3.0 * i / 600);
    for (int i = 1; i < 80; ++i)
        xs.push_back(std::pow(10.0, 0.5 + 3.5 * i / 79));
    std::sort(xs.begin(), xs.end());

    std::optional<Solucao> melhor;
    double xa = xs[0], ga = g(xa);
    for (std::size_t k = 1; k < xs.size(); ++k) {
        const double xb = xs[k], gb = g(xb);
        if (ga == 0 || ga * gb < 0) {
            double a = xa, b = xb, fa = ga;
            for (int it = 0; it < 60; ++it) {
                const double m = (a + b) / 2, fm = g(m);
                if (fa * fm <= 0) {
                    b = m;
                } else {
                    a = m;
                    fa = fm;
                }
            }
            // Both equations give the same ρ at a root; together they also cover
            // the fields where the bars' mean stress vanishes (all of them yielding
            // half in tension, half in compression).
            const Estado e = estado(s, (a + b) / 2);
            const double forca = nu - e.c.eta, momento = 0.5 * nu - mu - e.c.etaLin;
            const double q = e.b.sigMed * e.b.sigMed + e.b.sigMedY * e.b.sigMedY;
            if (q > 1e-12) {
                const double rho = sigCd * (forca * e.b.sigMed + momento * e.b.sigMedY) / q;
                if (rho >= 0 && (!melhor || rho < melhor->rho))
                    melhor = Solucao{rho, (a + b) / 2};
            }
        }
        xa = xb;
        ga = gb;
    }
    return melhor;
}

inline std::optional<double> taxaNecessaria(const Secao& s, double nu, double mu, double sigCd)
{
    const auto r = solucaoNecessaria(s, nu, mu, sigCd);
    return r ? std::optional<double>(r->rho) : std::nullopt;
}

} // namespace pilarix::test::ref
