// d' and the bar layers.

#include "design/design_setup.h"

#include <tuple>
#include <vector>

namespace pilarix {
namespace {

TEST(DesignSection, DLinhaFromTheBoxOrAutomatic)
{
    // {Check3 (2: grey, counts as clear), Recalcula, Text3, d' before, d' after}
    const std::vector<std::tuple<int, const char*, const char*, double, double>> linhas{
        {0, "n", "4.125", 9, 4.125}, {0, "s", "4.5", 9, 4.5},   {0, "n", "3,5", 9, 3},     {0, "n", "40", 9, 40},
        {0, "n", "", 9, 0},          {1, "n", "7", 9, 3.0},     {1, "s", "7", 4.25, 4.25}, {1, "", "7", 5.5, 5.5},
        {2, "n", "6", 9, 6}};
    for (const auto& [check3, recalcula, texto, antes, depois] : linhas) {
        SilentDialogs d;
        Program p(d);
        p.Form1.Check3.Value = check3, p.Recalcula = recalcula, p.Form1.Text3.Text = texto, p.dLinha = antes;
        p.dLinha01();
        EXPECT_EQ(p.dLinha, depois) << check3 << " '" << recalcula << "' '" << texto << "'";
    }
}

TEST(DesignSection, BarsPerLayer)
{
    // 20 x 50, d' = 3: {bars per width face, layers, bars, layer depths, bars per layer}
    const std::vector<std::tuple<double, int, int, std::vector<double>, std::vector<double>>> linhas{
        {2, 4, 8, {47, 32 + 1.0 / 3, 17 + 2.0 / 3, 3}, {2, 2, 2, 2}}, {3, 2, 6, {47, 3}, {3, 3}},
        {4, 5, 14, {47, 36, 25, 14, 3}, {4, 2, 2, 2, 4}},             {5, 3, 12, {47, 25, 3}, {5, 2, 5}}};
    for (const auto& [nBase, nAltura, total, y, porCamada] : linhas) {
        test::Projeto s("Aço CA-50A", 3, nBase, nAltura);
        EXPECT_EQ(s.p.NBarrasTotal, total);
        EXPECT_EQ(s.p.Indice, nAltura + 1); // left behind the last layer
        for (int i = 0; i < nAltura; ++i) {
            EXPECT_NEAR_REL(s.p.YCam(i), y[std::size_t(i)], 1e-14) << total << " " << i;
            EXPECT_NEAR_REL(s.p.YRel(i), y[std::size_t(i)] / 50, 1e-14) << total << " " << i;
            EXPECT_EQ(s.p.NBarCam(i), porCamada[std::size_t(i)]) << total << " " << i;
        }
    }
    test::Projeto s("Aço CA-50A", 3, 2, 500);
    EXPECT_EQ(s.p.NBarrasTotal, 1000);
    s.p.nAltura = 501;
    EXPECT_THROW(s.p.SArran1R03(), CalcError);
}

TEST(DesignSection, ReducedQuantitiesThroughTheDriver)
{
    // 20 x 50, d' = 3, Nd = 400 kN, Md = 10000 kN.cm, fck = 20 MPa, γc = 1.4: zone C.
    SilentDialogs d;
    Program p(d), q(d);
    p.Form1.Text3.Text = "3", p.Form1.Text21.Text = "1.4";
    p.Programa0();
    const double sigCd = 0.85 * 200 / 1.4;
    EXPECT_NEAR_REL(p.SigCd, sigCd, 1e-15);
    EXPECT_NEAR_REL(p.Ni, 40000 / (1000 * sigCd), 1e-15);
    EXPECT_NEAR_REL(p.Mi, 1000000 / (50 * (1000 * sigCd)), 1e-15);
    EXPECT_EQ(p.Zona, "C");
    EXPECT_EQ(p.AsNec, p.Ac * p.Rho);
    q.Programa0(); // the defaults, d' corrected from 0 by the first pass
    EXPECT_NEAR_REL(q.AsNec, 6.57, 0.001);
}

} // namespace
} // namespace pilarix
