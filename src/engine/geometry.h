#pragma once
// The detailed section as a drawing in centimetres, for the screen and for CAD.
//
//   sectionGeometry(detail)   outline, stirrup with its hooks, the bars (centre and
//                             diameter), the supplementary stirrups, the two overall
//                             dimensions and the labels of the bars and the stirrup.
//
// Coordinates: x along the width b, y along the depth h, origin at the lower-left
// corner of the concrete, y upwards; the most compressed face is the top one (y = h),
// so the bar layer at depth d' lies at y = h − d'. Everything is in cm, at real size.

#include "engine/options.h"

#include <string>
#include <vector>

namespace pilarix::engine {

struct Point {
    double x = 0, y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

struct Polyline {
    std::vector<Point> points;
    bool closed = false;
};

struct BarCircle {
    Point centre;
    double diameter = 0; // cm
};

// A linear dimension between two points of the outline, its line drawn parallel to
// them at `offset` (cm) outside the section, its value written beside it.
struct Dimension {
    Point from, to;
    double offset = 0;
    std::string text;
};

// A line of text with its lower-left corner at `position`, `height` cm tall.
struct Label {
    Point position;
    double height = 0;
    std::string text;
};

struct SectionGeometry {
    double width = 0, depth = 0;          // b and h
    Polyline outline;                     // the concrete, b x h
    Polyline stirrupOuter, stirrupInner;  // the stirrup's two faces: at the cover, and one φt further in
    std::vector<Polyline> stirrupHooks;   // the two hooks at one corner, bent into the core
    std::vector<BarCircle> bars;          // every longitudinal bar, corners included
    std::vector<Polyline> ties;           // each supplementary stirrup with its two hooks
    std::vector<Dimension> dimensions;    // width (below) and depth (right)
    std::vector<Label> labels;            // "N3= ...", "N4= ...", "d'= ... c= ..."
};

// What the drawing needs of a detailed column.
struct DetailedSection {
    double width = 0, depth = 0;  // b, h, cm
    double dLinha = 0;            // face to bar centre, cm
    double barsOnWidthFace = 0;   // nBase, corners included
    int barsOnDepthFace = 0;      // nAltura, corners included
    int totalBars = 0;
    double barDiameter = 0;       // cm
    double stirrupDiameter = 0;   // cm
    double stirrupSpacing = 0;    // cm
    double cover = 0;             // effective cover of the stirrup, cm
    Hook hook = Hook::Angle45;
    std::vector<bool> tiesAcrossWidth; // bar i (from 1) of the width faces tied across the depth
    std::vector<bool> tiesAcrossDepth; // bar j (from 1) of the depth faces tied across the width
    double hookLength = 0;    // one hook of the stirrup, cm (half the allowance of both); 0: a sketch of it
    double tieHookLength = 0; // one hook of a supplementary stirrup, cm; 0: a sketch of it
};

SectionGeometry sectionGeometry(const DetailedSection& detail);

// The centre of bar i (1 to n) along a face of `length` cm with n bars, from the
// face's start: d' for the first, length − d' for the last, equally spaced between.
double barPositionOnFace(double length, double dLinha, long n, long i);

} // namespace pilarix::engine
