#include "engine/interaction.h"

#include "base/calc_error.h"
#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <queue>
#include <string>

namespace pilarix::engine {

namespace {

// Enough for a bisection on [0, 3] or [0, b·h] to reach the last bit of a double.
constexpr int kBisectionCap = 200;

// The ultimate planes of one side: t from pure tension (0) to pure compression (3).
class Side {
public:
    explicit Side(const ReinforcedSection& s) : s_(s), d_(detail::farthestRowDepth(s)) {}
    StrainPlane plane(double t) const { return detail::ultimatePlane(s_, d_, t); }
    SectionForces forces(double t) const { return detail::planeForces(s_, plane(t)); }

private:
    const ReinforcedSection& s_;
    double d_;
};

StrainPlane turnedOver(const StrainPlane& p) { return {p.bottom, p.top}; }

void checkForce(double x, const char* name)
{
    if (!std::isfinite(x))
        throw CalcError(std::string("Esforço inválido: ") + name + " = " + Str(x) + ".");
}

double totalArea(const ReinforcedSection& s)
{
    double a = 0;
    for (const BarRow& r : s.rows)
        a += r.area;
    return a;
}

// ---- the curve ----

struct Vertex {
    double t = 0;
    SectionForces f;
};

bool sameForces(const SectionForces& a, const SectionForces& b) { return a.n == b.n && a.m == b.m; }

// One side of the curve with `target` distinct points: a grid on the three pivots,
// then the interval whose middle point lies farthest from its chord (N and M scaled
// to the size of the curve) is split, again and again. Intervals where the forces do
// not move at all (every bar yielding, the concrete cracked) come last.
std::vector<Vertex> curveSide(const Side& side, int target)
{
    constexpr int kGrid = 24; // 8 steps per pivot, the pivot changes on the grid
    std::vector<Vertex> v;
    v.reserve(static_cast<std::size_t>(2 * target + kGrid));
    for (int i = 0; i <= kGrid; ++i) {
        const double t = kPureCompression * i / kGrid;
        v.push_back({t, side.forces(t)});
    }
    double mScale = 0;
    for (const Vertex& x : v)
        mScale = std::max(mScale, std::fabs(x.f.m));
    const double nScale = v.back().f.n - v.front().f.n;
    if (!(mScale > 0))
        mScale = nScale;

    struct Interval {
        double error;
        Vertex a, mid, b;
        bool operator<(const Interval& o) const { return error < o.error; }
    };
    auto interval = [&](const Vertex& a, const Vertex& b) {
        const double tm = a.t + (b.t - a.t) / 2;
        const Vertex mid{tm, side.forces(tm)};
        const double cx = (b.f.n - a.f.n) / nScale, cy = (b.f.m - a.f.m) / mScale;
        const double px = (mid.f.n - a.f.n) / nScale, py = (mid.f.m - a.f.m) / mScale;
        const double c2 = cx * cx + cy * cy;
        const double u = c2 > 0 ? std::clamp((px * cx + py * cy) / c2, 0.0, 1.0) : 0.0;
        double error = std::hypot(px - u * cx, py - u * cy);
        if (sameForces(a.f, b.f) && sameForces(a.f, mid.f))
            error = -1;
        return Interval{error, a, mid, b};
    };

    int distinct = 1;
    for (std::size_t i = 1; i < v.size(); ++i)
        distinct += sameForces(v[i].f, v[i - 1].f) ? 0 : 1;
    std::priority_queue<Interval> queue;
    for (std::size_t i = 1; i < v.size(); ++i)
        queue.push(interval(v[i - 1], v[i]));
    // Every split adds one vertex; the cap only guards a curve that will not spread.
    for (int step = 0; distinct < target && !queue.empty() && step < 4 * target; ++step) {
        const Interval worst = queue.top();
        queue.pop();
        if (worst.mid.t <= worst.a.t || worst.mid.t >= worst.b.t)
            continue; // no room left between two neighbouring parameters
        v.push_back(worst.mid);
        if (!sameForces(worst.mid.f, worst.a.f) && !sameForces(worst.mid.f, worst.b.f))
            ++distinct;
        queue.push(interval(worst.a, worst.mid));
        queue.push(interval(worst.mid, worst.b));
    }

    std::sort(v.begin(), v.end(), [](const Vertex& x, const Vertex& y) { return x.t < y.t; });
    std::vector<Vertex> out;
    out.reserve(v.size());
    for (const Vertex& x : v)
        if (out.empty() || !sameForces(out.back().f, x.f))
            out.push_back(x);
    return out;
}

// ---- the ray from the origin ----

// Where the ray of direction (n, m) meets one side, if it does: the cross product
// c = N·m − M·n of the side's points goes from ≤ 0 to > 0 once as the side sweeps
// round the origin; an end lying on the ray counts as well.
std::optional<Vertex> rayHit(const Side& side, double n, double m)
{
    const auto cross = [&](const SectionForces& f) { return f.n * m - f.m * n; };
    const auto alongRay = [&](const SectionForces& f) { return f.n * n + f.m * m > 0; };
    const auto onRay = [&](const SectionForces& f) {
        return std::fabs(cross(f)) <= 1e-12 * (std::fabs(f.n) + std::fabs(f.m)) * (std::fabs(n) + std::fabs(m))
               && alongRay(f);
    };
    Vertex lo{0, side.forces(0)}, hi{kPureCompression, side.forces(kPureCompression)};
    if (onRay(lo.f))
        return lo;
    if (onRay(hi.f))
        return hi;
    if (!(cross(lo.f) <= 0 && cross(hi.f) > 0))
        return std::nullopt;
    // Regula falsi on the cross product (the end that stays put has its value halved,
    // so that both ends close in), with a halving step every third step: the bracket
    // shrinks at least geometrically, and much faster where the side is smooth.
    double cLo = cross(lo.f), cHi = cross(hi.f);
    int kept = 0;
    for (int i = 0; i < kBisectionCap; ++i) {
        double t = (i % 3 == 2) ? lo.t + (hi.t - lo.t) / 2 : lo.t - cLo * (hi.t - lo.t) / (cHi - cLo);
        if (!(t > lo.t && t < hi.t))
            t = lo.t + (hi.t - lo.t) / 2;
        if (t <= lo.t || t >= hi.t)
            break;
        const Vertex mid{t, side.forces(t)};
        const double c = cross(mid.f);
        if (c <= 0) {
            lo = mid;
            cLo = c;
            if (kept == -1)
                cHi /= 2;
            kept = -1;
        } else {
            hi = mid;
            cHi = c;
            if (kept == +1)
                cLo /= 2;
            kept = +1;
        }
        if (c == 0)
            break;
    }
    const Vertex& best = std::fabs(cross(lo.f)) < std::fabs(cross(hi.f)) ? lo : hi;
    if (!alongRay(best.f))
        return std::nullopt;
    return best;
}

} // namespace

InteractionCurve interactionCurve(const ReinforcedSection& section, int pointsPerSide)
{
    checkSection(section);
    if (pointsPerSide < 8 || pointsPerSide > 100000)
        throw CalcError("Número de pontos da curva de interação fora de 8 a 100000: " + std::to_string(pointsPerSide)
                        + ".");
    const ReinforcedSection turned = upsideDown(section);
    const Side upright(section), over(turned);
    const std::vector<Vertex> top = curveSide(upright, pointsPerSide);
    const std::vector<Vertex> bottom = curveSide(over, pointsPerSide);

    InteractionCurve c;
    c.nRdMin = top.front().f.n;
    c.nRdMax = top.back().f.n;
    c.points.reserve(top.size() + bottom.size());
    for (const Vertex& x : top)
        c.points.push_back({x.f.n, x.f.m, upright.plane(x.t)});
    // The turned side's ends are the two uniform planes the upright side already has.
    for (std::size_t i = bottom.size() - 1; i-- > 1;)
        c.points.push_back({bottom[i].f.n, -bottom[i].f.m, turnedOver(over.plane(bottom[i].t))});
    return c;
}

AxialCapacity axialCapacity(const ReinforcedSection& section)
{
    checkSection(section);
    return {detail::planeForces(section, {2, 2}).n, detail::planeForces(section, {-10, -10}).n};
}

std::optional<MomentCapacity> momentCapacity(const ReinforcedSection& section, double nSd)
{
    checkSection(section);
    checkForce(nSd, "N");
    const Side side(section);
    // N grows with t: the search keeps N(lo) < N ≤ N(hi) and ends on the first plane
    // that reaches N.
    Vertex lo{0, side.forces(0)}, hi{kPureCompression, side.forces(kPureCompression)};
    if (nSd < lo.f.n || nSd > hi.f.n)
        return std::nullopt;
    if (nSd == lo.f.n) {
        hi = lo;
    } else {
        for (int i = 0; i < kBisectionCap; ++i) {
            const double t = lo.t + (hi.t - lo.t) / 2;
            if (t <= lo.t || t >= hi.t)
                break;
            const Vertex mid{t, side.forces(t)};
            (mid.f.n < nSd ? lo : hi) = mid;
        }
    }
    return MomentCapacity{hi.f.m, hi.f.n, hi.t, side.plane(hi.t), domainOf(section, hi.t)};
}

Utilisation utilisation(const ReinforcedSection& section, double nSd, double mSd)
{
    checkSection(section);
    checkForce(nSd, "N");
    checkForce(mSd, "M");
    if (nSd == 0 && mSd == 0)
        return {};
    // The direction scaled to a unit largest component: no overflow in the products.
    const double scale = std::max(std::fabs(nSd), std::fabs(mSd));
    const double n = nSd / scale, m = mSd / scale;

    const ReinforcedSection turned = upsideDown(section);
    const Side upright(section), over(turned);
    // The side of the moment's sign first; the other catches a ray along the N axis
    // that rounding put a hair past the end of the first.
    const std::array<bool, 2> order = mSd >= 0 ? std::array{false, true} : std::array{true, false};
    for (const bool overSide : order) {
        const double mm = overSide ? -m : m;
        const std::optional<Vertex> hit = rayHit(overSide ? over : upright, n, mm);
        if (!hit)
            continue;
        const double lambda = (hit->f.n * n + hit->f.m * mm) / (n * n + mm * mm); // on the scaled direction
        if (!(lambda > 0))
            continue;
        const StrainPlane p = overSide ? turnedOver(over.plane(hit->t)) : upright.plane(hit->t);
        return {scale / lambda, lambda * n, lambda * m, p};
    }
    return {std::numeric_limits<double>::infinity(), 0, 0, std::nullopt};
}

ReinforcedSection withSteelArea(const ReinforcedSection& section, double area)
{
    checkSection(section);
    if (!std::isfinite(area) || area < 0)
        throw CalcError("Área de aço inválida: " + Str(area) + " cm².");
    const double total = totalArea(section);
    if (!(total > 0))
        throw CalcError("A seção não tem barras: não há disposição de armadura para escalar.");
    ReinforcedSection s = section;
    for (BarRow& r : s.rows)
        r.area *= area / total;
    return s;
}

std::optional<double> requiredSteelArea(const ReinforcedSection& layout, double nSd, double mSd)
{
    checkSection(layout);
    checkForce(nSd, "N");
    checkForce(mSd, "M");
    // The bars at zero area, not removed: the pivot of 10 ‰ stays at the same row
    // as for any other amount of steel.
    ReinforcedSection bare = layout;
    for (BarRow& r : bare.rows)
        r.area = 0;
    if (utilisation(bare, nSd, mSd).ratio <= 1)
        return 0.0;
    const double most = layout.width * layout.depth; // as much steel as concrete: no column has it
    if (utilisation(withSteelArea(layout, most), nSd, mSd).ratio > 1)
        return std::nullopt;
    // More steel of the same layout carries more: the search keeps lo short and hi
    // enough. It steps by the chord of the utilisation between them (regula falsi,
    // the end that stays put having its excess halved, so that both ends close in),
    // and by halving where the chord leaves the bracket (an unbounded utilisation at
    // lo, the fine steps of class B steel).
    auto excess = [&](double as) { return utilisation(withSteelArea(layout, as), nSd, mSd).ratio - 1; };
    double lo = 0, hi = most;
    double gLo = excess(lo), gHi = excess(hi);
    int kept = 0; // +1 when lo stayed put on the last step, −1 when hi did
    for (int i = 0; i < kBisectionCap && hi - lo > 1e-7; ++i) {
        double x = hi - gHi * (hi - lo) / (gHi - gLo);
        if (!(x > lo && x < hi))
            x = lo + (hi - lo) / 2;
        if (x <= lo || x >= hi)
            break;
        const double g = excess(x);
        if (g <= 0 && g > -1e-12) // on the boundary, to the last bits of the utilisation
            return x;
        if (g <= 0) {
            hi = x;
            gHi = g;
            if (kept == +1)
                gLo /= 2;
            kept = +1;
        } else {
            lo = x;
            gLo = g;
            if (kept == -1)
                gHi /= 2;
            kept = -1;
        }
    }
    return hi;
}

} // namespace pilarix::engine
