#pragma once
// Column sections the drawing tests share: the program's default column and two
// that exercise the supplementary stirrups and the right-angle hooks.

#include "engine/geometry.h"

#include <vector>

namespace pilarix::test {

struct SampleColumn {
    const char* name;
    engine::DetailedSection detail;
};

inline engine::DetailedSection column(double b, double h, double dLinha, int nb, int nh, double bar, double stirrup)
{
    engine::DetailedSection d;
    d.width = b;
    d.depth = h;
    d.dLinha = dLinha;
    d.barsOnWidthFace = nb;
    d.barsOnDepthFace = nh;
    d.totalBars = 2 * (nb + nh) - 4;
    d.barDiameter = bar;
    d.stirrupDiameter = stirrup;
    d.stirrupSpacing = 15;
    d.cover = 3;
    return d;
}

inline std::vector<SampleColumn> sampleColumns()
{
    SampleColumn ties{"60x30 com suplementares", column(60, 30, 4.3, 5, 3, 1.6, 0.63)};
    ties.detail.tiesAcrossWidth = {false, false, true, false, false};
    ties.detail.tiesAcrossDepth = {false, true, false};
    SampleColumn hooks{"25x25 ganchos a 90°", column(25, 25, 3.5, 3, 3, 1.0, 0.5)};
    hooks.detail.hook = engine::Hook::RightAngle;
    return {{"20x50 padrão", column(20, 50, 4.125, 2, 4, 1.25, 0.5)}, ties, hooks};
}

} // namespace pilarix::test
