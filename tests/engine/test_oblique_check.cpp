// Both directions together under 2014, and the design above C50: the quick answers
// the search takes never say "carried" where the contour does not, the class law's
// area is the least that carries, and ηc of 2023 only takes resistance away.

#include "engine/biaxial.h"
#include "engine/class_law_design.h"

#include "support/tolerance.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace pilarix;
using namespace pilarix::engine;

TEST(ObliqueCheck, TheSearchsQuickAnswersAreNeverUnsafe)
{
    // Inside the straight line between the axis capacities (98 % of it) a point is
    // carried; inside the rhombus an ellipse is inside the contour. Checked against
    // the exact contour over sections, bar counts, classes and forces.
    int quick = 0;
    for (const double b : {20.0, 40.0})
        for (const double h : {20.0, 60.0})
            for (const int rows : {2, 5})
                for (const double fck : {250.0, 700.0, 900.0})
                    for (const double n : {-0.1, 0.3, 0.7}) {
                        const BiaxialSection s = biaxialColumn(b, h, 4, 3, rows, 2.0, designConcrete(fck, 1.4),
                                                               designSteel(SteelGrade::CA50A, 1.15, 2100000));
                        const AxialRange range = axialRange(s);
                        const double nSd = n > 0 ? n * range.nRdMax : -n * range.nRdMin;
                        const AxisCapacities axis = axisCapacities(s, nSd);
                        ASSERT_TRUE(axis.inRange);
                        for (const double t : {0.1, 0.3, 0.5, 0.7, 0.9}) {
                            // On the line at 98 %: mx/Mxx + my/Myy = 0.98.
                            const double mx = 0.98 * t * axis.mRdxx, my = 0.98 * (1 - t) * axis.mRdyy;
                            EXPECT_LE(utilisationAtN(s, nSd, mx, my).ratio, 1) << b << "x" << h << " fck " << fck;
                            // An ellipse touching the rhombus at 98 %.
                            const double a = 0.98 * axis.mRdxx * std::sqrt(t), e = 0.98 * axis.mRdyy * std::sqrt(1 - t);
                            EXPECT_GE(minimumMomentMargin(s, nSd, a, e).margin, 1) << b << "x" << h << " fck " << fck;
                            ++quick;
                        }
                    }
    EXPECT_EQ(quick, 2 * 2 * 2 * 3 * 3 * 5);
}

TEST(ClassLawDesign, TheAreaIsTheLeastThatCarries)
{
    // 30 x 30, 3 + 3 bars, 2000 kN with 100 kN·m: C30 (the C50 law) and C70, C90 (their own).
    for (const double fck : {300.0, 700.0, 900.0}) {
        ColumnInput c;
        c.base = c.depth = 30, c.barsOnWidthFace = 3, c.barsOnDepthFace = 3, c.fck = fck, c.gammaC = 1.4;
        const auto area = requiredAreaByClassLaw(c, 4, 200000, 1000000, 0, ConcreteRules::Nbr2014);
        ASSERT_TRUE(area) << fck;
        auto at = [&](double total) {
            const BiaxialSection s = biaxialColumn(30, 30, 4, 3, 3, std::max(total / 8, 1e-9), designConcrete(fck, 1.4),
                                                   designSteel(SteelGrade::CA50A, 1.15, 2100000));
            return utilisationAtN(s, 200000, 1000000, 0).ratio;
        };
        EXPECT_LE(at(*area), 1) << fck;
        if (*area > 0.01) {
            EXPECT_GT(at(*area - 0.01), 1) << fck;
        }
    }
}

TEST(ClassLawDesign, EtaCOf2023TakesResistanceAwayAboveC40Only)
{
    // ηc = (40/fck)^(1/3): 1 at C40, 0.928 at C50, 0.763 at C90 (ABNT NBR 6118:2023).
    for (const auto& [fck, less] : {std::pair{400.0, false}, std::pair{500.0, true}, std::pair{900.0, true}}) {
        auto capacity = [&](ConcreteRules rules) {
            const BiaxialSection s = biaxialColumn(30, 50, 4, 3, 4, 2.0, designConcrete(fck, 1.4),
                                                   designSteel(SteelGrade::CA50A, 1.15, 2100000), rules);
            return axisCapacities(s, 100000).mRdxx;
        };
        if (less) {
            EXPECT_LT(capacity(ConcreteRules::Nbr2023), capacity(ConcreteRules::Nbr2014)) << fck;
        } else {
            EXPECT_NEAR_REL(capacity(ConcreteRules::Nbr2023), capacity(ConcreteRules::Nbr2014), 1e-12);
        }
    }
}
