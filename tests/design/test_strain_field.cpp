// Strain fields: face strain and gradient, concrete resultant and its moment, the bars'
// resultant, and the fields given by the strain of the least compressed face.

#include "design/design_setup.h"
#include "design/reference_section.h"
#include "support/tolerance.h"

#include <cmath>
#include <string>
#include <vector>

namespace pilarix {
namespace {

using test::SecaoDeProjeto;

Program& campoBx(Program& p, double bx)
{
    p.BetaX = bx;
    p.SBxTeta07();
    return p;
}

TEST(DesignStrainField, WorkedFieldsWithDeltaOneTenth)
{
    struct Linha {
        const char* nome;
        double bx, ec, th, eta, etaLin; // NAN: not checked
    };
    const std::vector<Linha> linhas{
        {"10 per mille pivot", 0.2, 10 * 0.2 / 0.7, 10 / 0.7, NAN, NAN},
        {"3.5 per mille pivot at mid-height", 0.5, 3.5, 7, NAN, NAN},
        {"the worked field", 0.6, 3.5, 3.5 / 0.6, 0.485714, 0.121224},
        {"full shortening, 2 per mille at 3/7", 2, 28.0 / 11, 28.0 / 22, NAN, NAN},
    };
    SilentDialogs d;
    Program p(d);
    p.Delta = 0.1;
    p.Precisao = 0.0001;
    for (const auto& l : linhas) {
        SCOPED_TRACE(l.nome);
        campoBx(p, l.bx);
        EXPECT_NEAR_REL(p.EpsC, l.ec, 1e-14);
        EXPECT_NEAR_REL(p.Teta, l.th, 1e-14);
        EXPECT_NEAR_REL(p.BetaX, l.bx, 1e-14);
        if (!std::isnan(l.eta)) {
            EXPECT_NEAR(p.Eta, l.eta, 5e-7);
            EXPECT_NEAR(p.EtaLin, l.etaLin, 5e-7);
        }
    }
    // βx = 2: exactly 2 per mille at 3/7 of the depth, an admissible field.
    campoBx(p, 2);
    EXPECT_NEAR(p.EpsC - p.Teta * 3 / 7, 2, 1e-14);
    EXPECT_GT(p.Eta, 0);
}

TEST(DesignStrainField, ClosedFormsAgreeWithIntegrationOverTheDomain)
{
    // η and η' from the closed forms against an exact piecewise integration of the
    // parabola-rectangle diagram, over all three pivots and both sides of 2 per mille.
    for (double delta : {0.0, 0.05, 0.1, 0.2}) {
        SilentDialogs d;
        Program p(d);
        p.Delta = delta;
        p.Precisao = 1e-12;
        for (double bx = 0.01; bx < 6; bx *= 1.07) {
            SCOPED_TRACE(::testing::Message() << "delta " << delta << " bx " << bx);
            campoBx(p, bx);
            const auto c = test::ref::concreto(test::ref::campo(bx, delta));
            EXPECT_NEAR(p.Eta, c.eta, 1e-12);
            // η' is taken about the compressed face.
            EXPECT_NEAR(p.EtaLin, c.etaLin, 1e-12);
            EXPECT_EQ(p.PatamarC, p.EpsC > 2 ? 2 : 1);
        }
    }
}

TEST(DesignStrainField, UniformStrainAndInadmissibleFields)
{
    SilentDialogs d;
    Program p(d);
    p.Delta = 0.1;
    p.Precisao = 0.0001;

    struct Linha {
        const char* nome;
        double ec, th, eta, etaLin;
    };
    const std::vector<Linha> linhas{
        {"uniform 2 per mille", 2, 0, 1, 0.5},
        {"uniform 1 per mille", 1, 0, 0.75, NAN},
        {"uniform just within the tolerance of 2", 2.00005, 0, (4 - 2.00005) * 2.00005 / 4, NAN},
        {"uniform beyond 2 per mille", 2.0002, 0, 0, 0},
        {"top beyond 3.5 per mille", 3.5002, 3.5, 0, 0},
        {"more than 2 per mille at 3/7", 3.4, 1, 0, 0},
        {"neutral axis above the section", -1, 2, 0, 0},
    };
    for (const auto& l : linhas) {
        SCOPED_TRACE(l.nome);
        p.EpsC = l.ec;
        p.Teta = l.th;
        p.BetaX = 0.3;
        p.SEta08();
        p.SEtalin09();
        EXPECT_NEAR(p.Eta, l.eta, 1e-15);
        if (!std::isnan(l.etaLin)) {
            EXPECT_EQ(p.EtaLin, l.etaLin);
        }
    }

    // More than 10 per mille of lengthening at the farthest layer: with δ = 0.1 the
    // field εc = 1, θ = 20 has βx = 0.05 and -17 per mille at depth 0.9.
    p.EpsC = 1;
    p.Teta = 20;
    p.SEta08();
    EXPECT_EQ(p.Eta, 0);
    // Within the tolerance P of the 10 per mille it is admissible.
    p.EpsC = 10.00005 * 0.05 / 0.85;
    p.Teta = p.EpsC / 0.05;
    p.SEta08();
    EXPECT_GT(p.Eta, 0);
}

TEST(DesignStrainField, NoShortenedConcreteBelowZero)
{
    SilentDialogs d;
    Program p(d);
    p.Delta = 0.1;
    p.Precisao = 0.0001;
    p.Eta = 7;
    p.EtaLin = 7;
    campoBx(p, -0.2);
    EXPECT_EQ(p.Eta, 0);
    EXPECT_EQ(p.EtaLin, 0);
    EXPECT_NEAR_REL(p.EpsC, 10 * -0.2 / 1.1, 1e-15);
    EXPECT_NEAR_REL(p.Teta, (p.EpsC + 10) / 0.9, 1e-15);
    EXPECT_EQ(p.BetaX, -0.2);
}

TEST(DesignStrainField, LimitOfTheLengtheningPivotIsTheSameFieldFromBothSides)
{
    // At βx = L the face strain is 3.5 and the farthest layer -10: SEpSig11 takes the
    // lengthening formula and SBxTeta07 the shortening one, and both must agree.
    SecaoDeProjeto s;
    s.dLinha = 5; // δ = 0.1
    SilentDialogs d;
    Program p(d);
    test::preparaSecao(p, s);
    const double L = 3.5 * 0.9 / 13.5;
    campoBx(p, L);
    EXPECT_EQ(p.EpsC, 3.5);
    p.BetaX = L;
    p.SEpSig11();
    EXPECT_NEAR(p.Eps(1), -10, 1e-12); // layer 1 at depth 1 - δ
    EXPECT_NEAR(p.Eps(p.nAltura), 3.5 * (L - 0.1) / L, 1e-12);
}

TEST(DesignStrainField, BarsResultantAgainstReference)
{
    for (const char* aco : {"Aço CA-50A", "Aço CA-60B"}) {
        SecaoDeProjeto s;
        s.aco = aco;
        s.nBase = 3;
        s.nAltura = 5;
        SilentDialogs d;
        Program p(d);
        test::preparaSecao(p, s);
        test::ref::Secao r{p.Delta, test::ref::camadasDe(p.Delta, 3, 5), std::string(aco).back() == 'B', p.fyd, p.Es};
        for (double bx : {-0.3, 0.05, 0.2, 0.45, 0.7, 1.0, 1.3, 4.0}) {
            SCOPED_TRACE(::testing::Message() << aco << " bx " << bx);
            campoBx(p, bx);
            p.SKapa12();
            const auto e = test::ref::estado(r, bx);
            EXPECT_NEAR(p.SigMed, e.b.sigMed, 1e-3);
            EXPECT_NEAR(p.SigMedY, e.b.sigMedY, 1e-3);
            EXPECT_NEAR_REL(p.Kapa, e.b.sigMedY / e.b.sigMed, 1e-6);
            EXPECT_NEAR_REL(p.Lambda, p.EtaLin - p.Eta * p.Kapa, 1e-15);
        }
    }
}

TEST(DesignStrainField, BarsWithoutResultantLieInfinitelyFar)
{
    // βx = 0.5 with symmetric layers: the strains are antisymmetric about mid-height
    // and so are the stresses; the bars carry a pure couple.
    SecaoDeProjeto s;
    SilentDialogs d;
    Program p(d);
    test::preparaSecao(p, s);
    p.Lambda = 0.123;
    campoBx(p, 0.5);
    p.SKapa12();
    EXPECT_EQ(p.SigMed, 0);
    EXPECT_EQ(p.Kapa, 9.999999e+37);
    EXPECT_EQ(p.Lambda, 0.123); // left as it was
    EXPECT_LT(p.SigMedY, 0);    // the couple: tension below, compression above
}

TEST(DesignStrainField, FieldFromTheLeastCompressedFace)
{
    struct Linha {
        double e;  // per mille at the least compressed face
        double bx; // expected βx
        double ec;
    };
    const std::vector<Linha> linhas{
        {-3.5, 0.5, 3.5},
        {0, 1, 3.5},
        {-10, 3.5 / 13.5, 3.5},
        {1, (3.0 - 14) / (7.0 - 14), 14 * (11.0 / 7) / (11 - 3)},
        {1.9, (5.7 - 14) / (13.3 - 14), NAN},
    };
    SilentDialogs d;
    Program p(d);
    p.Delta = 0.1;
    p.Precisao = 0.0001;
    for (const auto& l : linhas) {
        SCOPED_TRACE(l.e);
        p.EpsInfIter = l.e;
        p.SEc1Bx18();
        EXPECT_NEAR_REL(p.BetaX, l.bx, 1e-12);
        if (!std::isnan(l.ec)) {
            EXPECT_NEAR_REL(p.EpsC, l.ec, 1e-12);
        }
        // The strain of the least compressed face is the one asked for.
        EXPECT_NEAR(p.EpsC - p.Teta, l.e, 1e-12);
    }
}

} // namespace
} // namespace pilarix
