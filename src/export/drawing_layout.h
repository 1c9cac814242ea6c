#pragma once
// What the section's drawing adds to its geometry, the same for CAD and for the
// screen: the lines, ticks and value of each overall dimension, and the extent of
// the whole drawing, texts included.
//
// All in centimetres, in the geometry's own frame (origin at the lower-left corner
// of the concrete, y upwards).

#include "engine/geometry.h"

#include <string>
#include <vector>

namespace pilarix::exporting {

struct Segment {
    engine::Point a, b;
};

// An overall dimension as drawn: the dimension line, the two extension lines from
// just off the face to just past the dimension line, and a 45° tick at each end;
// the value centred over the line on the section's side, reading left to right
// or bottom to top.
struct DimensionFigure {
    std::vector<Segment> lines;
    engine::Point textBase;   // middle of the value's baseline
    double textAngle = 0;     // degrees, counter-clockwise from +x
    double textHeight = 0;
    std::string text;
};

// The geometry stands each dimension line two text heights off its face, so the
// value is half the offset tall.
DimensionFigure dimensionFigure(const engine::Dimension& dimension);

struct Extent {
    double minX = 0, minY = 0, maxX = 0, maxY = 0;
    double width() const { return maxX - minX; }
    double height() const { return maxY - minY; }
};

// The room a line of text of `height` cm is given along its baseline: 0.65 of the
// height per character, as wide as the digits of a common sans-serif font. A
// writer whose font runs wider squeezes the text into it.
double textAllowance(const std::string& utf8, double height);

// How far glyphs reach below the baseline, as a part of the text height.
inline constexpr double kTextDescent = 0.25;

// The smallest rectangle holding the concrete, the steel, the dimensions with their
// values and the labels (each text as the box of its allowance, from its descent to
// its height).
Extent drawingExtent(const engine::SectionGeometry& geometry);

// Whether the geometry can be drawn: a section of positive size, bars of positive
// diameter, every coordinate a finite number. Otherwise false and the reason in
// Portuguese.
bool checkDrawable(const engine::SectionGeometry& geometry, std::string& error);

} // namespace pilarix::exporting
