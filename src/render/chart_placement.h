#pragma once
// What the charts of the report and the window share in placing their texts: the
// round-number axes, the things a label must keep clear of (other labels, markers,
// a curve; axes and rays better avoided), and the first free place about a point,
// near then farther, for the fullest of a label's texts that fits. The N–M diagram
// (interaction_painter.h) and the Mx–My contour (moment_contour_painter.h) both
// place their labels with it, so that neither puts a text over another.

#include <QColor>
#include <QFont>
#include <QPen>
#include <QFontMetricsF>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace pilarix::render::placement {

struct Axis {
    double lo = -1, hi = 1, step = 0.5;
    std::vector<double> ticks;
};

// An axis over [lo, hi] (which holds 0) with ticks at the multiples of a round step,
// 1, 2, 2.5 or 5 times a power of ten, about one per `perTick` device units. The ends
// are not rounded out to ticks: that could leave a quarter of the frame empty.
Axis niceAxis(double lo, double hi, double length, double perTick);

// As many decimals as the step needs: 0.25 two, 2.5 one, 500 none.
int decimalsFor(double step);
QString tickText(double v, int decimals);
double widestLabel(const QFontMetricsF& fm, const Axis& a);
// The axis along a frame's width: its values stand side by side and need room, so
// the spacing of about 70 units is widened until they fit (a few tries).
Axis axisAcross(double lo, double hi, double width, const QFontMetricsF& fm, double unit);
QFont bold(const QFont& f);

bool segmentMeetsRect(QPointF a, QPointF b, const QRectF& r);

// The grey of a chart's grid and the dark grey of its axes, in every chart.
inline const QColor kGridColour(228, 228, 228);
inline const QColor kAxisColour(70, 70, 70);

// A point of a chart: a disc of radius `radius` in its utilisation's colour, and for
// the governing point a ring about it.
template <typename Painter>
void paintMarker(Painter& p, QPointF centre, const QColor& colour, double radius, bool governing, double ring,
                 double unit)
{
    p.setPen(QPen(colour.darker(150), 1.2 * unit));
    p.setBrush(colour);
    p.drawEllipse(centre, radius, radius);
    p.setBrush(Qt::NoBrush);
    if (governing) {
        p.setPen(QPen(colour, 1.5 * unit));
        p.drawEllipse(centre, radius + ring, radius + ring);
    }
}

// The grid at every tick of both axes, then the two axes crossing at the origin.
// `screen(x, y)` maps chart values to the device; `unit` is one device millimetre
// or so.
template <typename Painter, typename Screen>
void paintGridAndAxes(Painter& p, const QRectF& a, const std::vector<double>& xTicks,
                      const std::vector<double>& yTicks, double unit, Screen screen)
{
    p.setPen(QPen(kGridColour, 1 * unit));
    for (double v : xTicks)
        p.drawLine(QPointF(screen(v, 0).x(), a.top()), QPointF(screen(v, 0).x(), a.bottom()));
    for (double v : yTicks)
        p.drawLine(QPointF(a.left(), screen(0, v).y()), QPointF(a.right(), screen(0, v).y()));
    const QPointF o = screen(0, 0);
    p.setPen(QPen(kAxisColour, 1.2 * unit));
    p.drawLine(QPointF(a.left(), o.y()), QPointF(a.right(), o.y()));
    p.drawLine(QPointF(o.x(), a.top()), QPointF(o.x(), a.bottom()));
}

// The values a chart must show, the origin always among them (the axes cross there):
// what is not finite is left out.
struct Extent {
    double xMin = 0, xMax = 0, yMin = 0, yMax = 0;
    // False for a point that is not finite.
    bool take(double x, double y);
    double largest() const { return std::max({-xMin, xMax, -yMin, yMax}); }
};

struct Obstacles {
    std::vector<QRectF> hard;                      // labels and markers
    std::vector<QPointF> curve;                    // closed polyline
    std::vector<std::pair<QPointF, QPointF>> soft; // axes and rays: better avoided

    bool blocks(const QRectF& r, bool withSoft) const;
};

QRectF textRect(const QFontMetricsF& fm, const QString& text);

// The eight places about a point, near then farther, the first preferred: above
// right, as a reader looks for a name.
std::vector<QRectF> placesAround(QPointF p, double radius, QSizeF size, double gap, bool nearOnly);

// The first free place for one of the texts, the fullest first; none where nothing fits.
std::optional<std::pair<QRectF, int>> firstFree(const std::vector<QString>& texts, const QFontMetricsF& fm,
                                                QPointF at, double radius, double gap, const QRectF& room,
                                                const Obstacles& obstacles, bool nearOnly = false);

// The values of the two axes at the edges of the frame, clear of what is already
// placed; one that would touch its neighbour is left out. `screen(x, y)` maps chart
// values to the device, `frame` is the plot's area, `unit` one device millimetre or
// so; `place(text, rect, alongX)` keeps each label that fits.
template <typename Screen, typename Place>
void placeTicks(const Axis& x, const Axis& y, const QFontMetricsF& fm, const QRectF& frame, double unit,
                const Obstacles& obstacles, Screen screen, Place place)
{
    const int xd = decimalsFor(x.step), yd = decimalsFor(y.step);
    for (double v : x.ticks) {
        const QString t = tickText(v, xd);
        const QRectF r = textRect(fm, t);
        const QRectF at(screen(v, 0.0).x() - r.width() / 2, frame.bottom() + 4 * unit, r.width(), r.height());
        if (!obstacles.blocks(at, false))
            place(t, at, true);
    }
    for (double v : y.ticks) {
        const QString t = tickText(v, yd);
        const QRectF r = textRect(fm, t);
        const QRectF at(frame.left() - 8 * unit - r.width(), screen(0.0, v).y() - r.height() / 2, r.width(),
                        r.height());
        if (!obstacles.blocks(at, false))
            place(t, at, false);
    }
}

} // namespace pilarix::render::placement
