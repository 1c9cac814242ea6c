#pragma once
// The section's drawing as a DXF file (AutoCAD 2000, ASCII) for the engineer's CAD
// program: real size in centimetres ($INSUNITS = 5), origin at the lower-left corner
// of the concrete, one layer for each kind of line:
//
//   CONCRETO                the outline b x h                       white/black (7)
//   ARMADURA_LONGITUDINAL   one circle of the bar's diameter each    red (1)
//   ESTRIBO                 the stirrup's two faces and its hooks    green (3)
//   ESTRIBO_SUPLEMENTAR     the supplementary stirrups               cyan (4)
//   COTAS                   the overall dimensions                   grey (8)
//   TEXTOS                  the labels of the bars and the stirrup   yellow (2)
//
// Entities take colour, line type and line weight from their layer. The dimensions
// are plain lines, 45° ticks and a text on COTAS: a DIMENSION entity needs the
// block of its picture, which a CAD program would otherwise throw away on opening.
// Texts are written in the Windows-1252 code page the header declares, which holds
// "ø"; a character outside it goes as AutoCAD's \U+XXXX escape.

#include "engine/geometry.h"

#include <string>

namespace pilarix::exporting {

// Writes the drawing to `path` (replacing a file there only once the new one is
// complete). False, with the reason in Portuguese naming the file in `error`, when
// the geometry cannot be drawn or the file cannot be written.
bool writeDxf(const engine::SectionGeometry& geometry, const std::string& path, std::string& error);

// A text as a DXF 2000 file holds it in the ANSI_1252 code page.
std::string dxfText(const std::string& utf8);

} // namespace pilarix::exporting
