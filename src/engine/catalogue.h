#pragma once
// The commercial bars, with the nominal areas and masses of the bar tables that the
// site orders steel by (rounded figures, never π·φ²/4). Every part of the program
// takes diameters, areas, masses and labels from here.
//
//   bar(i)            the bar of catalogue index i, 1 (5 mm) to 11 (40 mm)
//   catalogue()       all eleven, thinnest first
// Bars 1 to 4 (5 to 10 mm) serve stirrups; bars 4 to 11 (10 to 40 mm) longitudinal
// reinforcement.

#include <span>
#include <string_view>

namespace pilarix::engine {

struct Bar {
    int index;                   // 1 to 11
    double diameter;             // cm
    double area;                 // cm²
    double mass;                 // kg/m
    std::string_view label;      // "12.5 mm (1/2'')": the lists of the main window and "Outros valores"
    std::string_view labelComma; // "12,5 mm (1/2'')": the lists of "Estimativa de d'"
    std::string_view shortText;  // "12.5": the solutions list
};

inline constexpr int kBarCount = 11;
inline constexpr int kFirstLongitudinalBar = 4; // 10 mm: the thinnest bar a column carries lengthwise
inline constexpr int kLastStirrupBar = 4;       // 10 mm: the thickest stirrup

std::span<const Bar> catalogue();

// The bar of index i; outside 1 to 11 a CalcError names the index (and the
// catalogue's column that was looked up: "DiamBitola", "AreaBitola").
const Bar& bar(int index, const char* column = "DiamBitola");

// The index of the bar whose label (point or comma spelling) is `text`; 0 if none is.
int barIndexByLabel(std::string_view text);

} // namespace pilarix::engine
