#include "engine/biaxial_section.h"

#include "base/calc_error.h"
#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>

namespace pilarix::engine {

namespace {

constexpr double kMaxBars = 500; // as rectangularColumn: the design's layers stop at 500

[[noreturn]] void invalid(const std::string& what) { throw CalcError("Seção inválida: " + what + "."); }

bool positive(double x) { return std::isfinite(x) && x > 0; }

// count positions from the centre along a face of length `extent`, d' from its ends,
// ascending, each one the exact mirror of its partner (the middle one at 0).
std::vector<double> positions(double extent, double dLinha, int count)
{
    const double spacing = (extent - 2 * dLinha) / (count - 1);
    std::vector<double> p(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const int j = count - 1 - i;
        double at;
        if (2 * i + 1 == count)
            at = 0;
        else if (i < j)
            at = -(extent / 2 - (dLinha + i * spacing));
        else
            at = extent / 2 - (dLinha + j * spacing);
        p[static_cast<std::size_t>(i)] = at;
    }
    return p;
}

// The chord of the rectangle on the line v·p = u: its length and its middle.
struct Chord {
    double length = 0, x = 0, y = 0;
};

Chord chordAt(double b, double h, Direction v, double u)
{
    // Points u·v + s·w with w = (−vy, vx); each pair of faces bounds s unless the line
    // runs parallel to them.
    double lo = -INFINITY, hi = INFINITY;
    auto bound = [&](double a, double c, double k) { // s between a/k and c/k
        double s1 = a / k, s2 = c / k;
        if (s1 > s2)
            std::swap(s1, s2);
        lo = std::max(lo, s1);
        hi = std::min(hi, s2);
    };
    if (v.y != 0) // x = u·vx − s·vy within ±b/2
        bound(u * v.x - b / 2, u * v.x + b / 2, v.y);
    if (v.x != 0) // y = u·vy + s·vx within ±h/2
        bound(-h / 2 - u * v.y, h / 2 - u * v.y, v.x);
    // At a corner the two bounds meet (or cross by rounding): the middle is the corner,
    // which the chords next to it run linearly to.
    const double s = lo + (hi - lo) / 2;
    return {std::max(hi - lo, 0.0), u * v.x - s * v.y, u * v.y + s * v.x};
}

// ∫₀¹ (s0 + (s1 − s0)·t)ⁿ tᵏ dt for k = 0, 1, 2, with 0 ≤ s ≤ 1.
std::array<double, 3> powerMoments(double s0, double s1, double n)
{
    const double ds = s1 - s0;
    if (n == 2) // the law up to C50: a polynomial, in closed form
        return {s0 * s0 + s0 * ds + ds * ds / 3, s0 * s0 / 2 + 2 * s0 * ds / 3 + ds * ds / 4,
                s0 * s0 / 3 + s0 * ds / 2 + ds * ds / 5};
    if (std::fabs(ds) <= 0.35 * std::max(s0, s1)) {
        // s stays well away from 0, where sⁿ is not smooth: 8-point Gauss–Legendre is
        // exact to rounding there (the nearest singularity lies two lengths away).
        static constexpr std::array<double, 4> x{0.1834346424956498, 0.5255324099163290, 0.7966664774136267,
                                                 0.9602898564975363};
        static constexpr std::array<double, 4> w{0.3626837833783620, 0.3137066458778873, 0.2223810344533745,
                                                 0.1012285362903763};
        std::array<double, 3> r{0, 0, 0};
        for (std::size_t i = 0; i < 4; ++i)
            for (const double sign : {-1.0, 1.0}) {
                const double t = (1 + sign * x[i]) / 2;
                const double f = w[i] / 2 * std::pow(s0 + ds * t, n);
                r[0] += f;
                r[1] += f * t;
                r[2] += f * t * t;
            }
        return r;
    }
    // Otherwise the antiderivative in s; the cancellation is at most (1/0.35)³.
    auto a = [&](double j) { return (std::pow(s1, n + j) - std::pow(s0, n + j)) / (n + j); };
    const double a1 = a(1), a2 = a(2), a3 = a(3);
    return {a1 / ds, (a2 - s0 * a1) / (ds * ds), (a3 - 2 * s0 * a2 + s0 * s0 * a1) / (ds * ds * ds)};
}

// The concrete of a plane whose strain is top + g·δ at the depth δ = uTop − v·p below
// the most compressed corner (H the depth of the opposite corner). Along δ the chord
// of the rectangle has a length and a middle linear between the corners, and the
// stress is zero, the parabola or the plateau between the strains 0 and εc2: each
// piece is integrated exactly.
BiaxialForces concreteForces(const BiaxialSection& s, Direction v, double uTop, double H, double top, double g)
{
    const ConcreteLaw& law = s.concrete;
    std::array<double, 6> cuts{0, s.width * std::fabs(v.x), s.depth * std::fabs(v.y), H, H, H};
    std::size_t nCuts = 4;
    if (g != 0)
        for (const double y : {-top / g, (law.epsC2 - top) / g})
            if (y > 0 && y < H)
                cuts[nCuts++] = y;
    std::sort(cuts.begin(), cuts.begin() + static_cast<std::ptrdiff_t>(nCuts));

    double n = 0, mx = 0, my = 0;
    for (std::size_t i = 0; i + 1 < nCuts; ++i) {
        const double a = cuts[i], c = cuts[i + 1], len = c - a;
        if (!(len > 0))
            continue;
        const double em = top + g * (a + len / 2);
        if (em <= 0)
            continue;
        std::array<double, 3> sk{1, 0.5, 1.0 / 3}; // ∫ σ/peak · tᵏ dt over the piece
        if (em < law.epsC2) {
            const double s0 = std::clamp(1 - (top + g * a) / law.epsC2, 0.0, 1.0);
            const double s1 = std::clamp(1 - (top + g * c) / law.epsC2, 0.0, 1.0);
            const std::array<double, 3> ik = powerMoments(s0, s1, law.n);
            for (std::size_t k = 0; k < 3; ++k)
                sk[k] -= ik[k];
        }
        const Chord ca = chordAt(s.width, s.depth, v, uTop - a), cb = chordAt(s.width, s.depth, v, uTop - c);
        const double l0 = ca.length, dl = cb.length - ca.length;
        const double dx = cb.x - ca.x, dy = cb.y - ca.y;
        n += len * (l0 * sk[0] + dl * sk[1]);
        mx += len * (l0 * ca.y * sk[0] + (l0 * dy + dl * ca.y) * sk[1] + dl * dy * sk[2]);
        my += len * (l0 * ca.x * sk[0] + (l0 * dx + dl * ca.x) * sk[1] + dl * dx * sk[2]);
    }
    const double k = law.peak();
    return {k * n, k * mx, k * my};
}

void addBar(BiaxialForces& f, const PlacedBar& bar, double sigma)
{
    const double force = bar.area * sigma;
    f.n += force;
    f.mx += force * bar.y;
    f.my += force * bar.x;
}

} // namespace

void checkSection(const BiaxialSection& s)
{
    if (!positive(s.width))
        invalid("a largura b deve ser positiva (b = " + Str(s.width) + ")");
    if (!positive(s.depth))
        invalid("a altura h deve ser positiva (h = " + Str(s.depth) + ")");
    const ConcreteLaw& c = s.concrete;
    if (!positive(c.peak()) || !positive(c.n) || !positive(c.epsC2) || !positive(c.epsCu) || c.epsC2 > c.epsCu)
        invalid("o diagrama do concreto deve ter tensão, n, εc2 e εcu positivos, εc2 ≤ εcu (0,85 fcd = "
                + Str(c.sigcd) + ", εc2 = " + Str(c.epsC2) + " ‰, εcu = " + Str(c.epsCu) + " ‰)");
    if (!positive(s.steel.fyd) || !positive(s.steel.Es) || !positive(s.steel.epsYd))
        invalid("o aço deve ter fyd e Es positivos (fyd = " + Str(s.steel.fyd) + ", Es = " + Str(s.steel.Es) + ")");
    for (std::size_t i = 0; i < s.bars.size(); ++i) {
        const PlacedBar& r = s.bars[i];
        const std::string bar = "a barra " + std::to_string(i + 1);
        if (!std::isfinite(r.x) || !std::isfinite(r.y) || std::fabs(r.x) > s.width / 2
            || std::fabs(r.y) > s.depth / 2)
            invalid(bar + " deve ficar dentro da seção (x = " + Str(r.x) + ", y = " + Str(r.y) + ")");
        if (!std::isfinite(r.area) || r.area < 0)
            invalid(bar + " deve ter área positiva ou nula (As = " + Str(r.area) + ")");
    }
}

BiaxialSection biaxialColumn(double b, double h, double dLinha, double nBase, int nAltura, double barArea,
                             const Concrete& concrete, const Steel& steel, ConcreteRules rules)
{
    if (!positive(b))
        invalid("a largura b deve ser positiva (b = " + Str(b) + ")");
    if (!positive(h))
        invalid("a altura h deve ser positiva (h = " + Str(h) + ")");
    if (!std::isfinite(dLinha) || dLinha < 0 || dLinha >= std::min(b, h) / 2)
        invalid("d' deve ficar entre 0 e a metade do menor lado (d' = " + Str(dLinha) + ", b = " + Str(b)
                + ", h = " + Str(h) + ")");
    if (!std::isfinite(nBase) || nBase != std::floor(nBase) || nBase < 2 || nBase > kMaxBars)
        invalid("o número de barras na base deve ser inteiro, de 2 a 500 (" + Str(nBase) + ")");
    if (nAltura < 2 || nAltura > kMaxBars)
        invalid("o número de barras na altura deve ser de 2 a 500 (" + std::to_string(nAltura) + ")");
    if (!positive(barArea))
        invalid("a área da barra deve ser positiva (" + Str(barArea) + ")");

    BiaxialSection s{b, h, concreteLaw(concrete, rules), steel, {}};
    const std::vector<double> xs = positions(b, dLinha, static_cast<int>(nBase));
    const std::vector<double> ys = positions(h, dLinha, nAltura);
    // Top face first, then the side faces downward, then the bottom face.
    for (const double x : xs)
        s.bars.push_back({x, ys.back(), barArea});
    for (std::size_t i = ys.size() - 1; i-- > 1;)
        for (const double x : {xs.front(), xs.back()})
            s.bars.push_back({x, ys[i], barArea});
    for (const double x : xs)
        s.bars.push_back({x, ys.front(), barArea});
    checkSection(s);
    return s;
}

Direction compressedDirection(double angle)
{
    if (!std::isfinite(angle))
        throw CalcError("Ângulo da linha neutra inválido (" + Str(angle) + ").");
    // Quarter turns exactly: the planes about one axis alone are resistance.h's.
    const double q = 4 * (angle - std::floor(angle));
    const double k = std::floor(q), r = q - k;
    const double sn = r == 0 ? 0 : std::sin(std::numbers::pi / 2 * r);
    const double cs = r == 0 ? 1 : std::cos(std::numbers::pi / 2 * r);
    switch (static_cast<int>(k) & 3) {
    case 0:
        return {sn, cs};
    case 1:
        return {cs, -sn};
    case 2:
        return {-sn, -cs};
    default:
        return {-cs, sn};
    }
}

BiaxialPlane ultimatePlane(const BiaxialSection& section, double angle, double t)
{
    checkSection(section);
    if (std::isnan(t))
        throw CalcError("Parâmetro do domínio de deformação inválido (NaN).");
    return detail::PlaneFamily(section, angle).plane(t);
}

BiaxialForces planeForces(const BiaxialSection& s, const StrainField& p)
{
    checkSection(s);
    if (!std::isfinite(p.centre) || !std::isfinite(p.perX) || !std::isfinite(p.perY))
        throw CalcError("Plano de deformação inválido (centro " + Str(p.centre) + " ‰, " + Str(p.perX) + " e "
                        + Str(p.perY) + " ‰/cm).");
    BiaxialForces f;
    const double grad = std::hypot(p.perX, p.perY);
    if (grad == 0) {
        f.n = s.concrete.stress(p.centre) * s.width * s.depth;
    } else {
        const Direction v{p.perX / grad, p.perY / grad};
        const double uTop = s.width / 2 * std::fabs(v.x) + s.depth / 2 * std::fabs(v.y);
        const double H = s.width * std::fabs(v.x) + s.depth * std::fabs(v.y);
        f = concreteForces(s, v, uTop, H, p.centre + grad * uTop, -grad);
    }
    for (const PlacedBar& bar : s.bars)
        addBar(f, bar, steelStress(s.steel, p.at(bar.x, bar.y)));
    return f;
}

namespace detail {

PlaneFamily::PlaneFamily(const BiaxialSection& s, double angle) : s_(s), angle_(angle), v_(compressedDirection(angle))
{
    uTop_ = s.width / 2 * std::fabs(v_.x) + s.depth / 2 * std::fabs(v_.y);
    H_ = s.width * std::fabs(v_.x) + s.depth * std::fabs(v_.y);
    barDepth_.reserve(s.bars.size());
    d_ = 0;
    for (const PlacedBar& bar : s.bars) {
        barDepth_.push_back(uTop_ - (v_.x * bar.x + v_.y * bar.y));
        d_ = std::max(d_, barDepth_.back());
    }
    // Without a bar away from the corner the pivot of 10 ‰ is the opposite corner.
    if (!(d_ > 0))
        d_ = H_;
}

void PlaneFamily::strains(double t, double& corner, double& opposite) const
{
    const ConcreteLaw& c = s_.concrete;
    t = std::clamp(t, 0.0, 3.0);
    if (t <= 1) {
        corner = -10 + (10 + c.epsCu) * t;
        opposite = corner + (-10 - corner) * (H_ / d_);
    } else if (t <= 2) {
        const double x23 = c.epsCu * d_ / (c.epsCu + 10); // neutral axis at the end of domain 2
        const double x = x23 + (H_ - x23) * (t - 1);
        corner = c.epsCu;
        opposite = c.epsCu * (x - H_) / x;
    } else {
        opposite = c.epsC2 * (t - 2);
        corner = c.epsC2 + ((c.epsCu - c.epsC2) / c.epsC2) * (c.epsC2 - opposite);
    }
}

BiaxialPlane PlaneFamily::plane(double t) const
{
    BiaxialPlane p;
    p.angle = angle_;
    p.t = std::clamp(t, 0.0, 3.0);
    strains(t, p.corner, p.opposite);
    const double g = (p.opposite - p.corner) / H_;
    p.field = {p.corner + g * uTop_, -g * v_.x, -g * v_.y};
    return p;
}

BiaxialForces PlaneFamily::forces(double t) const
{
    double corner, opposite;
    strains(t, corner, opposite);
    const double g = (opposite - corner) / H_;
    BiaxialForces f = concreteForces(s_, v_, uTop_, H_, corner, g);
    for (std::size_t i = 0; i < s_.bars.size(); ++i)
        addBar(f, s_.bars[i], steelStress(s_.steel, corner + g * barDepth_[i]));
    return f;
}

} // namespace detail

} // namespace pilarix::engine
