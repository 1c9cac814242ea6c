// The search for the lightest arrangement: every count of bars per face and every
// stirrup, each by the silent pass; the passing ones ordered by weight, equal weights
// in the order they were found.

#include "engine/search.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace pilarix;
using namespace pilarix::engine;

namespace {
// The default column, with the bars that fit on its faces when d' is still 0:
// (20 / 5 + 1) on the width faces and (50 / 5 + 1) on the depth faces.
SearchInput defaults()
{
    SearchInput in;
    in.maxBarsOnWidthFace = 5;
    in.maxBarsOnDepthFace = 11;
    return in;
}
} // namespace

TEST(EngineSearch, TheDefaultColumn)
{
    Memory memory;
    const SearchResult r = search(defaults(), memory);
    ASSERT_FALSE(r.failure);
    EXPECT_EQ(r.candidates, 10 * 4 * 4);
    ASSERT_EQ(r.solutions.size(), 56u);
    ASSERT_EQ(r.found.size(), 56u);
    // The lightest: 3 x 3 bars of 10 mm, 8 x 0.63 kg/m x 3 m, with each of the four
    // stirrups in the order they were tried; d' follows the stirrup.
    for (int k = 0; k < 4; ++k) {
        const Solution& s = r.solutions[static_cast<std::size_t>(k)];
        EXPECT_EQ(s.weight, 15.12) << k;
        EXPECT_EQ(s.barsOnWidthFace, 3) << k;
        EXPECT_EQ(s.barsOnDepthFace, 3) << k;
        EXPECT_EQ(s.stirrupIndex, k + 1) << k;
    }
    EXPECT_EQ(r.solutions[0].dLinha, 4);
    EXPECT_EQ(r.solutions[1].stirrupDiameter, 0.63);
    // Found first: 2 x 3 bars, heavier.
    EXPECT_EQ(r.found[0].barsOnWidthFace, 2);
    EXPECT_EQ(r.found[0].barsOnDepthFace, 3);
    EXPECT_EQ(r.found[0].weight, 18);
    // Equal weights keep the order they were found in.
    auto foundAt = [&](const Solution& s) {
        return std::find_if(r.found.begin(), r.found.end(), [&](const Solution& f) {
            return f.barsOnWidthFace == s.barsOnWidthFace && f.barsOnDepthFace == s.barsOnDepthFace
                   && f.stirrupIndex == s.stirrupIndex;
        });
    };
    for (std::size_t i = 1; i < r.solutions.size(); ++i) {
        ASSERT_LE(r.solutions[i - 1].weight, r.solutions[i].weight) << i;
        if (r.solutions[i - 1].weight == r.solutions[i].weight) {
            EXPECT_LT(foundAt(r.solutions[i - 1]), foundAt(r.solutions[i])) << i;
        }
    }
}

TEST(EngineSearch, AWallFindsNothingAndAFailureStopsTheSearch)
{
    SearchInput wall = defaults();
    wall.column.depth = 101;
    Memory memory;
    const SearchResult w = search(wall, memory);
    EXPECT_EQ(w.candidates, 160);
    EXPECT_TRUE(w.solutions.empty());
    EXPECT_FALSE(w.failure);

    SearchInput broken = defaults();
    broken.column.gammaC = 0; // a division by zero in the first stage of every candidate
    const SearchResult b = search(broken, memory);
    ASSERT_TRUE(b.failure);
    EXPECT_EQ(b.candidates, 1); // the same data would fail every candidate
    EXPECT_TRUE(b.solutions.empty());
}
