#pragma once
// Column sections the drawing tests share: the program's default column, a wide
// one with supplementary stirrups both ways, a square one with right-angle hooks.

#include "engine/geometry.h"

#include <vector>

namespace pilarix::test {

struct SampleColumn {
    const char* name;
    engine::DetailedSection detail;
};

inline std::vector<SampleColumn> sampleColumns()
{
    using engine::Hook;
    const auto column = [](double b, double h, double dl, int nb, int nh, double bar, double stirrup, Hook hook,
                           std::vector<bool> acrossWidth, std::vector<bool> acrossDepth) {
        return engine::DetailedSection{b, h, dl, double(nb), nh, 2 * (nb + nh) - 4, bar, stirrup, 15, 3, hook,
                                       std::move(acrossWidth), std::move(acrossDepth)};
    };
    return {{"20x50 padrão", column(20, 50, 4.125, 2, 4, 1.25, 0.5, Hook::Angle45, {}, {})},
            {"60x30 com suplementares",
             column(60, 30, 4.3, 5, 3, 1.6, 0.63, Hook::Angle45, {false, false, true, false, false}, {false, true})},
            {"25x25 ganchos a 90°", column(25, 25, 3.5, 3, 3, 1.0, 0.5, Hook::RightAngle, {}, {})}};
}

} // namespace pilarix::test
