// The detailing limits of ABNT NBR 6118:2014 for columns, the bars the corners of a
// stirrup hold, and the rules an arrangement breaks. Hand-made tables.

#include "engine/rules2014.h"

#include "base/calc_error.h"
#include "support/tolerance.h"

#include <gtest/gtest.h>

#include <vector>

using namespace pilarix;
using namespace pilarix::engine;

namespace {
// 20 × 50 cm, CA-50, Nd = 1400 kN, φ 16 mm, φt 5 mm, aggregate 19 mm, class II, Δc 1 cm.
Detailing2014Input column()
{
    Detailing2014Input in;
    in.base = 20;
    in.depth = 50;
    in.steel = SteelGrade::CA50A;
    in.Nd = 140000;
    in.barDiameter = 1.6;
    in.stirrupDiameter = 0.5;
    in.aggregate = 1.9;
    return in;
}
} // namespace

TEST(Rules2014, DetailingLimits)
{
    struct Row {
        const char* name;
        Detailing2014Input in;
        double asMin, maxBar, minFree, maxAxis, minStirrup, maxStirrupSpacing, cover;
    };
    auto with = [](auto change) {
        Detailing2014Input in = column();
        change(in);
        return in;
    };
    const Row rows[] = {
        // 0.15·140000/(5000/1.15) = 4.83 cm² over 0.4 % of 1000; free by 1.2·1.9 = 2.28;
        // stirrups by 12·1.6 = 19.2 cm.
        {"the textbook column", column(), 4.83, 2.5, 2.28, 40, 0.5, 19.2, 3.0},
        {"light load: 0.4 % Ac", with([](auto& i) { i.Nd = 50000; }), 4.0, 2.5, 2.28, 40, 0.5, 19.2, 3.0},
        {"no aggregate, 25 mm bar: free by φ, stirrup by φ/4", with([](auto& i) {
             i.aggregate = 0;
             i.barDiameter = 2.5;
         }),
         4.83, 2.5, 2.5, 40, 0.625, 20, 3.0},
        {"thin bar: free 20 mm", with([](auto& i) {
             i.aggregate = 0;
             i.barDiameter = 1.0;
         }),
         4.83, 2.5, 2.0, 40, 0.5, 12, 3.0},
        {"CA-25: 24 φ, fyd of 2500", with([](auto& i) {
             i.steel = SteelGrade::CA25A;
             i.barDiameter = 0.8;
         }),
         9.66, 2.5, 2.28, 40, 0.5, 19.2, 3.0},
        {"CA-60 spaced like CA-50", with([](auto& i) { i.steel = SteelGrade::CA60B; }), 4.025, 2.5, 2.28, 40, 0.5,
         19.2, 3.0},
        {"15 cm side: axis 30 cm, stirrups 15 cm", with([](auto& i) {
             i.base = 15;
             i.barDiameter = 1.6;
         }),
         4.83, 1.875, 2.28, 30, 0.5, 15, 3.0},
        {"class I, Δc 0.5 cm", with([](auto& i) {
             i.exposure = ExposureClass::I;
             i.deltaC = 0.5;
         }),
         4.83, 2.5, 2.28, 40, 0.5, 19.2, 2.0},
        {"class III", with([](auto& i) { i.exposure = ExposureClass::III; }), 4.83, 2.5, 2.28, 40, 0.5, 19.2, 4.0},
        {"class IV", with([](auto& i) { i.exposure = ExposureClass::IV; }), 4.83, 2.5, 2.28, 40, 0.5, 19.2, 5.0},
    };
    for (const Row& r : rows) {
        const Detailing2014Limits l = detailingLimits2014(r.in);
        EXPECT_NEAR_REL(l.asMin, r.asMin, 1e-3) << r.name;
        EXPECT_NEAR_REL(l.asMax, 0.04 * r.in.base * r.in.depth, 1e-12) << r.name;
        EXPECT_EQ(l.minimumBar, 1.0) << r.name;
        EXPECT_NEAR_REL(l.maximumBar, r.maxBar, 1e-12) << r.name;
        EXPECT_NEAR_REL(l.minimumFree, r.minFree, 1e-12) << r.name;
        EXPECT_NEAR_REL(l.maximumAxis, r.maxAxis, 1e-12) << r.name;
        EXPECT_NEAR_REL(l.minimumStirrup, r.minStirrup, 1e-12) << r.name;
        EXPECT_NEAR_REL(l.maximumStirrupSpacing, r.maxStirrupSpacing, 1e-12) << r.name;
        EXPECT_NEAR_REL(l.nominalCover, r.cover, 1e-12) << r.name;
        EXPECT_NEAR_REL(l.maximumAggregate, 1.2 * r.cover, 1e-12) << r.name;
    }
    Detailing2014Input bad = column();
    bad.deltaC = 0.4;
    EXPECT_THROW(detailingLimits2014(bad), CalcError);
}

TEST(Rules2014, BarsTheCornersHold)
{
    struct Row {
        const char* name;
        double face;
        int bars;
        double stirrup;
        std::vector<bool> held;
    } rows[] = {
        {"two corner bars only", 20, 2, 0.5, {true, true}},
        {"4 bars at 14 cm, reach 10 cm", 50, 4, 0.5, {true, false, false, true}},
        {"4 bars at 14 cm, reach 16 cm", 50, 4, 0.8, {true, true, true, true}},
        {"6 bars at 8.4 cm, reach 10 cm: the second from each corner at 16.8", 50, 6, 0.5,
         {true, true, false, false, true, true}},
        {"3 bars exactly at the reach: 10 cm", 28, 3, 0.5, {true, true, true}},
        {"8 bars at 6 cm, reach 20 cm: the third at 18 cm is past the two a corner holds", 50, 8, 1.0,
         {true, true, true, false, false, true, true, true}},
    };
    for (const Row& r : rows) {
        const FaceTies2014 t = faceTies2014(r.face, 4, r.bars, r.stirrup);
        EXPECT_EQ(t.held, r.held) << r.name;
        int notHeld = 0;
        for (const bool h : r.held)
            notHeld += h ? 0 : 1;
        EXPECT_EQ(t.notHeld, notHeld) << r.name;
    }
    EXPECT_THROW(faceTies2014(50, 4, 1, 0.5), CalcError);
}

TEST(Rules2014, RulesAnArrangementBreaks)
{
    // 2 × 4 bars of 16 mm, d' 4 cm: width faces 12 cm apart, depth faces 14 cm apart.
    const Arrangement2014 good{2, 4, 4, 16.08, 19, 3.0};
    struct Row {
        const char* name;
        Detailing2014Input in;
        Arrangement2014 a;
        std::vector<Rule2014> failures;
    };
    auto withIn = [](auto change) {
        Detailing2014Input in = column();
        change(in);
        return in;
    };
    auto withA = [&](auto change) {
        Arrangement2014 a = good;
        change(a);
        return a;
    };
    const Row rows[] = {
        {"every rule kept, φt 8 mm reaching 16 cm", withIn([](auto& i) { i.stirrupDiameter = 0.8; }), good, {}},
        {"the depth bars beyond 10 cm of the corner", column(), good, {Rule2014::SupplementaryStirrupsNeeded}},
        {"steel below the minimum, stirrups too far apart",
         withIn([](auto& i) { i.stirrupDiameter = 0.8; }),
         withA([](auto& a) {
             a.providedArea = 4.8;
             a.stirrupSpacing = 19.5;
         }),
         {Rule2014::SteelBelowMinimum, Rule2014::StirrupSpacingAboveMaximum}},
        {"more than 4 %, cover short",
         withIn([](auto& i) { i.stirrupDiameter = 0.8; }),
         withA([](auto& a) {
             a.providedArea = 40.5;
             a.cover = 2.5;
         }),
         {Rule2014::SteelAboveMaximum, Rule2014::CoverBelowNominal}},
        {"8 mm bar, aggregate over 1.2 c_nom",
         withIn([](auto& i) {
             i.barDiameter = 0.8;
             i.stirrupDiameter = 0.8;
             i.aggregate = 3.8;
         }),
         withA([](auto& a) { a.stirrupSpacing = 9; }),
         {Rule2014::BarBelowMinimum, Rule2014::AggregateAboveCover}},
        {"12 bars on a 50 cm face: 2.22 cm free against 2.28, inner bars past the two held",
         withIn([](auto& i) { i.stirrupDiameter = 0.8; }), withA([](auto& a) { a.barsOnDepthFace = 12; }),
         {Rule2014::FreeSpacingBelowMinimum, Rule2014::SupplementaryStirrupsNeeded}},
        {"32 mm bar in a 20 cm side: 1/8, stirrup and cover by φ",
         withIn([](auto& i) {
             i.barDiameter = 3.2;
             i.stirrupDiameter = 0.63;
             i.aggregate = 0;
             i.exposure = ExposureClass::I;
         }),
         withA([](auto& a) {
             a.providedArea = 32.17;
             a.stirrupSpacing = 15;
             a.cover = 2.5;
         }),
         {Rule2014::BarAboveEighthOfSide, Rule2014::StirrupBelowMinimum, Rule2014::CoverBelowBarDiameter,
          Rule2014::SupplementaryStirrupsNeeded}},
        {"two bars on a 50 cm face: 42 cm apart",
         withIn([](auto& i) { i.stirrupDiameter = 0.8; }), withA([](auto& a) { a.barsOnDepthFace = 2; }),
         {Rule2014::AxisSpacingAboveMaximum}},
    };
    for (const Row& r : rows) {
        const Detailing2014Check c = checkDetailing2014(r.in, r.a);
        std::vector<Rule2014> ids;
        for (const Check2014& f : c.failures) {
            ids.push_back(f.id);
            EXPECT_EQ(f.clause, clauseOf(f.id)) << r.name;
            EXPECT_NE(f.clause.find("da ABNT NBR 6118:2014"), std::string_view::npos) << r.name;
        }
        EXPECT_EQ(ids, r.failures) << r.name;
    }
    // Four bars not held: the two inner bars of each depth face, on both faces.
    const Detailing2014Check c = checkDetailing2014(column(), good);
    ASSERT_EQ(c.failures.size(), 1u);
    EXPECT_NE(c.failures[0].text.find("4 barras"), std::string::npos) << c.failures[0].text;
    EXPECT_EQ(c.failures[0].clause, "Item 18.2.4 da ABNT NBR 6118:2014");
}
