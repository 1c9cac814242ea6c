// Steel design values and the stress-strain laws of class A and class B steel.

#include "design/design_setup.h"

#include <string>
#include <tuple>
#include <vector>

namespace pilarix {
namespace {

double tensao(Program& p, double eps)
{
    p.Indice = 7;
    p.Eps(7) = eps;
    p.SigSd05();
    return p.Sig(7);
}

TEST(DesignMaterials, DesignValuesOfEachClass)
{
    // An unknown class keeps the yield stress it had and is class A.
    for (const auto& [aco, fyk] : std::vector<std::pair<std::string, double>>{
             {"Aço CA-25A", 2500}, {"Aço CA-50A", 5000}, {"Aço CA-60A", 6000}, {"Aço CA-25B", 2500},
             {"Aço CA-50B", 5000}, {"Aço CA-60B", 6000}, {"Aço CA-45C", 4321}}) {
        test::Projeto s(aco);
        Program& p = s.p;
        p.fyk = 4321, p.Indice = 3;
        p.Aço04();
        const double q = p.SigS2 / p.fyd - 0.7;
        EXPECT_EQ(p.fyk, fyk) << aco;
        EXPECT_NEAR_REL(p.fyd, fyk / 1.15, 1e-15);
        EXPECT_NEAR_REL(p.EpYd, (aco.back() == 'B' ? 2 : 0) + p.fyd * 1000 / p.Es, 1e-12);
        EXPECT_EQ(tensao(p, p.EpYd), p.fyd) << aco;
        EXPECT_EQ(tensao(p, -2 * p.EpYd), -p.fyd) << aco;
        // 2 ‰ lies on the curve ε = σ/Es + (σ/fyd - 0.7)²/45 of class B; class A is
        // Hooke's up to fyd. Aço04 works on the element of the shared index.
        if (aco.back() == 'B')
            EXPECT_NEAR(1000 * (p.SigS2 / p.Es + q * q / 45), 2, 1e-5) << aco;
        else
            EXPECT_EQ(p.SigS2, std::min(4200.0, p.fyd)) << aco;
        EXPECT_EQ(p.Eps(3), 2);
        EXPECT_EQ(p.Sig(3), p.SigS2);
        p.Indice = 502;
        EXPECT_THROW(p.Aço04(), CalcError);
    }
}

TEST(DesignMaterials, StressesOfCa50)
{
    test::Projeto sa, sb("Aço CA-50B");
    Program &a = sa.p, &b = sb.p;
    const double epB = 0.7 * b.fyd * 1000 / b.Es;
    EXPECT_NEAR(a.fyd, 4347.826, 0.001);
    EXPECT_NEAR(a.EpYd, 2.0704, 0.0001);
    EXPECT_NEAR(b.EpYd, 4.0704, 0.0001);
    EXPECT_NEAR(epB, 1.4493, 0.0001);
    EXPECT_EQ(a.SigS2, 4200);
    // {steel, ε, σ, tolerance (0: exact)}. The constant term of class B is taken to single
    // precision: in double the stresses at 2 and 1.5 ‰ would be 3554.733973 and 3131.062752.
    const std::vector<std::tuple<Program*, double, double, double>> linhas{
        {&a, 1.5, 3150, 0},           {&a, -1.5, -3150, 0},          {&a, 2.07, 4347, 1e-9},
        {&a, 0, 0, 0},                {&b, epB, epB * b.Es / 1000, 0},{&b, 3, 4007.2, 0.05},
        {&b, -3, -4007.2, 0.05},      {&b, 2, 3554.733845029018, 1e-8}, {&b, 1.5, 3131.062316044663, 1e-8},
        {&b, 3.7, 4239.377138362362, 1e-8}, {&b, 0, 0, 0}};
    for (const auto& [p, eps, sigma, tol] : linhas) {
        if (tol == 0)
            EXPECT_EQ(tensao(*p, eps), sigma) << eps;
        else
            EXPECT_NEAR(tensao(*p, eps), sigma, tol) << eps;
    }
}

} // namespace
} // namespace pilarix
