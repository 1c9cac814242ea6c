#include "engine/biaxial.h"

#include "base/calc_error.h"
#include "base/number_text.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <string>
#include <tuple>

namespace pilarix::engine {

namespace {

using detail::PlaneFamily;

// Enough for a bracketed search on [0, 3] to reach the last bit of a double.
constexpr int kSearchCap = 200;
constexpr int kContourGrid = 72;        // one point every 5° of the plane's angle
constexpr int kContourCap = 16 * 72;    // the refinement stops here whatever the gaps
constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kMaxGap = kTurn / kContourGrid;

void checkForce(double x, const char* name)
{
    if (!std::isfinite(x))
        throw CalcError(std::string("Esforço inválido: ") + name + " = " + Str(x) + ".");
}

// Rays from the moment origin need it inside the contour: a uniform strain carries
// every N of the range without moment when the steel is centred.
void checkCentred(const BiaxialSection& s)
{
    double a = 0, ax = 0, ay = 0;
    for (const PlacedBar& bar : s.bars) {
        a += bar.area;
        ax += bar.area * bar.x;
        ay += bar.area * bar.y;
    }
    if (std::fabs(ax) > 1e-9 * a * s.width || std::fabs(ay) > 1e-9 * a * s.depth)
        throw CalcError("A verificação à flexão oblíqua por raios exige a armadura centrada na seção (centro "
                        "das barras em x = " + Str(ax / a) + ", y = " + Str(ay / a) + ").");
}

AxialRange rangeOf(const BiaxialSection& s)
{
    const PlaneFamily f(s, 0);
    return {f.forces(0).n, f.forces(3).n};
}

// Where the search for N starts: the t of a neighbouring angle and the slope dN/dt
// found there (0 when unknown); each search leaves its own.
struct Hint {
    double t = -1;
    double slope = 0;
};

struct Solved {
    double t = 0;
    BiaxialForces f;
};

// The plane of the family that carries nSd (within [N_Rd,min, N_Rd,max]): N grows with
// t; regula falsi with the end that stays put halved (Illinois) and a halving step
// every third step keeps lo below nSd and hi at or above it. A hint narrows the
// bracket first, by steps of the expected distance, doubled while they fall short.
Solved solveN(const PlaneFamily& fam, double nSd, const AxialRange& r, Hint& hint)
{
    if (nSd <= r.nRdMin) {
        hint = {0, 0};
        return {0, fam.forces(0)};
    }
    const double tol = 1e-14 * (r.nRdMax - r.nRdMin);
    double tLo = 0, tHi = 3, fLo = r.nRdMin - nSd, fHi = r.nRdMax - nSd;
    BiaxialForces atHi;
    bool haveHi = false;
    double lastT = -1, lastN = 0; // the last plane tried, for the slope
    auto tried = [&](double t, const BiaxialForces& f) {
        if (lastT >= 0 && t != lastT) {
            const double slope = (f.n - lastN) / (t - lastT);
            if (slope > 0 && std::isfinite(slope))
                hint.slope = slope;
        }
        lastT = t, lastN = f.n;
    };
    auto found = [&](double t, const BiaxialForces& f) {
        hint.t = t;
        return Solved{t, f};
    };
    if (hint.t > 0 && hint.t < 3) {
        double t = hint.t;
        for (int i = 0; i < 40; ++i) {
            const BiaxialForces f = fam.forces(t);
            tried(t, f);
            const double g = f.n - nSd;
            if (std::fabs(g) <= tol)
                return found(t, f);
            const double step = hint.slope > 0 ? std::clamp(1.5 * std::fabs(g) / hint.slope, 1e-12, 0.5) : 0.02;
            if (g < 0) {
                tLo = t, fLo = g;
                t = std::min(t + step * (1 << std::min(i, 20)), 3.0);
            } else {
                tHi = t, fHi = g, atHi = f, haveHi = true;
                t = std::max(t - step * (1 << std::min(i, 20)), 0.0);
            }
            if (!(t > tLo && t < tHi))
                break;
        }
    }
    int kept = 0;
    for (int i = 0; i < kSearchCap; ++i) {
        const double mid = tLo + (tHi - tLo) / 2;
        double t = (i % 3 == 2) ? mid : tLo - fLo * (tHi - tLo) / (fHi - fLo);
        if (!(t > tLo && t < tHi))
            t = mid;
        if (t <= tLo || t >= tHi)
            break;
        const BiaxialForces f = fam.forces(t);
        tried(t, f);
        const double g = f.n - nSd;
        if (std::fabs(g) <= tol)
            return found(t, f);
        if (g < 0) {
            tLo = t, fLo = g;
            if (kept == -1)
                fHi /= 2;
            kept = -1;
        } else {
            tHi = t, fHi = g, atHi = f, haveHi = true;
            if (kept == +1)
                fLo /= 2;
            kept = +1;
        }
    }
    return found(tHi, haveHi ? atHi : fam.forces(tHi));
}

ContourPoint pointAt(const BiaxialSection& s, double angle, double nSd, const AxialRange& r, Hint& hint)
{
    const PlaneFamily fam(s, angle);
    const Solved x = solveN(fam, nSd, r, hint);
    return {x.f.mx, x.f.my, angle - std::floor(angle), x.t};
}

double gapAngle(const ContourPoint& a, const ContourPoint& b)
{
    return std::fabs(std::atan2(a.mx * b.my - a.my * b.mx, a.mx * b.mx + a.my * b.my));
}

bool inRange(double nSd, const AxialRange& r) { return nSd >= r.nRdMin && nSd <= r.nRdMax; }

// The contour point on the ray of unit direction (dx, dy). e, the angle from d to the
// moment of the plane (radians, counter-clockwise positive), grows through 0 as the
// plane turns the moment past d, about as fast as the plane turns. The plane's angle
// is the direction's to start with (exact on the axes for a doubly symmetric layout);
// secant steps, a little long, find a bracket, and the Illinois search on the angle
// closes it.
ContourPoint rayPoint(const BiaxialSection& s, const AxialRange& r, double nSd, double dx, double dy)
{
    struct Eval {
        double angle = 0; // unreduced, so that a bracket may run past a whole turn
        ContourPoint p;
        double e = 0;
    };
    Hint hint;
    auto eval = [&](double angle) {
        Eval x{angle, pointAt(s, angle, nSd, r, hint), 0};
        x.e = std::atan2(dx * x.p.my - dy * x.p.mx, dx * x.p.mx + dy * x.p.my);
        return x;
    };
    auto done = [](const Eval& x) { return std::fabs(x.e) <= 1e-12 || (x.p.mx == 0 && x.p.my == 0); };
    const double start = std::atan2(dy, dx) / kTurn;
    Eval prev = eval(start);
    if (done(prev))
        return prev.p;

    Eval lo, hi;
    bool bracketed = false;
    double slope = kTurn, overshoot = 1.2; // radians per turn
    for (int i = 0; i < 12 && !bracketed; ++i, overshoot *= 1.5) {
        const double step = std::clamp(-prev.e / slope * overshoot, -0.25, 0.25);
        const Eval x = eval(prev.angle + step);
        if (done(x))
            return x.p;
        if ((x.e < 0) != (prev.e < 0) && std::fabs(x.e - prev.e) < std::numbers::pi) {
            lo = x.e < 0 ? x : prev;
            hi = x.e < 0 ? prev : x;
            bracketed = true;
        } else {
            const double secant = (x.e - prev.e) / (x.angle - prev.angle);
            if (secant > 0 && std::isfinite(secant))
                slope = secant;
            prev = x;
        }
    }
    if (!bracketed) {
        // A contour far from the symmetric shape: the whole turn in steps of 5°.
        prev = eval(start);
        for (int k = 1; k <= kContourGrid && !bracketed; ++k) {
            const Eval x = eval(start + static_cast<double>(k) / kContourGrid);
            if (prev.e < 0 && x.e >= 0 && x.e - prev.e < std::numbers::pi)
                lo = prev, hi = x, bracketed = true;
            prev = x;
        }
        if (!bracketed)
            throw CalcError("A curva de momentos resistentes não cruza a direção do momento solicitante (seção "
                            "sem armadura centrada?).");
    }
    // Regula falsi with the Anderson–Björck scaling of the end that stays put: e is
    // smooth in the angle, and this closes in superlinearly from both sides.
    double eLo = lo.e, eHi = hi.e;
    int kept = 0;
    for (int i = 0; i < kSearchCap; ++i) {
        const double a0 = lo.angle, a1 = hi.angle;
        double a = a0 - eLo * (a1 - a0) / (eHi - eLo);
        if (!(a > a0 && a < a1))
            a = a0 + (a1 - a0) / 2;
        if (a <= a0 || a >= a1)
            break;
        hint.t = lo.p.t + (hi.p.t - lo.p.t) * (a - a0) / (a1 - a0);
        const Eval x = eval(a);
        if (done(x))
            return x.p;
        if (x.e < 0) {
            const double m = 1 - x.e / eLo;
            lo = x, eLo = x.e;
            if (kept == -1)
                eHi *= m > 0 ? m : 0.5;
            kept = -1;
        } else {
            const double m = 1 - x.e / eHi;
            hi = x, eHi = x.e;
            if (kept == +1)
                eLo *= m > 0 ? m : 0.5;
            kept = +1;
        }
    }
    return std::fabs(lo.e) < std::fabs(hi.e) ? lo.p : hi.p;
}

// The radius of the contour along the unit direction (dx, dy).
double rayRadius(const ContourPoint& p, double dx, double dy) { return std::max(dx * p.mx + dy * p.my, 0.0); }

} // namespace

AxialRange axialRange(const BiaxialSection& section)
{
    checkSection(section);
    return rangeOf(section);
}

MomentContour momentContour(const BiaxialSection& section, double nSd)
{
    checkSection(section);
    checkForce(nSd, "N");
    MomentContour c;
    c.nSd = nSd;
    c.range = rangeOf(section);
    c.inRange = inRange(nSd, c.range);
    if (!c.inRange)
        return c;
    std::vector<ContourPoint>& pts = c.points;
    pts.reserve(4 * kContourGrid);
    Hint hint;
    for (int k = 0; k < kContourGrid; ++k)
        pts.push_back(pointAt(section, static_cast<double>(k) / kContourGrid, nSd, c.range, hint));
    // Where the moment turns faster than the plane, halve the angle until no two
    // neighbours are more than 5° apart as seen from the origin.
    for (int pass = 0; pass < 8 && static_cast<int>(pts.size()) < kContourCap; ++pass) {
        std::vector<ContourPoint> next;
        next.reserve(2 * pts.size());
        bool split = false;
        for (std::size_t i = 0; i < pts.size(); ++i) {
            const ContourPoint& a = pts[i];
            const ContourPoint& b = pts[(i + 1) % pts.size()];
            next.push_back(a);
            const bool sized = std::hypot(a.mx, a.my) > 0 && std::hypot(b.mx, b.my) > 0;
            const std::size_t total = pts.size() + (next.size() - (i + 1)); // with the points added so far
            if (sized && gapAngle(a, b) > kMaxGap * (1 + 1e-9) && total < static_cast<std::size_t>(kContourCap)) {
                const double end = i + 1 < pts.size() ? b.angle : 1.0;
                hint.t = (a.t + b.t) / 2;
                next.push_back(pointAt(section, a.angle + (end - a.angle) / 2, nSd, c.range, hint));
                split = true;
            }
        }
        pts.swap(next);
        if (!split)
            break;
    }
    return c;
}

AxisCapacities axisCapacities(const BiaxialSection& section, double nSd)
{
    checkSection(section);
    checkForce(nSd, "N");
    checkCentred(section);
    const AxialRange r = rangeOf(section);
    if (!inRange(nSd, r))
        return {};
    return {true, rayRadius(rayPoint(section, r, nSd, 1, 0), 1, 0), rayRadius(rayPoint(section, r, nSd, 0, 1), 0, 1)};
}

BiaxialUtilisation utilisationAtN(const BiaxialSection& section, double nSd, double mx, double my)
{
    checkSection(section);
    checkForce(nSd, "N");
    checkForce(mx, "Mx");
    checkForce(my, "My");
    checkCentred(section);
    const AxialRange r = rangeOf(section);
    BiaxialUtilisation u;
    u.nCarried = inRange(nSd, r);
    if (!u.nCarried) {
        u.ratio = std::numeric_limits<double>::infinity();
        return u;
    }
    const double m = std::hypot(mx, my);
    if (m == 0)
        return u;
    const ContourPoint p = rayPoint(section, r, nSd, mx / m, my / m);
    const double radius = rayRadius(p, mx / m, my / m);
    u.ratio = radius > 0 ? m / radius : std::numeric_limits<double>::infinity();
    u.boundary = p;
    return u;
}

EnvelopeMargin minimumMomentMargin(const BiaxialSection& section, double nSd, double a, double b)
{
    checkSection(section);
    checkForce(nSd, "N");
    if (!std::isfinite(a) || !(a > 0) || !std::isfinite(b) || !(b > 0))
        throw CalcError("Momentos mínimos inválidos: M1d,mín,xx = " + Str(a) + " e M1d,mín,yy = " + Str(b)
                        + " devem ser positivos.");
    checkCentred(section);
    return minimumMomentMargin(section, momentContour(section, nSd), a, b);
}

EnvelopeMargin minimumMomentMargin(const BiaxialSection& section, const MomentContour& c, double a, double b)
{
    if (!std::isfinite(a) || !(a > 0) || !std::isfinite(b) || !(b > 0))
        throw CalcError("Momentos mínimos inválidos: M1d,mín,xx = " + Str(a) + " e M1d,mín,yy = " + Str(b)
                        + " devem ser positivos.");
    const double nSd = c.nSd;
    EnvelopeMargin e;
    e.inRange = c.inRange;
    if (!c.inRange)
        return e;
    // The ellipse's radius in the direction β.
    auto ellipse = [&](double beta) { return 1 / std::hypot(std::cos(beta) / a, std::sin(beta) / b); };
    // The ratio in the direction β, from the exact contour point on its ray.
    auto ratioAt = [&](double beta, ContourPoint& p) {
        const double dx = std::cos(beta), dy = std::sin(beta);
        p = rayPoint(section, c.range, nSd, dx, dy);
        return rayRadius(p, dx, dy) / ellipse(beta);
    };
    // The least ratio among the contour's points, then a golden-section search on the
    // direction between its two neighbours.
    const std::size_t n = c.points.size();
    std::size_t best = 0;
    double bestRatio = std::numeric_limits<double>::infinity();
    std::vector<double> beta(n);
    for (std::size_t i = 0; i < n; ++i) {
        const ContourPoint& p = c.points[i];
        beta[i] = std::atan2(p.my, p.mx);
        const double ratio = std::hypot(p.mx, p.my) / ellipse(beta[i]);
        if (ratio < bestRatio)
            bestRatio = ratio, best = i;
    }
    double lo = beta[(best + n - 1) % n], hi = beta[(best + 1) % n];
    if (lo > beta[best])
        lo -= kTurn;
    if (hi < beta[best])
        hi += kTurn;
    constexpr double kGolden = 0.6180339887498949;
    ContourPoint pBest = c.points[best];
    double x1 = hi - kGolden * (hi - lo), x2 = lo + kGolden * (hi - lo);
    ContourPoint p1, p2;
    double f1 = ratioAt(x1, p1), f2 = ratioAt(x2, p2);
    // A millionth of a radian: the margin is then exact to far below what is printed.
    for (int i = 0; i < 60 && hi - lo > 1e-6; ++i) {
        if (f1 < f2) {
            hi = x2, x2 = x1, f2 = f1, p2 = p1;
            x1 = hi - kGolden * (hi - lo);
            f1 = ratioAt(x1, p1);
        } else {
            lo = x1, x1 = x2, f1 = f2, p1 = p2;
            x2 = lo + kGolden * (hi - lo);
            f2 = ratioAt(x2, p2);
        }
    }
    double betaBest = beta[best];
    for (const auto& [f, x, p] : {std::tuple{f1, x1, p1}, std::tuple{f2, x2, p2}})
        if (f < bestRatio)
            bestRatio = f, betaBest = x, pBest = p;
    e.margin = bestRatio;
    e.direction = betaBest / kTurn - std::floor(betaBest / kTurn);
    e.mx = pBest.mx;
    e.my = pBest.my;
    return e;
}

SimplifiedInteraction simplifiedInteraction(const BiaxialSection& section, double nSd, double mx, double my,
                                            double exponent)
{
    checkSection(section);
    checkForce(nSd, "N");
    checkForce(mx, "Mx");
    checkForce(my, "My");
    if (!std::isfinite(exponent) || !(exponent > 0))
        throw CalcError("Expoente da interação simplificada inválido: " + Str(exponent) + ".");
    checkCentred(section);
    const AxialRange r = rangeOf(section);
    SimplifiedInteraction s;
    s.inRange = inRange(nSd, r);
    if (!s.inRange) {
        s.value = std::numeric_limits<double>::infinity();
        return s;
    }
    const double sx = mx < 0 ? -1 : 1, sy = my < 0 ? -1 : 1;
    s.mRdxx = rayRadius(rayPoint(section, r, nSd, sx, 0), sx, 0);
    s.mRdyy = rayRadius(rayPoint(section, r, nSd, 0, sy), 0, sy);
    auto term = [&](double m, double mRd) {
        if (m == 0)
            return 0.0;
        return mRd > 0 ? std::pow(std::fabs(m) / mRd, exponent) : std::numeric_limits<double>::infinity();
    };
    s.value = term(mx, s.mRdxx) + term(my, s.mRdyy);
    return s;
}

} // namespace pilarix::engine
