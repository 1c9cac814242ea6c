// Slenderness, the minimum moment, γn and the local second order of ABNT NBR 6118:2014:
// a textbook's worked column, and hand-made tables of each rule's branches and limits.

#include "engine/rules2014.h"
#include "engine/slenderness.h"

#include "base/calc_error.h"
#include "support/tolerance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

using namespace pilarix;
using namespace pilarix::engine;

namespace {

constexpr double kN = 100;       // kgf
constexpr double kNcm = 100;     // kgf·cm

// A figure printed to a given last digit: it holds within half of that digit
// (`halfUnit`, in the figure's own unit), or within the allowance the row states.
::testing::AssertionResult printed(double actual, double figure, double halfUnit)
{
    return test::nearRel(actual, figure, halfUnit / std::max(1.0, std::fabs(figure)));
}

// Source: the intermediate column worked in a Brazilian textbook on columns by
// NBR 6118:2014: 20 × 50 cm, Nk = 1000 kN (Nd = 1400 kN), C30, CA-50, γc = 1.4,
// ℓe = 280 cm both ways, d' = 4 cm, no first-order moments; the same column with
// ℓe = 480 cm. Figures as printed, kN and cm.
ColumnSlenderness textbookColumn(double effectiveLength, SecondOrderMethod method)
{
    ColumnSlendernessInput in;
    in.base = 20;
    in.depth = 50;
    in.Nd = 1400 * kN;
    in.fck = 300;
    in.gammaC = 1.4;
    in.alongBase.effectiveLength = in.alongDepth.effectiveLength = effectiveLength;
    in.method = method;
    return columnSlenderness(in);
}

} // namespace

TEST(Slenderness2014, TextbookIntermediateColumn)
{
    const ColumnSlenderness s = textbookColumn(280, SecondOrderMethod::ApproximateCurvature);
    ASSERT_TRUE(s.ok());
    EXPECT_EQ(s.gammaN, 1.0);
    EXPECT_TRUE(printed(s.nu, 0.65, 0.005));
    // The 50 cm direction: λ = 19.4 < λ1 = 35, first order with the minimum moment.
    EXPECT_TRUE(printed(s.alongDepth.lambda, 19.4, 0.05));
    EXPECT_TRUE(printed(s.alongDepth.minimumMoment / kNcm, 4200, 0.5));
    EXPECT_FALSE(s.alongDepth.secondOrder);
    EXPECT_TRUE(printed(s.alongDepth.totalMoment / kNcm, 4200, 0.5));
    // The 20 cm direction: λ = 48.4 > 35. λ printed to 0.1 tells 3.46 from √12 (48.5).
    EXPECT_TRUE(printed(s.alongBase.lambda, 48.4, 0.05));
    EXPECT_EQ(s.alongBase.lambda1, 35);
    EXPECT_EQ(s.alongBase.alphaB, 1.0);
    EXPECT_TRUE(s.alongBase.secondOrder);
    EXPECT_TRUE(printed(s.alongBase.minimumMoment / kNcm, 2940, 0.5));
    EXPECT_TRUE(printed(s.alongBase.e2, 1.70, 0.005));
    EXPECT_TRUE(printed(s.alongBase.secondOrderMoment / kNcm, 2380, 5));
    EXPECT_TRUE(printed(s.alongBase.totalMoment / kNcm, 5320, 5));
}

TEST(Slenderness2014, TextbookColumnWithLongerEffectiveLength)
{
    const ColumnSlenderness s = textbookColumn(480, SecondOrderMethod::ApproximateCurvature);
    ASSERT_TRUE(s.ok());
    // 83.0 against √12's 83.1.
    EXPECT_TRUE(printed(s.alongBase.lambda, 83.0, 0.05));
    // The book rounds 1/r before e2 (4.994 cm here) and multiplies the rounded
    // e2 = 5.00 cm by Nd (9932 kN·cm here): allowances 0.01 cm and 0.1 %.
    EXPECT_TRUE(printed(s.alongBase.e2, 5.00, 0.01));
    EXPECT_NEAR_REL(s.alongBase.totalMoment / kNcm, 9940, 0.001);
}

TEST(Slenderness2014, GammaNBySmallerSideAndArea)
{
    struct Row {
        const char* name;
        double base, depth;
        double gammaN;
        bool refused;
        Rule2014 rule;
    } rows[] = {
        {"12 cm is below 14 cm", 12, 60, 0, true, Rule2014::SideBelowMinimum},
        {"just under 14 cm", 13.99, 60, 0, true, Rule2014::SideBelowMinimum},
        {"14 cm, the last row of the table", 14, 30, 1.25, false, Rule2014::SideBelowMinimum},
        {"18.5 cm on the line, not the step of 18 cm", 18.5, 40, 1.025, false, Rule2014::SideBelowMinimum},
        {"19 cm", 50, 19, 1.0, false, Rule2014::SideBelowMinimum},
        {"25 cm", 25, 25, 1.0, false, Rule2014::SideBelowMinimum},
        {"14 x 25 = 350 cm2 is below 360 cm2", 14, 25, 0, true, Rule2014::AreaBelowMinimum},
        {"15 x 20 = 300 cm2 is below 360 cm2", 20, 15, 0, true, Rule2014::AreaBelowMinimum},
        {"14 x 26 = 364 cm2", 14, 26, 1.25, false, Rule2014::SideBelowMinimum},
    };
    for (const Row& r : rows) {
        const GammaN2014 g = gammaN2014(r.base, r.depth);
        ASSERT_EQ(g.refusal.has_value(), r.refused) << r.name;
        if (r.refused) {
            EXPECT_EQ(g.refusal->id, r.rule) << r.name;
            EXPECT_EQ(g.refusal->clause, "Item 13.2.3 da ABNT NBR 6118:2014") << r.name;
        } else {
            EXPECT_NEAR_REL(g.gammaN, r.gammaN, 1e-12) << r.name;
        }
    }
    const Check2014 side = *gammaN2014(12, 60).refusal;
    EXPECT_NE(side.text.find("12 cm"), std::string::npos) << side.text;
    EXPECT_NE(side.text.find("14 cm"), std::string::npos) << side.text;
    const Check2014 area = *gammaN2014(14, 25).refusal;
    EXPECT_NE(area.text.find("350.00 cm2"), std::string::npos) << area.text;
    EXPECT_NE(area.text.find("360 cm2"), std::string::npos) << area.text;
}

// γn multiplies Nd and the end moments before M1d,min, ν and the second order.
TEST(Slenderness2014, GammaNEntersEveryDesignForce)
{
    ColumnSlendernessInput in;
    in.base = 18.5;
    in.depth = 40;
    in.Nd = 100000;
    in.fck = 300;
    in.alongBase = {0, 300, {200000, 100000}};
    in.alongDepth.effectiveLength = 300;
    const ColumnSlenderness s = columnSlenderness(in);
    ASSERT_TRUE(s.ok());
    EXPECT_NEAR_REL(s.Nd, 102500, 1e-12);
    EXPECT_NEAR_REL(s.nu, 102500 / (740 * 300 / 1.4), 1e-12);
    EXPECT_NEAR_REL(s.alongBase.MA, 205000, 1e-12);
    EXPECT_NEAR_REL(s.alongBase.MB, 102500, 1e-12);
    EXPECT_NEAR_REL(s.alongBase.minimumMoment, 102500 * (1.5 + 0.03 * 18.5), 1e-12);
    EXPECT_NEAR_REL(s.alongDepth.minimumMoment, 102500 * (1.5 + 0.03 * 40), 1e-12);
}

TEST(Slenderness2014, AlphaBFromTheEndMoments)
{
    // Nd = 1000 kN and h = 20 cm: M1d,min = 2100 kN·cm. Equal signs tension the same face.
    struct Row {
        const char* name;
        double top, bottom; // kN·cm
        double MA, MB, alphaB;
    } rows[] = {
        {"single curvature, equal moments: MB/MA = 1", 3000, 3000, 3000, 3000, 1.0},
        {"one end free of moment: MB/MA = 0", 0, 3000, 3000, 0, 0.6},
        {"MB/MA = 0.5", 3000, 1500, 3000, 1500, 0.8},
        {"MB/MA = -0.5 reaches the floor 0.40", 3000, -1500, 3000, -1500, 0.4},
        {"double curvature, MB/MA = -1, held at 0.40", -3000, 3000, 3000, -3000, 0.4},
        {"the larger moment at the bottom, negative", 1000, -3000, 3000, -1000, 0.6 - 0.4 / 3},
        {"|MA| below M1d,min: 1.0 whatever MB", 2000, -2000, 2000, -2000, 1.0},
    };
    for (const Row& r : rows) {
        const DirectionSlenderness d = directionSlenderness({20, 200, {r.top * kNcm, r.bottom * kNcm}}, 1000 * kN, 0.5,
                                                            SecondOrderMethod::ApproximateCurvature);
        EXPECT_NEAR_REL(d.MA / kNcm, r.MA, 1e-12) << r.name;
        EXPECT_NEAR_REL(d.MB / kNcm, r.MB, 1e-12) << r.name;
        EXPECT_NEAR_REL(d.alphaB, r.alphaB, 1e-12) << r.name;
    }
}

TEST(Slenderness2014, LimitSlendernessHeldBetween35And90)
{
    struct Row {
        const char* name;
        double e1, side, alphaB, lambda1;
    } rows[] = {
        {"no first-order eccentricity: 25 raised to 35", 0, 20, 1.0, 35},
        {"e1/h = 1: 37.5", 20, 20, 1.0, 37.5},
        {"e1 = 0, αb = 0.4: 62.5", 0, 20, 0.4, 62.5},
        {"e1/h = 1, αb = 0.4: 93.75 held at 90", 20, 20, 0.4, 90},
        {"a large e1 held at 90", 200, 20, 1.0, 90},
    };
    for (const Row& r : rows)
        EXPECT_NEAR_REL(limitSlenderness(r.e1, r.side, r.alphaB), r.lambda1, 1e-12) << r.name;
}

TEST(Slenderness2014, BothMethodsOnTheTextbookColumn)
{
    // The 20 cm direction, ℓe = 280 cm, Nd = 1400 kN, M1d,A = M1d,min = 2940 kN·cm, αb = 1.
    // κ by hand: A = 5·20 = 100 cm, B = 400·1400 − 1400·280²/320 − 100·2940 = −77 000 kN·cm²,
    // C = −1400·400·2940 = −1.6464e9 kN²·cm³; M = (77 000 + √(77 000² + 400·1.6464e9))/200
    // = 4460.8 kN·cm. Back in 15.8.3.3.3: κ = 32 (1 + 5·4460.8/(20·1400)) 0.6533 = 37.56,
    // λ² = 12·280²/20² = 2352, Md,tot = 2940/(1 − 2352·0.6533/(120·37.56)) = 4460.6.
    struct Row {
        const char* name;
        double effectiveLength;
        SecondOrderMethod method;
        double totalMoment; // kN·cm
    } rows[] = {
        {"curvature, ℓe 280", 280, SecondOrderMethod::ApproximateCurvature, 5319.0},
        {"stiffness κ, ℓe 280", 280, SecondOrderMethod::ApproximateStiffness, 4460.8},
        {"stiffness κ, ℓe 480", 480, SecondOrderMethod::ApproximateStiffness, 9208.0},
    };
    for (const Row& r : rows) {
        const ColumnSlenderness s = textbookColumn(r.effectiveLength, r.method);
        ASSERT_TRUE(s.ok()) << r.name;
        EXPECT_NEAR_REL(s.alongBase.totalMoment / kNcm, r.totalMoment, 1e-4) << r.name;
        EXPECT_NEAR_REL(s.alongBase.secondOrderMoment + 2940 * kNcm, s.alongBase.totalMoment, 1e-12) << r.name;
        EXPECT_NEAR_REL(s.alongBase.e2 * s.Nd, s.alongBase.secondOrderMoment, 1e-12) << r.name;
    }
    // The quadratic is homogeneous in force: kN and kgf give the same moment scaled by 100.
    EXPECT_NEAR_REL(stiffnessMoment(1400 * kN, 20, 280, 1, 2940 * kNcm).totalMoment,
                    100 * stiffnessMoment(1400, 20, 280, 1, 2940).totalMoment, 1e-12);
}

TEST(Slenderness2014, CurvatureLimitsAndTheFloorOfM1dA)
{
    // ν below 0.5: 1/r = 0.005/h, not 0.005/(h (ν + 0.5)).
    const SecondOrderMoment low = curvatureMoment(50000, 0.2, 20, 300, 1, 100000);
    EXPECT_NEAR_REL(low.curvature, 0.005 / 20, 1e-12);
    EXPECT_NEAR_REL(low.e2, 300.0 * 300 / 10 * 0.005 / 20, 1e-12);

    // αb = 0.4 (MB = −MA) with a short second order: αb M1d,A + M2d = 1 242 100 kgf·cm
    // is below M1d,A = 1 500 000, so Md,tot is M1d,A. e1 = 10.71 cm, λ1 = 79.2, λ = 79.6.
    const DirectionSlenderness d = directionSlenderness({20, 460, {1.5e6, -1.5e6}}, 140000, 1400.0 / 2142.857,
                                                        SecondOrderMethod::ApproximateCurvature);
    ASSERT_FALSE(d.refusal);
    EXPECT_NEAR_REL(d.alphaB, 0.4, 1e-12);
    EXPECT_TRUE(d.secondOrder);
    EXPECT_LT(0.4 * 1.5e6 + d.secondOrderMoment, 1.5e6);
    EXPECT_EQ(d.totalMoment, 1.5e6);
}

TEST(Slenderness2014, RefusalsAndBadData)
{
    // ℓe = 540 cm on the 20 cm side: λ = 93.4 > 90.
    ColumnSlendernessInput in;
    in.base = 20;
    in.depth = 50;
    in.Nd = 1400 * kN;
    in.fck = 300;
    in.alongBase.effectiveLength = 540;
    in.alongDepth.effectiveLength = 540;
    const ColumnSlenderness s = columnSlenderness(in);
    ASSERT_FALSE(s.ok());
    EXPECT_EQ(s.refusal->id, Rule2014::SlendernessAbove90);
    EXPECT_EQ(s.refusal->clause, "Item 15.8.3.3 da ABNT NBR 6118:2014");
    EXPECT_NE(s.refusal->text.find("93.4"), std::string::npos) << s.refusal->text;
    EXPECT_NE(s.refusal->text.find("90"), std::string::npos) << s.refusal->text;
    EXPECT_FALSE(s.alongBase.secondOrder);
    EXPECT_EQ(s.alongBase.totalMoment, 0);
    EXPECT_FALSE(s.alongDepth.refusal); // λ = 37.4 on the 50 cm side

    // A section γn refuses: nothing else is worked out.
    in.base = 12;
    const ColumnSlenderness thin = columnSlenderness(in);
    ASSERT_FALSE(thin.ok());
    EXPECT_EQ(thin.refusal->id, Rule2014::SideBelowMinimum);
    EXPECT_EQ(thin.alongDepth.lambda, 0);

    in.base = 20;
    in.Nd = 0;
    EXPECT_THROW(columnSlenderness(in), CalcError);
    in.Nd = 1400 * kN;
    in.alongDepth.effectiveLength = 0;
    EXPECT_THROW(columnSlenderness(in), CalcError);
}
