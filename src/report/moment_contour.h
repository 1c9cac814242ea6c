#pragma once
// The Mx–My picture of a column under ABNT NBR 6118:2014 as plain numbers in the
// engineer's moment unit: the resisting contour of the detailed section at the
// governing case's N_Sd, every case's point (top, base and, with second order, the
// intermediate section), and the ellipse of the minimum moments whose margin is the
// least. The window's "Diagrama Mx–My" and the report's picture are made from the
// same value by the same painter (render/moment_contour_painter.h).
//
// Mx is the moment of the direction of h (the main window's Md), My that of b.
//
//   momentContourOf(record)    none where there is no 2014 check to draw

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace pilarix::app {
struct CalculationRecord;
}

namespace pilarix::report {

struct ContourPoint {
    std::string caseName;     // as the table of cases names it
    std::string section;      // "topo", "base", "intermediária"
    double mx = 0, my = 0;    // moment unit, γn included
    double nSd = 0;           // force unit: the point's own axial force
    double utilisation = 0;   // along the ray at its own N; +∞ when N is not carried
};

struct MomentContour {
    std::string forceUnit, momentUnit;
    double nSd = 0;                                 // the governing case's, force unit
    std::string governingCase;
    std::vector<std::pair<double, double>> contour; // (Mx, My), closed; empty where N_Sd is not carried
    double mRdxx = 0, mRdyy = 0;
    std::vector<ContourPoint> points;
    // The ellipse (Mx/a)² + (My/b)² = 1 of the case with the least margin.
    std::string envelopeCase;
    double semiAxisX = 0, semiAxisY = 0;
    double margin = 0;  // contour over ellipse, the least: ≥ 1 inside
    bool inside = false;
    double utilisation = 0; // the largest of the points
    bool several = false;   // two or more load cases: the points are named by case
};

std::optional<MomentContour> momentContourOf(const app::CalculationRecord& record);

// "intermediaria" of the engine as the page spells it.
std::string sectionName(const std::string& engineName);

} // namespace pilarix::report
