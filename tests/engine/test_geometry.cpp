// The drawing of the detailed section in centimetres: every bar where the design put
// it and of its own diameter, the stirrup at the cover, the ties where the flags are,
// the dimensions and the three labels.

#include "engine/column.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

using namespace pilarix;
using namespace pilarix::engine;

namespace {

DetailedSection section(double b, double h, double nb, int na)
{
    DetailedSection d;
    d.width = b;
    d.depth = h;
    d.dLinha = 4.125;
    d.barsOnWidthFace = nb;
    d.barsOnDepthFace = na;
    d.totalBars = static_cast<int>(2 * (nb + na) - 4);
    d.barDiameter = 1.25;
    d.stirrupDiameter = 0.5;
    d.stirrupSpacing = 15;
    d.cover = 3;
    return d;
}

bool hasBarAt(const SectionGeometry& g, double x, double y)
{
    return std::any_of(g.bars.begin(), g.bars.end(), [&](const BarCircle& c) {
        return std::abs(c.centre.x - x) < 1e-9 && std::abs(c.centre.y - y) < 1e-9;
    });
}

std::vector<Point> corners(double x1, double y1, double x2, double y2)
{
    return {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}};
}

} // namespace

TEST(EngineGeometry, BarsOutlineAndStirrup)
{
    struct Row {
        double b, h, nb;
        int na;
    } rows[] = {{20, 50, 2, 4}, {30, 30, 3, 2}, {40, 60, 5, 6}};
    for (const Row& r : rows) {
        const DetailedSection d = section(r.b, r.h, r.nb, r.na);
        const SectionGeometry g = sectionGeometry(d);
        const auto name = ::testing::Message() << r.nb << " x " << r.na << " on " << r.b << " x " << r.h;
        ASSERT_EQ(static_cast<int>(g.bars.size()), d.totalBars) << name;
        for (const BarCircle& c : g.bars)
            EXPECT_EQ(c.diameter, 1.25) << name;
        const double dl = 4.125;
        EXPECT_TRUE(hasBarAt(g, dl, dl) && hasBarAt(g, r.b - dl, dl) && hasBarAt(g, dl, r.h - dl)
                    && hasBarAt(g, r.b - dl, r.h - dl))
            << name;
        // the second bar from the top of a depth face, and of a width face
        const double stepDepth = (r.h - 2 * dl) / (r.na - 1), stepWidth = (r.b - 2 * dl) / (r.nb - 1);
        EXPECT_TRUE(hasBarAt(g, r.b - dl, r.h - dl - stepDepth)) << name;
        EXPECT_TRUE(hasBarAt(g, dl + stepWidth, dl)) << name;
        EXPECT_EQ(g.outline.points, corners(0, 0, r.b, r.h)) << name;
        EXPECT_TRUE(g.outline.closed) << name;
        EXPECT_EQ(g.stirrupOuter.points, corners(3, 3, r.b - 3, r.h - 3)) << name;
        EXPECT_EQ(g.stirrupInner.points, corners(3.5, 3.5, r.b - 3.5, r.h - 3.5)) << name;
        EXPECT_TRUE(g.ties.empty()) << name;
    }
}

TEST(EngineGeometry, TiesWhereTheFlagsAre)
{
    DetailedSection d = section(40, 60, 5, 6);
    d.tiesAcrossWidth = {false, true, false, true, false}; // bars 2 and 4 of the width faces
    d.tiesAcrossDepth = {false, false, true, false};       // bar 3 of the depth faces; the rest unflagged
    const SectionGeometry g = sectionGeometry(d);
    // A tie runs from bar to bar with a hook at each end: its middle points are the bars.
    const double dl = 4.125, x4 = dl + 3 * (40 - 2 * dl) / 4, y3 = 60 - (dl + 2 * (60 - 2 * dl) / 5);
    ASSERT_EQ(g.ties.size(), 3u);
    EXPECT_EQ(std::vector<Point>(g.ties[1].points.begin() + 1, g.ties[1].points.end() - 1),
              (std::vector<Point>{{x4, 60 - dl}, {x4, dl}}));
    EXPECT_EQ(std::vector<Point>(g.ties[2].points.begin() + 1, g.ties[2].points.end() - 1),
              (std::vector<Point>{{dl, y3}, {40 - dl, y3}}));
}

TEST(EngineGeometry, TheDefaultColumnAsDrawn)
{
    ColumnInput in;
    in.dLinha.typed = 4.125;
    FixedAnswers answers;
    Memory memory;
    const ColumnResult c = calculate(in, answers, memory);
    ASSERT_TRUE(c.geometry);
    const SectionGeometry& g = *c.geometry;
    EXPECT_EQ(g.bars.size(), 8u);
    EXPECT_EQ(g.ties.size(), 2u); // the two inner bars of the depth faces
    std::vector<std::string> labels, dimensions;
    for (const Label& l : g.labels)
        labels.push_back(l.text);
    for (const Dimension& d : g.dimensions)
        dimensions.push_back(d.text);
    EXPECT_EQ(labels, (std::vector<std::string>{"N3= 8 ø 12.5 (2 x 4)", "N4= ø 5.0 c/ 15cm  (14.00 x 44.00cm)",
                                                "d'= 4.13cm  c= 3.00cm"}));
    EXPECT_EQ(dimensions, (std::vector<std::string>{"20", "50"}));
}
