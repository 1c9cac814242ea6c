// Reference fields, zone bounds, the moment the concrete alone carries, and the zone.

#include "design/design_setup.h"

#include <cmath>
#include <string>
#include <tuple>
#include <vector>

namespace pilarix {
namespace {

TEST(DesignZones, ReferenceFieldsAndTheirMoments)
{
    for (const char* aco : {"Aço CA-50A", "Aço CA-50B"}) {
        test::Projeto s(aco, 5); // δ = 0.1
        Program& p = s.p;
        p.Ni = 0.3;
        p.SNiCrit06();
        p.SConstZ10();
        p.SMiACEC13();
        EXPECT_NEAR_REL(p.NiCrit, 34.0 / 84, 1e-15); // βx = 0.5 is on the 3.5 ‰ pivot
        EXPECT_TRUE(p.NiCrit1 == p.EtaC1 && p.NiCrit2 == p.EtaC2);
        // {βx, η, η', κ, tolerance of κ: near 0.5 the bars' mean stress is small}
        const double refs[][5] = {{0.9, p.EtaA, p.EtaLinA, p.KapaA, 1e-6}, {0.1, p.EtaE, p.EtaLinE, p.KapaE, 1e-6},
                                  {0.4999, p.EtaC1, p.EtaLinC1, p.KapaC1, 1e-4},
                                  {0.5001, p.EtaC2, p.EtaLinC2, p.KapaC2, 1e-4}};
        EXPECT_EQ(std::vector<double>({p.BetaXA, p.BetaXE, p.BetaXC1, p.BetaXC2}),
                  std::vector<double>({0.9, 0.1, 0.5 - 0.0001, 0.5 + 0.0001}));
        for (const auto& [bx, eta, etaLin, kapa, tolKapa] : refs) {
            const auto c = test::ref::concreto(test::ref::campo(bx, 0.1));
            const auto [med, medY] = test::ref::barras(p, std::string(aco).back() == 'B', bx);
            EXPECT_NEAR(eta, c.first, 1e-12) << aco << " " << bx;
            EXPECT_NEAR(etaLin, c.second, 1e-12) << aco << " " << bx;
            EXPECT_NEAR_REL(kapa, medY / med, tolKapa) << aco << " " << bx;
        }
        // The moment about mid-height of a field balancing ν; only the C bounds in size.
        EXPECT_EQ(p.MiA, 0.3 * (0.5 - p.KapaA) - p.LambdaA);
        EXPECT_EQ(p.MiE, 0.3 * (0.5 - p.KapaE) - p.LambdaE);
        EXPECT_EQ(p.MiC1, std::fabs(0.3 * (0.5 - p.KapaC1) - p.LambdaC1));
        EXPECT_EQ(p.MiC, std::fabs(0.3 * (0.5 - p.KapaC2) - p.LambdaC2));
    }
}

TEST(DesignZones, ZoneByForceAndMoment)
{
    // {μ0, μA, ν, μ, zone} with ηA = 0.7, ηE = 0.05, μE = 0.02; the second block has μ0
    // below the bounds, so that zones A and E show between 0 and 1.
    const std::vector<std::tuple<double, double, double, double, std::string>> linhas{
        {0.1, 0.08, 0.3, 0.05, "O"},       {0.1, 0.08, 0.3, 0.1, "O"},        {0.1, 0.08, 0.0, 0.1, "O"},
        {0.1, 0.08, 1.0, 0.1, "O"},        {0.1, 0.08, 0.8, 0.08, "O"},       {0.1, 0.08, 0.8, 0.1 + 1e-9, "C"},
        {0.1, 0.08, 0.3, 0.2, "C"},        {0.1, 0.08, 0.7, 0.15, "C"},       {0.1, 0.08, 1.2, 0.08, "A"},
        {0.1, 0.08, 1.2, 0.0800001, "C"},  {0.1, 0.08, 1.2, 0.0, "A"},        {0.1, 0.08, -0.1, 0.02, "E"},
        {0.1, 0.08, -0.1, 0.0200001, "C"}, {0.1, 0.08, -0.1, -0.5, "E"},      {0.01, 0.02, 0.8, 0.02, "A"},
        {0.01, 0.02, 0.8, 0.0200001, "C"}, {0.01, 0.02, 0.05, 0.02, "E"},     {0.01, 0.02, 0.04, 0.03, "C"},
        {0.01, 0.02, 0.06, 0.015, "C"},    {0.01, 0.02, 0.7, 0.015, "C"},     {0.01, 0.02, 0.7000001, 0.015, "A"},
        {0.01, 0.02, 0.8, 0.01, "O"}};
    SilentDialogs d;
    Program p(d);
    for (const auto& [mi0, miA, nu, mu, zona] : linhas) {
        p.Mi0 = mi0, p.MiA = miA, p.EtaA = 0.7, p.EtaE = 0.05, p.MiE = 0.02, p.Ni = nu, p.Mi = mu;
        p.Szona15();
        EXPECT_EQ(p.Zona, zona) << mi0 << ": " << nu << ", " << mu;
        EXPECT_EQ(p.NZona, static_cast<int>(std::string("?ECAO").find(zona)));
    }
}

TEST(DesignZones, MomentOfTheConcreteAlone)
{
    // ν = 0.00005 is within P of the residual -ν the march starts from, at βx = 0.
    for (const char* aco : {"Aço CA-50A", "Aço CA-60B"}) {
        for (double nu : {0.00005, 0.002, 0.02, 0.5, 0.80, 0.95, 0.999}) {
            test::Projeto s(aco);
            Program& p = s.p;
            p.Ni = nu;
            p.SMiZero14();
            const auto [eta, etaLin] = test::ref::concreto(test::ref::campo(p.BetaX, p.Delta));
            EXPECT_LE(std::fabs(p.Eta - nu), p.Precisao) << aco << " " << nu; // the concrete alone balances ν
            EXPECT_EQ(p.Mi0, 0.5 * p.Eta - p.EtaLin) << aco << " " << nu;
            EXPECT_NEAR(p.Mi0, 0.5 * eta - etaLin, 1e-12) << aco << " " << nu;
            EXPECT_EQ(p.Mi0 > 0, nu > 0.0001) << aco << " " << nu;
            EXPECT_EQ(p.Passo < 0.1, nu > 0.0001) << aco << " " << nu; // no refining when the start ends it
            // Above ν ≈ 0.9 the section is fully shortened.
            EXPECT_EQ(p.BetaX > 1 && p.EpsInfIter > 0 && p.EpsInfIter < 2, nu > 0.9) << aco << " " << nu;
        }
    }
    // Outside 0 < ν < 1 nothing is evaluated and μ0 is kept...
    for (double nu : {0.0, 1.0, -0.3, 1.5}) {
        test::Projeto s;
        s.p.Mi0 = 0.0777, s.p.BetaX = 0.42, s.p.Ni = nu;
        s.p.SMiZero14();
        EXPECT_TRUE(s.p.Mi0 == 0.0777 && s.p.BetaX == 0.42) << nu;
    }
    // ...so a calculation at ν = 1 tests μ ≤ μ0 with the μ0 of the one before.
    test::Projeto s;
    const double mi0 = s.dimensiona(0.5, 0.05).Mi0;
    EXPECT_EQ(s.p.Zona, "O");
    EXPECT_EQ(s.dimensiona(1.0, mi0).Mi0, mi0);
    EXPECT_EQ(s.p.Zona, "O");
}

} // namespace
} // namespace pilarix
