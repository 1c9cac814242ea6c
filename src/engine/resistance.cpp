#include "engine/resistance.h"

#include "base/calc_error.h"
#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>

namespace pilarix::engine {

namespace {

constexpr int kMaxRowsOnDepthFace = 500; // the design's bar layers stop at 500 as well
constexpr double kMaxBarsOnWidthFace = 500;

[[noreturn]] void invalid(const std::string& what) { throw CalcError("Seção inválida: " + what + "."); }

bool positive(double x) { return std::isfinite(x) && x > 0; }

} // namespace

void checkSection(const ReinforcedSection& s)
{
    if (!positive(s.width))
        invalid("a largura b deve ser positiva (b = " + Str(s.width) + ")");
    if (!positive(s.depth))
        invalid("a altura h deve ser positiva (h = " + Str(s.depth) + ")");
    if (!positive(s.concrete.sigcd))
        invalid("a tensão 0,85 fcd do concreto deve ser positiva (fck = " + Str(s.concrete.fck)
                + ", γc = " + Str(s.concrete.gammaC) + ")");
    if (!positive(s.steel.fyd) || !positive(s.steel.Es) || !positive(s.steel.epsYd))
        invalid("o aço deve ter fyd e Es positivos (fyd = " + Str(s.steel.fyd) + ", Es = " + Str(s.steel.Es) + ")");
    for (std::size_t i = 0; i < s.rows.size(); ++i) {
        const BarRow& r = s.rows[i];
        const std::string row = "a camada " + std::to_string(i + 1);
        // A row on a face (d' = 0, as before the cover has set it) is still a section.
        if (!std::isfinite(r.depth) || r.depth < 0 || r.depth > s.depth)
            invalid(row + " deve ficar dentro da seção, 0 ≤ y ≤ h (y = " + Str(r.depth) + ", h = " + Str(s.depth) + ")");
        if (!std::isfinite(r.area) || r.area < 0)
            invalid(row + " deve ter área positiva ou nula (As = " + Str(r.area) + ")");
    }
}

ReinforcedSection rectangularColumn(double b, double h, double dLinha, double nBase, int nAltura, double barArea,
                                    const Concrete& concrete, const Steel& steel)
{
    if (!positive(b))
        invalid("a largura b deve ser positiva (b = " + Str(b) + ")");
    if (!positive(h))
        invalid("a altura h deve ser positiva (h = " + Str(h) + ")");
    if (!std::isfinite(dLinha) || dLinha < 0 || dLinha >= h / 2)
        invalid("d' deve ficar entre 0 e h/2 (d' = " + Str(dLinha) + ", h = " + Str(h) + ")");
    if (!std::isfinite(nBase) || nBase != std::floor(nBase) || nBase < 2 || nBase > kMaxBarsOnWidthFace)
        invalid("o número de barras na base deve ser inteiro, de 2 a 500 (" + Str(nBase) + ")");
    if (nAltura < 2 || nAltura > kMaxRowsOnDepthFace)
        invalid("o número de barras na altura deve ser de 2 a 500 (" + std::to_string(nAltura) + ")");
    if (!positive(barArea))
        invalid("a área da barra deve ser positiva (" + Str(barArea) + ")");

    ReinforcedSection s{b, h, concrete, steel, std::vector<BarRow>(static_cast<std::size_t>(nAltura))};
    // The lower half mirrors the upper one exactly, so that a uniform strain leaves no
    // moment from rounding.
    const double spacing = (h - 2 * dLinha) / (nAltura - 1);
    for (int i = 0; i < nAltura; ++i) {
        const int j = nAltura - 1 - i;
        const double bars = (i == 0 || j == 0) ? nBase : 2;
        double y;
        if (2 * i + 1 == nAltura)
            y = h / 2;
        else if (i < j)
            y = dLinha + i * spacing;
        else
            y = h - (dLinha + j * spacing);
        s.rows[static_cast<std::size_t>(i)] = {y, bars * barArea};
    }
    checkSection(s);
    return s;
}

ReinforcedSection upsideDown(const ReinforcedSection& section)
{
    checkSection(section);
    ReinforcedSection s = section;
    for (BarRow& r : s.rows)
        r.depth = s.depth - r.depth;
    return s;
}

StrainPlane ultimatePlane(const ReinforcedSection& section, double t)
{
    checkSection(section);
    if (std::isnan(t))
        throw CalcError("Parâmetro do domínio de deformação inválido (NaN).");
    return detail::ultimatePlane(section, detail::farthestRowDepth(section), t);
}

Domain domainOf(const ReinforcedSection& section, double t)
{
    const StrainPlane p = ultimatePlane(section, t);
    if (t <= kPivotBStart)
        return p.top <= 0 ? Domain::D1 : Domain::D2;
    if (t > kPivotCStart)
        return Domain::D5;
    // Pivot B: the strain of the farthest row tells whether it yields (3) or not (4),
    // and a neutral axis below it is domain 4a.
    const double d = detail::farthestRowDepth(section);
    const double eD = p.top + (p.bottom - p.top) * (d / section.depth);
    if (eD <= -section.steel.epsYd)
        return Domain::D3;
    return eD <= 0 ? Domain::D4 : Domain::D4a;
}

SectionForces planeForces(const ReinforcedSection& section, const StrainPlane& plane)
{
    checkSection(section);
    if (!std::isfinite(plane.top) || !std::isfinite(plane.bottom))
        throw CalcError("Plano de deformação inválido (topo " + Str(plane.top) + " ‰, base " + Str(plane.bottom)
                        + " ‰).");
    return detail::planeForces(section, plane);
}

namespace detail {

double farthestRowDepth(const ReinforcedSection& s)
{
    if (s.rows.empty())
        return s.depth;
    double d = 0;
    for (const BarRow& r : s.rows)
        d = std::max(d, r.depth);
    return d;
}

StrainPlane ultimatePlane(const ReinforcedSection& s, double d, double t)
{
    const double h = s.depth;
    t = std::clamp(t, 0.0, kPureCompression);
    if (t <= kPivotBStart) {
        const double top = -10 + 13.5 * t;
        return {top, top + (-10 - top) * (h / d)};
    }
    if (t <= kPivotCStart) {
        const double x23 = 3.5 * d / 13.5; // neutral axis at the end of domain 2
        const double x = x23 + (h - x23) * (t - kPivotBStart);
        return {3.5, 3.5 * (x - h) / x};
    }
    const double bottom = 2 * (t - kPivotCStart);
    return {2 + 0.75 * (2 - bottom), bottom};
}

SectionForces planeForces(const ReinforcedSection& s, const StrainPlane& plane)
{
    const double h = s.depth;
    const double a = plane.top;
    const double g = (plane.bottom - plane.top) / h; // ‰ per cm

    // The concrete: the depth is cut where the strain crosses 0 and 2 ‰; on each piece
    // the stress is zero, a parabola in y or constant, integrated exactly about the
    // piece's centre (no division by a small gradient near uniform strain).
    std::array<double, 4> cuts{0, h, h, h};
    std::size_t nCuts = 1;
    if (g != 0) {
        double y0 = -a / g, y2 = (2 - a) / g;
        if (y2 < y0)
            std::swap(y0, y2);
        for (const double y : {y0, y2})
            if (y > 0 && y < h)
                cuts[nCuts++] = y;
    }
    cuts[nCuts++] = h;
    double nc = 0, mc = 0; // ∫ σc/σcd dy and ∫ σc/σcd (h/2 − y) dy
    for (std::size_t i = 0; i + 1 < nCuts; ++i) {
        const double L = cuts[i + 1] - cuts[i];
        if (!(L > 0))
            continue;
        const double yc = (cuts[i] + cuts[i + 1]) / 2;
        const double ec = a + g * yc;
        double i0, i1; // ∫ f du and ∫ f u du over u = y − yc in [−L/2, L/2]
        if (ec <= 0) {
            continue;
        } else if (ec >= 2) {
            i0 = L;
            i1 = 0;
        } else {
            const double L3 = L * L * L;
            i0 = L * (ec - ec * ec / 4) - g * g * L3 / 48;
            i1 = g * (1 - ec / 2) * L3 / 12;
        }
        nc += i0;
        mc += (h / 2 - yc) * i0 - i1;
    }
    const double k = s.concrete.sigcd * s.width;
    SectionForces f{k * nc, k * mc};

    for (const BarRow& r : s.rows) {
        const double force = r.area * steelStress(s.steel, a + g * r.depth);
        f.n += force;
        f.m += force * (h / 2 - r.depth);
    }
    return f;
}

} // namespace detail

} // namespace pilarix::engine
