#include "engine/geometry.h"

#include "base/number_text.h"

#include <algorithm>
#include <cmath>

namespace pilarix::engine {

namespace {

Polyline rectangle(double x1, double y1, double x2, double y2)
{
    return {{{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}}, true};
}

// A face holds at most 500 bars; a count read from a file may be anything.
long barsOnFace(double n) { return std::clamp(static_cast<long>(std::lround(n)), 0L, 500L); }

// A supplementary stirrup: a straight tie from bar to bar across the section, with a
// 135° hook around the bar at each end.
Polyline tie(Point a, Point b, double hook)
{
    const double len = std::hypot(b.x - a.x, b.y - a.y);
    if (len <= 0)
        return {{a, b}, false};
    const double ux = (b.x - a.x) / len, uy = (b.y - a.y) / len;
    const double nx = -uy, ny = ux;
    const double g = hook * std::sqrt(0.5);
    return {{{a.x + g * (ux + nx), a.y + g * (uy + ny)}, a, b, {b.x + g * (-ux + nx), b.y + g * (-uy + ny)}}, false};
}

} // namespace

double barPositionOnFace(double length, double dLinha, long n, long i)
{
    // A face of one bar (the input allows it; the design then fails) keeps its bar
    // in the middle of the face.
    if (n < 2)
        return length / 2;
    return dLinha + static_cast<double>(i - 1) * (length - 2 * dLinha) / static_cast<double>(n - 1);
}

SectionGeometry sectionGeometry(const DetailedSection& d)
{
    SectionGeometry g;
    const double b = d.width, h = d.depth, c = d.cover, ft = d.stirrupDiameter;
    g.width = b;
    g.depth = h;
    g.outline = rectangle(0, 0, b, h);

    // The stirrup's outer face at the effective cover, its inner face one stirrup
    // diameter further in, so that the bars at d' bear on it.
    g.stirrupOuter = rectangle(c, c, b - c, h - c);
    g.stirrupInner = rectangle(c + ft, c + ft, b - c - ft, h - c - ft);

    // Both hooks at the top-left corner, bent into the core, as long as the detailing
    // allows for them: 135° hooks run parallel at 45°, right-angle hooks straight
    // along the opposite leg.
    const double xc = c + ft / 2, yc = h - c - ft / 2;
    const double hook = d.hookLength > 0 ? d.hookLength : std::max(5 * ft, 1.5);
    if (d.hook == Hook::Angle45) {
        const double s = hook * std::sqrt(0.5);
        g.stirrupHooks.push_back({{{xc + ft, yc}, {xc + ft + s, yc - s}}, false});
        g.stirrupHooks.push_back({{{xc, yc - ft}, {xc + s, yc - ft - s}}, false});
    } else {
        g.stirrupHooks.push_back({{{xc + ft, yc}, {xc + ft, yc - hook}}, false});
        g.stirrupHooks.push_back({{{xc, yc - ft}, {xc + hook, yc - ft}}, false});
    }

    // Bars: nBase on each face of width b, the corner bars among them, and the inner
    // bars of the faces of depth h.
    const long nb = barsOnFace(d.barsOnWidthFace);
    const long nh = barsOnFace(d.barsOnDepthFace);
    const double dl = d.dLinha;
    for (long i = 1; i <= nb; ++i) {
        const double x = barPositionOnFace(b, dl, nb, i);
        g.bars.push_back({{x, h - dl}, d.barDiameter});
        g.bars.push_back({{x, dl}, d.barDiameter});
    }
    for (long j = 2; j <= nh - 1; ++j) {
        const double y = h - barPositionOnFace(h, dl, nh, j);
        g.bars.push_back({{dl, y}, d.barDiameter});
        g.bars.push_back({{b - dl, y}, d.barDiameter});
    }

    // A flag at bar i of the width faces ties bar i of the top face to bar i of the
    // bottom one; the arrangement is symmetric, one tie serves both faces.
    const double tieHook = d.tieHookLength > 0 ? d.tieHookLength : std::max(3 * ft, 1.5);
    for (long i = 1; i <= nb && i <= static_cast<long>(d.tiesAcrossWidth.size()); ++i) {
        if (!d.tiesAcrossWidth[static_cast<std::size_t>(i - 1)])
            continue;
        const double x = barPositionOnFace(b, dl, nb, i);
        g.ties.push_back(tie({x, h - dl}, {x, dl}, tieHook));
    }
    for (long j = 1; j <= nh && j <= static_cast<long>(d.tiesAcrossDepth.size()); ++j) {
        if (!d.tiesAcrossDepth[static_cast<std::size_t>(j - 1)])
            continue;
        const double y = h - barPositionOnFace(h, dl, nh, j);
        g.ties.push_back(tie({dl, y}, {b - dl, y}, tieHook));
    }

    // Overall dimensions below and to the right; the labels under them: N3 the bars,
    // N4 the stirrup with its spacing and inner dimensions (the bending schedule's
    // "b x h" of the stirrup), then d' and the cover.
    const double text = std::max(1.5, std::max(b, h) / 25);
    const double offset = 2 * text;
    g.dimensions.push_back({{0, 0}, {b, 0}, offset, Format(b, "##0")});
    g.dimensions.push_back({{b, 0}, {b, h}, offset, Format(h, "##0")});
    double y = -(offset + 2.6 * text);
    g.labels.push_back({{0, y}, text,
                        "N3= " + Format(d.totalBars, "##0") + " ø " + Format(d.barDiameter * 10, "##0.0") + " ("
                            + Format(d.barsOnWidthFace, "##0") + " x " + Format(d.barsOnDepthFace, "##0") + ")"});
    y -= 1.6 * text;
    g.labels.push_back({{0, y}, text,
                        "N4= ø " + Format(ft * 10, "##0.0") + " c/ " + Format(d.stirrupSpacing, "##0") + "cm  ("
                            + Format(b - 2 * c, "##0.00") + " x " + Format(h - 2 * c, "##0.00") + "cm)"});
    y -= 1.6 * text;
    g.labels.push_back({{0, y}, text, "d'= " + Format(dl, "##0.00") + "cm  c= " + Format(c, "##0.00") + "cm"});
    return g;
}

} // namespace pilarix::engine
