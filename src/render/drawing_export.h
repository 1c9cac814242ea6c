#pragma once
// The section's drawing saved as a file: DXF at real size for CAD, SVG and PNG
// through the section painter at a chosen scale.
//
// Size of the SVG and PNG: the drawing's extent in cm (exporting::drawingExtent:
// concrete, steel, dimensions and labels with the room their texts are given)
// times the scale, each side rounded up, plus kExportMargin pixels all round:
//
//   width  = ceil(extent.width()  * scale) + 2 * kExportMargin
//   height = ceil(extent.height() * scale) + 2 * kExportMargin
//
// The PNG records the scale as its resolution (scale * 100 dots per metre), so that
// printed at that resolution it is at real size. Both are on white, like the sheet.
//
// SVG and PNG draw text and need a QGuiApplication, which the caller must have made
// (the command line makes one on the offscreen platform); without one they fail
// with a message instead of crashing. DXF needs none.

#include "engine/geometry.h"

#include <QSize>

#include <string>

namespace pilarix::render {

inline constexpr int kExportMargin = 16;  // pixels
inline constexpr int kMaxExportSide = 10000; // pixels: beyond it the scale is a mistake

// The size of the SVG and PNG by the rule above (a side past kMaxExportSide is
// given as kMaxExportSide + 1).
QSize exportSize(const engine::SectionGeometry& geometry, double scale);

// `scale` in pixels per centimetre. False, with the reason in Portuguese naming
// the file in `error`, when the geometry cannot be drawn, the scale is not a
// positive number or gives a picture over kMaxExportSide pixels a side, or the
// file cannot be written. A file already at `path` is only replaced by a complete
// new one.
bool exportSvg(const engine::SectionGeometry& geometry, const std::string& path, double scale, std::string& error);
bool exportPng(const engine::SectionGeometry& geometry, const std::string& path, double scale, std::string& error);

// The drawing of a design that does not hold ("erro", or input changed since it was
// calculated) with a line "NÃO VERIFICADO: <reason>" above the section, in the
// labels' own height and a little larger, so that DXF, SVG and PNG alike carry it
// and nobody builds from it unawares.
engine::SectionGeometry stampedUnverified(const engine::SectionGeometry& geometry, const std::string& reason);

// The format by the file's suffix, in any case: .dxf (at real size, the scale not
// used), .svg or .png. Any other suffix is refused with a message saying which
// ones are known.
bool exportDrawing(const engine::SectionGeometry& geometry, const std::string& path, double scale,
                   std::string& error);

} // namespace pilarix::render
