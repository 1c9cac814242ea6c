#include "engine/oblique_check.h"

#include "engine/biaxial.h"
#include "engine/clauses2014.h"
#include "engine/column2014.h"

#include "base/calc_error.h"
#include "base/number_text.h"

#include <cmath>
#include <limits>

namespace pilarix::engine {

namespace {

// The moment at the intermediate section of a direction with second order: the
// first-order moment reduced by αb, plus M2d; never below the end's.
double intermediate(const DirectionSlenderness& d)
{
    if (!d.secondOrder)
        return d.MA;
    return std::max(d.alphaB * d.MA + d.secondOrderMoment, d.MA);
}

// The semi-axis of the minimum envelope in a direction: M1d,min, with its second
// order where the direction has it (15.3.2).
double envelopeSemiAxis(const DirectionSlenderness& d)
{
    return d.minimumMoment + (d.secondOrder ? d.secondOrderMoment : 0);
}

// The straight line of the axis capacities leaves a point at most this far along it
// for the quick answer (the contour's dents are below 1 %).
constexpr double kSurelyInside = 0.98;

// (|Mx|/M_Rd,xx)^α + (|My|/M_Rd,yy)^α; +∞ where N is not carried.
double interaction(double mx, double my, const AxisCapacities& axis, double alpha)
{
    if (!axis.inRange)
        return std::numeric_limits<double>::infinity();
    auto term = [&](double m, double mRd) {
        if (m == 0)
            return 0.0;
        return mRd > 0 ? std::pow(std::fabs(m) / mRd, alpha) : std::numeric_limits<double>::infinity();
    };
    return term(mx, axis.mRdxx) + term(my, axis.mRdyy);
}

Check pointNotCarried(const ObliquePoint& p)
{
    const std::string u = std::isfinite(p.utilisation) ? Format(100 * p.utilisation, "##0.0") + " %" : "sem limite";
    return {CheckId::Rule2014,
            "Flexão oblíqua: o caso \"" + p.caseName + "\", seção " + p.section + " (Nd = " + Format(p.nSd / 100, "##0.0")
                + " kN, Mx = " + Format(p.mx / 100, "##0.0") + " kN.cm, My = " + Format(p.my / 100, "##0.0")
                + " kN.cm), não é resistido pela seção detalhada: utilização de " + u + ".",
            "Item 17.2.5 da ABNT NBR 6118:2014", true};
}

Check envelopeNotCarried(const MinimumEnvelope& e)
{
    return {CheckId::Rule2014,
            "A envoltória dos momentos mínimos do caso \"" + e.caseName + "\" (semieixos " +
                Format(e.semiAxisX / 100, "##0.0") + " e " + Format(e.semiAxisY / 100, "##0.0") +
                " kN.cm) sai do contorno resistente da seção detalhada: margem de " + Format(100 * e.margin, "##0.0") +
                " %.",
            "Item 11.3.3.4.3 da ABNT NBR 6118:2014", true};
}

} // namespace

bool surelyCarried(const std::vector<CaseResult2014>& cases, double g,
                   const std::vector<std::pair<double, double>>& capacities)
{
    for (std::size_t i = 0; i < cases.size() && i < capacities.size(); ++i) {
        const CaseResult2014& c = cases[i];
        AxisCapacities axis;
        axis.inRange = true;
        axis.mRdxx = capacities[i].first;
        axis.mRdyy = capacities[i].second;
        if (!(axis.mRdxx > 0) || !(axis.mRdyy > 0))
            return false;
        const Case2014& k = c.loadCase;
        if (interaction(g * k.MdTop, g * k.MyTop, axis, 1) > kSurelyInside
            || interaction(g * k.MdBase, g * k.MyBase, axis, 1) > kSurelyInside)
            return false;
        if ((c.h.slenderness.secondOrder || c.b.slenderness.secondOrder)
            && interaction(intermediate(c.h.slenderness), intermediate(c.b.slenderness), axis, 1) > kSurelyInside)
            return false;
        if (c.nSd > 0
            && std::hypot(envelopeSemiAxis(c.h.slenderness) / axis.mRdxx,
                          envelopeSemiAxis(c.b.slenderness) / axis.mRdyy)
                   > kSurelyInside)
            return false;
    }
    return capacities.size() >= cases.size();
}

ObliqueCheck checkOblique(const ColumnInput& column, const Column2014Result& r, ConcreteRules rules)
{
    if (r.refusal || !r.detail.detailed || !r.detail.bar || r.cases.empty())
        return {};
    const BiaxialSection section =
        biaxialColumn(column.base, column.depth, r.detail.design.dLinha, column.barsOnWidthFace,
                      column.barsOnDepthFace, r.detail.bar->barArea, r.detail.design.concrete, r.detail.design.steel,
                      rules);
    return checkOblique(section, r.cases, r.gammaN, r.governingCase, true);
}

ObliqueCheck checkOblique(const BiaxialSection& section, const std::vector<CaseResult2014>& cases, double g,
                          int governingCase, bool withContour)
{
    ObliqueCheck out;
    if (cases.empty())
        return out;
    const CaseResult2014& governing = cases[static_cast<std::size_t>(governingCase)];
    out.nSd = governing.nSd;
    MomentContour contour;
    if (withContour) {
        const AxisCapacities axes = axisCapacities(section, out.nSd);
        out.mRdxx = axes.mRdxx;
        out.mRdyy = axes.mRdyy;
        contour = momentContour(section, out.nSd);
        for (const ContourPoint& p : contour.points)
            out.contour.emplace_back(p.mx, p.my);
    }

    out.envelope.margin = std::numeric_limits<double>::infinity();
    for (const CaseResult2014& c : cases) {
        const Case2014& k = c.loadCase;
        // The capacities about each axis alone at this N: the simplified interaction's
        // and, for the search, a quick answer where it is certain.
        const AxisCapacities axis = axisCapacities(section, c.nSd);
        auto point = [&](const char* where, double mx, double my) {
            ObliquePoint p{k.name, where, c.nSd, mx, my, 0, 0};
            p.simplified = interaction(mx, my, axis, 1.2);
            // The contour at fixed N is convex but for dents of a few thousandths: a
            // point well inside the straight line between the axis capacities is
            // carried, and the search needs no more than that.
            if (!withContour && interaction(mx, my, axis, 1) <= kSurelyInside)
                p.utilisation = interaction(mx, my, axis, 1);
            else
                p.utilisation = utilisationAtN(section, c.nSd, mx, my).ratio;
            out.utilisation = std::max(out.utilisation, p.utilisation);
            out.points.push_back(p);
        };
        point("topo", g * k.MdTop, g * k.MyTop);
        point("base", g * k.MdBase, g * k.MyBase);
        if (c.h.slenderness.secondOrder || c.b.slenderness.secondOrder)
            point("intermediaria", intermediate(c.h.slenderness), intermediate(c.b.slenderness));
        // The envelope of the minimum moments, for a column in compression.
        if (c.nSd > 0) {
            const double a = envelopeSemiAxis(c.h.slenderness), b = envelopeSemiAxis(c.b.slenderness);
            // The ellipse inside the rhombus of the axis capacities is inside the contour.
            const double rhombus = axis.inRange && axis.mRdxx > 0 && axis.mRdyy > 0
                                       ? std::hypot(a / axis.mRdxx, b / axis.mRdyy)
                                       : std::numeric_limits<double>::infinity();
            double margin = 0;
            if (!withContour && rhombus <= kSurelyInside)
                margin = 1 / rhombus;
            else if (withContour && &c == &governing)
                margin = minimumMomentMargin(section, contour, a, b).margin;
            else
                margin = minimumMomentMargin(section, c.nSd, a, b).margin;
            if (margin < out.envelope.margin)
                out.envelope = {k.name, a, b, margin, margin >= 1};
        }
    }
    if (!std::isfinite(out.envelope.margin))
        out.envelope = {};
    for (const ObliquePoint& p : out.points)
        if (!(p.utilisation <= 1))
            out.failures.push_back(pointNotCarried(p));
    if (!out.envelope.caseName.empty() && !out.envelope.inside)
        out.failures.push_back(envelopeNotCarried(out.envelope));
    return out;
}

} // namespace pilarix::engine
