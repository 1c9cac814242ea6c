#include "export/drawing_layout.h"

#include <algorithm>
#include <cmath>

namespace pilarix::exporting {

using engine::Point;

namespace {

Point along(Point p, double ux, double uy, double k) { return {p.x + k * ux, p.y + k * uy}; }

struct Grow {
    Extent e;
    bool empty = true;
    void add(Point p)
    {
        if (empty) {
            e = {p.x, p.y, p.x, p.y};
            empty = false;
            return;
        }
        e.minX = std::min(e.minX, p.x);
        e.minY = std::min(e.minY, p.y);
        e.maxX = std::max(e.maxX, p.x);
        e.maxY = std::max(e.maxY, p.y);
    }
    void add(const engine::Polyline& l)
    {
        for (const Point& p : l.points)
            add(p);
    }
    // A line of text from `base` along (ux, uy), `length` long, `height` tall.
    void addText(Point base, double ux, double uy, double length, double height)
    {
        const double vx = -uy, vy = ux; // the text's upward direction
        for (double up : {-kTextDescent * height, height}) {
            const Point start = along(base, vx, vy, up);
            add(start);
            add(along(start, ux, uy, length));
        }
    }
};

bool finite(Point p) { return std::isfinite(p.x) && std::isfinite(p.y); }

bool finite(const engine::Polyline& l)
{
    return std::all_of(l.points.begin(), l.points.end(), [](Point p) { return finite(p); });
}

} // namespace

DimensionFigure dimensionFigure(const engine::Dimension& d)
{
    DimensionFigure f;
    f.text = d.text;
    f.textHeight = d.offset / 2;
    const double len = std::hypot(d.to.x - d.from.x, d.to.y - d.from.y);
    if (!(len > 0)) {
        f.textBase = d.from;
        return f;
    }
    const double ux = (d.to.x - d.from.x) / len, uy = (d.to.y - d.from.y) / len;
    // Outside the section is on the right of the way from `from` to `to`: below a
    // width measured left to right, right of a depth measured upwards.
    const double nx = uy, ny = -ux;
    const double th = f.textHeight;
    const double gap = 0.25 * th, overshoot = 0.4 * th, tick = 0.4 * th;

    const Point a = along(d.from, nx, ny, d.offset), b = along(d.to, nx, ny, d.offset);
    f.lines.push_back({along(a, ux, uy, -overshoot), along(b, ux, uy, overshoot)});
    f.lines.push_back({along(d.from, nx, ny, gap), along(a, nx, ny, overshoot)});
    f.lines.push_back({along(d.to, nx, ny, gap), along(b, nx, ny, overshoot)});
    // The ticks lean the same way on every dimension once it is turned to read.
    const double tx = (ux - nx) * std::sqrt(0.5), ty = (uy - ny) * std::sqrt(0.5);
    for (Point p : {a, b})
        f.lines.push_back({along(p, tx, ty, -tick), along(p, tx, ty, tick)});

    // The value reads left to right or bottom to top, whichever way it was measured,
    // and stands on the section's side of the line, its baseline a gap off it.
    const bool turned = ux < -1e-12 || (std::abs(ux) <= 1e-12 && uy < 0);
    const double rx = turned ? -ux : ux, ry = turned ? -uy : uy;
    f.textAngle = std::atan2(ry, rx) * 180 / std::acos(-1.0);
    const Point mid{(a.x + b.x) / 2, (a.y + b.y) / 2};
    f.textBase = along(mid, -nx, -ny, turned ? gap + th : gap);
    return f;
}

double textAllowance(const std::string& utf8, double height)
{
    // Characters, not bytes: "ø" is two bytes in UTF-8.
    const auto chars = std::count_if(utf8.begin(), utf8.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    });
    return 0.65 * height * static_cast<double>(chars);
}

Extent drawingExtent(const engine::SectionGeometry& g)
{
    Grow grow;
    grow.add(g.outline);
    grow.add({0, 0});
    grow.add({g.width, g.depth});
    grow.add(g.stirrupOuter);
    grow.add(g.stirrupInner);
    for (const auto& l : g.stirrupHooks)
        grow.add(l);
    for (const auto& l : g.ties)
        grow.add(l);
    for (const auto& bar : g.bars) {
        const double r = bar.diameter / 2;
        grow.add({bar.centre.x - r, bar.centre.y - r});
        grow.add({bar.centre.x + r, bar.centre.y + r});
    }
    for (const auto& d : g.dimensions) {
        const DimensionFigure f = dimensionFigure(d);
        for (const Segment& s : f.lines) {
            grow.add(s.a);
            grow.add(s.b);
        }
        const double angle = f.textAngle * std::acos(-1.0) / 180;
        const double ux = std::cos(angle), uy = std::sin(angle);
        const double w = textAllowance(f.text, f.textHeight);
        grow.addText(along(f.textBase, ux, uy, -w / 2), ux, uy, w, f.textHeight);
    }
    for (const auto& l : g.labels)
        grow.addText(l.position, 1, 0, textAllowance(l.text, l.height), l.height);
    return grow.e;
}

bool checkDrawable(const engine::SectionGeometry& g, std::string& error)
{
    if (!(g.width > 0 && g.depth > 0 && std::isfinite(g.width) && std::isfinite(g.depth))) {
        error = "Não há seção detalhada para desenhar.";
        return false;
    }
    bool ok = finite(g.outline) && finite(g.stirrupOuter) && finite(g.stirrupInner);
    for (const auto& l : g.stirrupHooks)
        ok = ok && finite(l);
    for (const auto& l : g.ties)
        ok = ok && finite(l);
    for (const auto& bar : g.bars)
        ok = ok && finite(bar.centre) && std::isfinite(bar.diameter) && bar.diameter > 0;
    for (const auto& d : g.dimensions)
        ok = ok && finite(d.from) && finite(d.to) && std::isfinite(d.offset);
    for (const auto& l : g.labels)
        ok = ok && finite(l.position) && std::isfinite(l.height) && l.height >= 0;
    if (!ok) {
        error = "A geometria da seção tem valores inválidos; o desenho não foi gerado.";
        return false;
    }
    return true;
}

} // namespace pilarix::exporting
