#pragma once
// The one painter of the section's drawing, for the window, SVG and PNG alike:
// Qt Gui only, no widgets, so that the command line can draw too.
//
// The concrete black, the stirrup and the supplementary stirrups dark red, the bars
// filled black at their real diameter, the dimensions grey with 45° ticks and their
// values, the labels black. Texts scale with the drawing, as on paper: each is as
// tall as the geometry says, in the font's em, and squeezed sideways into the room
// drawingExtent gives it should the font run wider.
//
// Drawing text needs a QGuiApplication (the fonts live there): the caller must have
// one, the command line included (it runs on the offscreen platform).

#include "engine/geometry.h"

#include <QPointF>
#include <QRectF>

#include <string>
#include <vector>

class QPainter;

namespace pilarix::render {

// Where the drawing lands on the device: `scale` pixels per centimetre and the
// device point of the geometry's origin, the lower-left corner of the concrete.
// The device's y runs down, the drawing's up.
struct DrawingView {
    double scale = 1;
    QPointF origin;

    QPointF toDevice(engine::Point p) const { return {origin.x() + p.x * scale, origin.y() - p.y * scale}; }
    engine::Point toDrawing(QPointF d) const { return {(d.x() - origin.x()) / scale, (origin.y() - d.y()) / scale}; }
};

// The whole drawing (exporting::drawingExtent), as large as fits in `frame` less
// `margin` pixels all round, centred. A frame too small for the margin still gets
// a positive scale.
DrawingView fitView(const engine::SectionGeometry& geometry, const QRectF& frame, double margin);

// The drawing at `scale`, its extent's upper-left corner `margin` pixels in from
// the device's (0, 0).
DrawingView placedView(const engine::SectionGeometry& geometry, double scale, double margin);

struct PaintStyle {
    bool stale = false; // all in light grey: the input changed since the drawing was made
    // The least height of a text on the device, pixels; 0: every text as tall as the
    // geometry says (the exported drawings). The window sets its own small text size,
    // so that a drawing fitted into a small frame at 150 % is still read: the values
    // of the dimensions then stand outside their lines, and the labels start below
    // them at a pitch of their new height.
    double minimumTextPixels = 0;
};

// Where each text of the drawing lands on the device with `minimumTextPixels`: its
// height and the box it may fill (its room along the baseline, its height and a
// quarter of it below), dimensions first, then the labels.
struct TextPlace {
    QRectF box;
    double pixels = 0;
    std::string text;
};
std::vector<TextPlace> placedTexts(const engine::SectionGeometry& geometry, const DrawingView& view,
                                   double minimumTextPixels);

// How far below `view`'s extent of the drawing (exporting::drawingExtent) the texts
// reach on the device with `minimumTextPixels`, pixels (0: not beyond it).
double textOverflowBelow(const engine::SectionGeometry& geometry, const DrawingView& view,
                         double minimumTextPixels);

void paintSection(QPainter& painter, const engine::SectionGeometry& geometry, const DrawingView& view,
                  const PaintStyle& style = {});

} // namespace pilarix::render
