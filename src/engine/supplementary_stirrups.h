#pragma once
// Supplementary stirrups of a face (NBR 6118, 18.4.3): the polygonal stirrup holds the
// corner bars and the bars within 20 φt of a held bar; any other bar needs a
// supplementary stirrup.
//
//   faceTies(length, d', n, φt)   the axis spacing of the n bars of a face, its middle
//       bar, and which bars carry a tie (positions 1 to n, corners never): every inner
//       bar when the spacing passes 20 φt; otherwise the marking tables of the
//       program, from the middle bar outwards, one bar held on each side of a tied bar
//       (spacing over 10 φt, five bars or more) or two (seven bars or more).

#include "base/vb_array.h"
#include "engine/method_state.h"

#include <cstdint>
#include <vector>

namespace pilarix::engine {

struct FaceTies {
    double axisSpacing = 0;
    std::int16_t middleBar = 0;
    std::vector<TieFlag> flags; // bar 1 at element 0
    int count = 0;
};

FaceTies faceTies(double faceLength, double dLinha, double bars, double stirrupDiameter);

namespace detail {
// The same on the method's flag array (positions 1 to 500); the shared counter ends
// one past the last bar. Returns the count of ties.
double markFaceTies(double faceLength, double dLinha, double bars, double stirrupDiameter, double& axisSpacing,
                    std::int16_t& middleBar, VbArray<TieFlag, 1, 500>& flags, long& counter);
} // namespace detail

} // namespace pilarix::engine
