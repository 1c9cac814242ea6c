#pragma once
// The picture of the section as a list of primitives in drawing units (the
// window's twips-like units divided by the scale in Text6). The core fills it; the
// window paints it. Cleared at the start of every pass.

#include "state/controls.h"

#include <string>
#include <vector>

namespace pilarix {

struct DrawItem {
    enum class Kind { Line, Circle, FilledCircle, Text };
    Kind kind = Kind::Line;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0; // line ends; circle centre in x1, y1
    double radius = 0;
    std::string text; // for Text: drawn with its left-top corner at x1, y1
    Color color = kBlack;
};

struct Drawing {
    std::vector<DrawItem> items;
    void clear() { items.clear(); }
    bool empty() const { return items.empty(); }
};

} // namespace pilarix
