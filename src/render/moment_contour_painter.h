#pragma once
// The one painter of the Mx–My diagram of a column under ABNT NBR 6118:2014, for
// the window's "Diagrama Mx–My" and the calculation report alike: Qt Gui only, on
// any paint device.
//
// The resisting contour of the detailed section at the governing case's N_Sd (Mx
// across, My up, one scale for both, so that the contour has its true shape), every
// case's point at the top, the base and the intermediate section, green when
// carried at its own N and red when not, the most used one larger and ringed, and
// the ellipse of the minimum moments (11.3.3.4.3, 15.3.2) dashed, green when inside
// the contour and red when it leaves it, with its margin.
//
// As the N–M painter (interaction_painter.h), the layout is a value: where every text
// went can be checked without pixels. Labels are placed by chart_placement.h: none
// over another, a marker or the contour; a point's name is shortened where it does
// not fit, and left out where even that finds no room (the report lists every point).
//
//   layoutContour(contour, bounds, style, device)   where everything goes
//   paintContour(painter, contour, layout, style)   paints it

#include "render/interaction_painter.h"
#include "report/moment_contour.h"

#include <QPointF>
#include <QRectF>
#include <QString>

#include <vector>

class QPainter;
class QPaintDevice;

namespace pilarix::render {

struct ContourLabel {
    enum class Kind { XTick, YTick, XTitle, YTitle, Caption, Point, Envelope };
    Kind kind = Kind::Point;
    QString text;
    QRectF rect;
    int pointIndex = -1; // Point: its index in contour.points
    bool bold = false;
    bool shortened = false;
};

struct ContourMarker {
    int pointIndex = 0;
    QPointF centre;
    double radius = 0; // the ring's of the most used point included
};

struct ContourLayout {
    bool drawable = false; // false: fewer than three finite points of the contour
    QRectF bounds, area;
    double xLo = -1, xHi = 1, yLo = -1, yHi = 1, xStep = 1, yStep = 1;
    std::vector<double> xTicks, yTicks;
    std::vector<ContourLabel> labels;
    std::vector<ContourMarker> markers; // one per point with finite moments
    std::vector<int> unlabelledPoints;
    int governing = -1; // the point of largest utilisation
    std::vector<QPointF> contour, ellipse; // on the device

    QPointF toScreen(double mx, double my) const;
};

ContourLayout layoutContour(const report::MomentContour& contour, const QRectF& bounds, const ChartStyle& style,
                            QPaintDevice* device);
void paintContour(QPainter& painter, const report::MomentContour& contour, const ContourLayout& layout,
                  const ChartStyle& style);

// The point of largest utilisation (+∞ first, a NaN least); -1 without points.
int mostUsedPoint(const report::MomentContour& contour);

// A point's name on the chart: "1 topo" with several cases, "topo" with one.
QString pointName(const report::MomentContour& contour, const report::ContourPoint& point);

} // namespace pilarix::render
