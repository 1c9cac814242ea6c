// Reference fields, zone bounds, the moment the concrete alone carries, and the zone.

#include "design/design_setup.h"
#include "design/reference_section.h"
#include "support/tolerance.h"

#include <cmath>
#include <string>
#include <vector>

namespace pilarix {
namespace {

using test::SecaoDeProjeto;

TEST(DesignZones, CriticalForcesAroundMidHeight)
{
    SilentDialogs d;
    Program p(d);
    test::preparaSecao(p, SecaoDeProjeto{});
    p.SNiCrit06();
    // βx = 0.5 lies on the 3.5 per mille pivot whatever δ: η = 34/84.
    EXPECT_NEAR_REL(p.NiCrit, 34.0 / 84, 1e-15);
    EXPECT_LT(p.NiCrit1, p.NiCrit);
    EXPECT_GT(p.NiCrit2, p.NiCrit);
    const auto c1 = test::ref::concreto(test::ref::campo(0.5 - 0.0001, p.Delta));
    const auto c2 = test::ref::concreto(test::ref::campo(0.5 + 0.0001, p.Delta));
    EXPECT_NEAR(p.NiCrit1, c1.eta, 1e-13);
    EXPECT_NEAR(p.NiCrit2, c2.eta, 1e-13);
}

TEST(DesignZones, ReferenceFieldsAndTheirMoments)
{
    for (const char* aco : {"Aço CA-50A", "Aço CA-50B"}) {
        SCOPED_TRACE(aco);
        SecaoDeProjeto s;
        s.aco = aco;
        s.dLinha = 5;
        SilentDialogs d;
        Program p(d);
        test::preparaSecao(p, s);
        p.Ni = 0.3;
        p.SConstZ10();
        p.SMiACEC13();

        EXPECT_EQ(p.BetaXC1, 0.5 - 0.0001);
        EXPECT_EQ(p.BetaXC2, 0.5 + 0.0001);
        EXPECT_EQ(p.BetaXA, 0.9);
        EXPECT_EQ(p.BetaXE, 0.1);

        const test::ref::Secao r{0.1, test::ref::camadasDe(0.1, 2, 4), std::string(aco).back() == 'B', p.fyd,
                                 p.Es};
        struct Ref {
            const char* nome;
            double bx, eta, etaLin, kapa, lambda;
            double tolKapa; // near βx = 0.5 the bars' mean stress is a small difference
        };
        const std::vector<Ref> refs{
            {"A", 0.9, p.EtaA, p.EtaLinA, p.KapaA, p.LambdaA, 1e-6},
            {"E", 0.1, p.EtaE, p.EtaLinE, p.KapaE, p.LambdaE, 1e-6},
            {"C1", 0.4999, p.EtaC1, p.EtaLinC1, p.KapaC1, p.LambdaC1, 1e-4},
            {"C2", 0.5001, p.EtaC2, p.EtaLinC2, p.KapaC2, p.LambdaC2, 1e-4},
        };
        for (const auto& f : refs) {
            SCOPED_TRACE(f.nome);
            const auto e = test::ref::estado(r, f.bx);
            EXPECT_NEAR(f.eta, e.c.eta, 1e-12);
            EXPECT_NEAR(f.etaLin, e.c.etaLin, 1e-12);
            EXPECT_NEAR_REL(f.kapa, e.b.sigMedY / e.b.sigMed, f.tolKapa);
            EXPECT_NEAR_REL(f.lambda, f.etaLin - f.eta * f.kapa, 1e-15);
        }
        // The moment of a field balancing ν about mid-height.
        EXPECT_EQ(p.MiA, 0.3 * (0.5 - p.KapaA) - p.LambdaA);
        EXPECT_EQ(p.MiE, 0.3 * (0.5 - p.KapaE) - p.LambdaE);
        EXPECT_EQ(p.MiC1, std::fabs(0.3 * (0.5 - p.KapaC1) - p.LambdaC1));
        EXPECT_EQ(p.MiC, std::fabs(0.3 * (0.5 - p.KapaC2) - p.LambdaC2));
        // The neutral axis at the farthest layer carries more than at the nearest.
        EXPECT_GT(p.EtaA, p.EtaE);
    }
}

TEST(DesignZones, ZoneByForceAndMoment)
{
    struct Linha {
        const char* nome;
        double nu, mu;
        const char* zona;
        int nzona;
    };
    // Bounds fixed by hand: μ0 = 0.1, ηA = 0.7, ηE = 0.05, μA = 0.08, μE = 0.02.
    const std::vector<Linha> linhas{
        {"below mu0", 0.3, 0.05, "O", 4},
        {"exactly mu0 is O", 0.3, 0.1, "O", 4},
        {"nu = 0 tests mu0", 0.0, 0.1, "O", 4},
        {"nu = 1 tests mu0", 1.0, 0.1, "O", 4},
        {"above etaA, not above mu0", 0.8, 0.08, "O", 4},
        {"above etaA, above mu0 and muA", 0.8, 0.1 + 1e-9, "C", 2},
        {"between etaE and etaA", 0.3, 0.2, "C", 2},
        {"exactly etaA is not above it", 0.7, 0.15, "C", 2},
        {"nu above 1, at muA", 1.2, 0.08, "A", 3},
        {"nu above 1, above muA", 1.2, 0.0800001, "C", 2},
        {"nu above 1 ignores mu0", 1.2, 0.0, "A", 3},
        {"nu below 0, at muE", -0.1, 0.02, "E", 1},
        {"nu below 0, above muE", -0.1, 0.0200001, "C", 2},
        {"nu below 0 ignores mu0", -0.1, -0.5, "E", 1},
    };
    for (const auto& l : linhas) {
        SCOPED_TRACE(l.nome);
        SilentDialogs d;
        Program p(d);
        p.Mi0 = 0.1;
        p.EtaA = 0.7;
        p.EtaE = 0.05;
        p.MiA = 0.08;
        p.MiE = 0.02;
        p.Ni = l.nu;
        p.Mi = l.mu;
        p.Szona15();
        EXPECT_EQ(p.Zona, l.zona);
        EXPECT_EQ(p.NZona, l.nzona);
    }
}

TEST(DesignZones, ZoneAAndZoneEWithinTheRange)
{
    // With μ0 below the bounds the zones A and E show between 0 and 1.
    struct Linha {
        double nu, mu;
        const char* zona;
    };
    const std::vector<Linha> linhas{
        {0.8, 0.015, "A"}, {0.8, 0.02, "A"},   {0.8, 0.0200001, "C"}, {0.05, 0.015, "E"},
        {0.05, 0.02, "E"}, {0.04, 0.03, "C"}, {0.06, 0.015, "C"},   {0.7, 0.015, "C"},
        {0.7000001, 0.015, "A"}, {0.8, 0.01, "O"},
    };
    for (const auto& l : linhas) {
        SCOPED_TRACE(::testing::Message() << l.nu << " " << l.mu);
        SilentDialogs d;
        Program p(d);
        p.Mi0 = 0.01;
        p.EtaA = 0.7;
        p.EtaE = 0.05;
        p.MiA = 0.02;
        p.MiE = 0.02;
        p.Ni = l.nu;
        p.Mi = l.mu;
        p.Szona15();
        EXPECT_EQ(p.Zona, l.zona);
    }
}

TEST(DesignZones, MomentOfTheConcreteAlone)
{
    struct Linha {
        const char* nome;
        double nu;
        bool fase2; // the root lies in a fully shortened section
    };
    const std::vector<Linha> linhas{
        {"mid range", 0.5, false},
        {"below eta at the first step of 0.1", 0.02, false},
        {"small", 0.002, false},
        {"just below eta at bx = 1", 0.80, false},
        {"fully shortened", 0.95, true},
        {"close to uniform shortening", 0.999, true},
    };
    for (const char* aco : {"Aço CA-50A", "Aço CA-60B"}) {
        for (const auto& l : linhas) {
            SCOPED_TRACE(::testing::Message() << aco << ": " << l.nome);
            SecaoDeProjeto s;
            s.aco = aco;
            SilentDialogs d;
            Program p(d);
            test::preparaSecao(p, s);
            p.Ni = l.nu;
            p.SMiZero14();
            // The field the march stopped on balances ν with the concrete alone...
            EXPECT_LE(std::fabs(p.Eta - l.nu), p.Precisao);
            EXPECT_EQ(p.Mi0, 0.5 * p.Eta - p.EtaLin);
            EXPECT_EQ(p.BetaX > 1, l.fase2);
            if (l.fase2) {
                EXPECT_GT(p.EpsInfIter, 0);
                EXPECT_LT(p.EpsInfIter, 2);
            }
            // ...and its moment about mid-height is that of the exact field to within
            // the tolerance of the search.
            const auto c = test::ref::concreto(test::ref::campo(p.BetaX, p.Delta));
            EXPECT_NEAR(p.Mi0, 0.5 * c.eta - c.etaLin, 1e-12);
            EXPECT_GT(p.Mi0, 0);
        }
    }
}

TEST(DesignZones, MomentOfTheConcreteAloneKeptOutsideTheOpenRange)
{
    for (double nu : {0.0, 1.0, -0.3, 1.5}) {
        SCOPED_TRACE(nu);
        SilentDialogs d;
        Program p(d);
        test::preparaSecao(p, SecaoDeProjeto{});
        p.Mi0 = 0.0777;
        p.BetaX = 0.42;
        p.Ni = nu;
        p.SMiZero14();
        EXPECT_EQ(p.Mi0, 0.0777);
        EXPECT_EQ(p.BetaX, 0.42); // nothing evaluated
    }
}

TEST(DesignZones, MomentOfTheConcreteAloneKeptBetweenCalculations)
{
    // A calculation at ν = 1 after one at ν = 0.5 tests μ ≤ μ0 with the μ0 of the
    // earlier calculation.
    SilentDialogs d;
    Program p(d);
    test::preparaSecao(p, SecaoDeProjeto{});
    test::dimensiona(p, 0.5, 0.05);
    const double mi0 = p.Mi0;
    EXPECT_EQ(p.Zona, "O");
    test::dimensiona(p, 1.0, mi0);
    EXPECT_EQ(p.Mi0, mi0);
    EXPECT_EQ(p.Zona, "O");
    EXPECT_EQ(p.Rho, 0);
}

TEST(DesignZones, MarchWithoutToleranceStopsWithAMessage)
{
    SilentDialogs d;
    Program p(d);
    test::preparaSecao(p, SecaoDeProjeto{});
    p.Precisao = 0;
    p.Ni = 0.5;
    try {
        p.SMiZero14();
        FAIL() << "a march with a tolerance of 0 cannot end";
    } catch (const CalcError& e) {
        EXPECT_NE(std::string(e.what()).find("SMiZero14"), std::string::npos) << e.what();
        EXPECT_NE(std::string(e.what()).find("precisão = 0"), std::string::npos) << e.what();
    }
}

} // namespace
} // namespace pilarix
