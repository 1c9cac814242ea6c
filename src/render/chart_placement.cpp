#include "render/chart_placement.h"

#include <QLineF>

#include <algorithm>
#include <array>
#include <cmath>

namespace pilarix::render::placement {

namespace {
bool finite(double x) { return std::isfinite(x); }
} // namespace

// An axis over [lo, hi] (which holds 0) with ticks at the multiples of a round step,
// 1, 2, 2.5 or 5 times a power of ten, about one per `perTick` device units. The ends
// are not rounded out to ticks: that could leave a quarter of the frame empty.
Axis niceAxis(double lo, double hi, double length, double perTick)
{
    if (!(hi > lo)) { // a curve flat along this axis still gets a range about it
        const double a = std::max(std::abs(lo), std::abs(hi));
        const double d = a > 0 ? 0.1 * a : 1;
        lo -= d;
        hi += d;
    }
    // A little room, so that the curve does not run along the frame; a side at the
    // origin keeps the origin at the frame.
    const double pad = 0.04 * (hi - lo);
    if (lo < 0)
        lo -= pad;
    if (hi > 0)
        hi += pad;
    const double wanted = std::clamp(std::floor(length / std::max(perTick, 1e-9)), 2.0, 12.0);
    const double rough = (hi - lo) / wanted;
    Axis a;
    if (!(rough > 0) || !finite(rough)) {
        a.ticks = {-1, -0.5, 0, 0.5, 1};
        return a;
    }
    const double magnitude = std::pow(10.0, std::floor(std::log10(rough)));
    a.step = 10 * magnitude;
    for (double k : {1.0, 2.0, 2.5, 5.0})
        if (k * magnitude >= rough * (1 - 1e-12)) {
            a.step = k * magnitude;
            break;
        }
    a.lo = lo;
    a.hi = hi;
    // A step as long as the span would leave the origin the only value: a narrow plot
    // still reads a scale, one round step shorter.
    while (std::floor(hi / a.step + 1e-9) - std::ceil(lo / a.step - 1e-9) < 1 && a.step > magnitude * 1e-3) {
        const double k = a.step / std::pow(10.0, std::floor(std::log10(a.step) + 1e-12));
        a.step *= k > 2.4 && k < 2.6 ? 0.8 : 0.5; // 5 → 2.5 → 2 → 1 → 0.5
    }
    const double first = std::ceil(lo / a.step - 1e-9), last = std::floor(hi / a.step + 1e-9);
    if (!(a.step > 0) || !finite(first) || !finite(last) || last - first > 200) {
        a = Axis{};
        a.ticks = {-1, -0.5, 0, 0.5, 1};
        return a;
    }
    for (double k = first; k <= last; ++k)
        a.ticks.push_back(k == 0 ? 0.0 : k * a.step); // the origin reads "0", never "-0"
    return a;
}

// As many decimals as the step needs: 0.25 two, 2.5 one, 500 none.
int decimalsFor(double step)
{
    int d = 0;
    double scaled = step;
    while (d < 12 && std::abs(scaled - std::round(scaled)) > 1e-6 * scaled) {
        scaled *= 10;
        ++d;
    }
    return d;
}

QString tickText(double v, int decimals) { return QString::number(v, 'f', decimals); }

double widestLabel(const QFontMetricsF& fm, const Axis& a)
{
    const int d = decimalsFor(a.step);
    double w = 0;
    for (double v : a.ticks)
        w = std::max(w, fm.horizontalAdvance(tickText(v, d)));
    return w;
}

Axis axisAcross(double lo, double hi, double width, const QFontMetricsF& fm, double unit)
{
    double perTick = 70 * unit;
    Axis a = niceAxis(lo, hi, width, perTick);
    for (int i = 0; i < 4; ++i) {
        const double room = width / std::max<double>(static_cast<double>(a.ticks.size()) - 1, 1);
        const double need = widestLabel(fm, a) + 12 * unit;
        if (need <= room)
            break;
        perTick *= need / room + 0.05;
        a = niceAxis(lo, hi, width, perTick);
    }
    return a;
}

QFont bold(const QFont& f)
{
    QFont b = f;
    b.setBold(true);
    return b;
}

// ---- what a label must keep clear of ----

bool segmentMeetsRect(QPointF a, QPointF b, const QRectF& r)
{
    if (r.contains(a) || r.contains(b))
        return true;
    const QLineF s(a, b);
    const std::array<QLineF, 4> edges{QLineF(r.topLeft(), r.topRight()), QLineF(r.topRight(), r.bottomRight()),
                                      QLineF(r.bottomRight(), r.bottomLeft()), QLineF(r.bottomLeft(), r.topLeft())};
    for (const QLineF& e : edges)
        if (s.intersects(e, nullptr) == QLineF::BoundedIntersection)
            return true;
    return false;
}

bool Extent::take(double x, double y)
{
    if (!std::isfinite(x) || !std::isfinite(y))
        return false;
    xMin = std::min(xMin, x);
    xMax = std::max(xMax, x);
    yMin = std::min(yMin, y);
    yMax = std::max(yMax, y);
    return true;
}

bool Obstacles::blocks(const QRectF& r, bool withSoft) const
{
    for (const QRectF& h : hard)
        if (h.intersects(r))
            return true;
    for (std::size_t i = 0; i < curve.size(); ++i)
        if (segmentMeetsRect(curve[i], curve[(i + 1) % curve.size()], r))
            return true;
    if (withSoft)
        for (const auto& [a, b] : soft)
            if (segmentMeetsRect(a, b, r))
                return true;
    return false;
}

QRectF textRect(const QFontMetricsF& fm, const QString& text)
{
    return QRectF(0, 0, fm.horizontalAdvance(text) + 2, fm.height());
}

// The eight places about a point, near then farther, the first preferred: above
// right, as a reader looks for a name.
std::vector<QRectF> placesAround(QPointF p, double radius, QSizeF size, double gap, bool nearOnly)
{
    std::vector<QRectF> out;
    for (double d : {radius + gap, radius + 3.5 * gap}) {
        if (nearOnly && d > radius + gap)
            break;
        const double w = size.width(), h = size.height();
        const std::array<QPointF, 8> corners{
            QPointF(p.x() + d, p.y() - d / 2 - h),      QPointF(p.x() + d, p.y() + d / 2),
            QPointF(p.x() - d - w, p.y() - d / 2 - h),  QPointF(p.x() - d - w, p.y() + d / 2),
            QPointF(p.x() - w / 2, p.y() - d - h),      QPointF(p.x() - w / 2, p.y() + d),
            QPointF(p.x() + d, p.y() - h / 2),          QPointF(p.x() - d - w, p.y() - h / 2)};
        for (const QPointF& c : corners)
            out.emplace_back(c, size);
    }
    return out;
}

// The first free place for one of the texts, the fullest first; none where nothing fits.
std::optional<std::pair<QRectF, int>> firstFree(const std::vector<QString>& texts, const QFontMetricsF& fm,
                                                QPointF at, double radius, double gap, const QRectF& room,
                                                const Obstacles& obstacles, bool nearOnly)
{
    for (int k = 0; k < static_cast<int>(texts.size()); ++k) {
        const QSizeF size = textRect(fm, texts[static_cast<std::size_t>(k)]).size();
        for (bool strict : {true, false})
            for (const QRectF& r : placesAround(at, radius, size, gap, nearOnly))
                if (room.contains(r) && !obstacles.blocks(r, strict))
                    return std::make_pair(r, k);
    }
    return std::nullopt;
}


} // namespace pilarix::render::placement
