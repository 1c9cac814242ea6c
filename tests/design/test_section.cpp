// d' and the bar layers.

#include "design/design_setup.h"
#include "support/tolerance.h"

#include <string>
#include <vector>

namespace pilarix {
namespace {

TEST(DesignSection, DLinhaFromTheBoxOrAutomatic)
{
    struct Linha {
        const char* nome;
        int check3;
        const char* recalcula;
        const char* texto;
        double antes;
        double esperado;
    };
    const std::vector<Linha> linhas{
        {"box clear reads the text", 0, "n", "4.125", 9, 4.125},
        {"box clear reads the text on a repeated pass too", 0, "s", "4.5", 9, 4.5},
        {"box clear, leading number only", 0, "n", "3,5", 9, 3},
        {"box clear, no upper bound", 0, "n", "40", 9, 40},
        {"box clear, empty reads 0", 0, "n", "", 9, 0},
        {"automatic on a first pass starts at 3 cm", 1, "n", "7", 9, 3.0},
        {"automatic on a repeated pass keeps the corrected d'", 1, "s", "7", 4.25, 4.25},
        {"automatic with the flag unset keeps d'", 1, "", "7", 5.5, 5.5},
        {"grey box counts as clear", 2, "n", "6", 9, 6},
    };
    for (const auto& l : linhas) {
        SCOPED_TRACE(l.nome);
        SilentDialogs d;
        Program p(d);
        p.Form1.Check3.Value = l.check3;
        p.Recalcula = l.recalcula;
        p.Form1.Text3.Text = l.texto;
        p.dLinha = l.antes;
        p.dLinha01();
        EXPECT_EQ(p.dLinha, l.esperado);
    }
}

TEST(DesignSection, LayersOfTheWorkedSection)
{
    // b = 20, h = 50, d' = 3, 2 x 4 bars: the layers are equally spaced between
    // h - d' = 47 and d' = 3.
    SilentDialogs d;
    Program p(d);
    p.Altura = 50;
    p.dLinha = 3;
    p.nBase = 2;
    p.nAltura = 4;
    p.SArran1R03();
    EXPECT_EQ(p.NBarrasTotal, 8);
    const double y[4] = {47, 32 + 1.0 / 3, 17 + 2.0 / 3, 3};
    for (int i = 0; i < 4; ++i) {
        SCOPED_TRACE(i);
        EXPECT_NEAR_REL(p.YCam(i), y[i], 1e-14);
        EXPECT_NEAR_REL(p.YRel(i), y[i] / 50, 1e-14);
        EXPECT_EQ(p.NBarCam(i), 2);
    }
    EXPECT_EQ(p.Indice, 5); // left behind the last layer
}

TEST(DesignSection, BarsPerLayer)
{
    struct Linha {
        double nBase;
        int nAltura;
        int total;
        std::vector<double> porCamada;
    };
    const std::vector<Linha> linhas{
        {3, 2, 6, {3, 3}},
        {2, 2, 4, {2, 2}},
        {4, 5, 14, {4, 2, 2, 2, 4}},
        {5, 3, 12, {5, 2, 5}},
    };
    for (const auto& l : linhas) {
        SCOPED_TRACE(l.total);
        SilentDialogs d;
        Program p(d);
        p.Altura = 60;
        p.dLinha = 4;
        p.nBase = l.nBase;
        p.nAltura = static_cast<std::int16_t>(l.nAltura);
        p.SArran1R03();
        EXPECT_EQ(p.NBarrasTotal, l.total);
        for (int i = 0; i < l.nAltura; ++i)
            EXPECT_EQ(p.NBarCam(i), l.porCamada[static_cast<std::size_t>(i)]) << "layer " << i + 1;
        EXPECT_EQ(p.YCam(0), 56);
        EXPECT_NEAR(p.YCam(l.nAltura - 1), 4, 1e-13);
    }
}

TEST(DesignSection, MoreLayersThanTheArraysHoldIsABoundsError)
{
    SilentDialogs d;
    Program p(d);
    p.Altura = 5000;
    p.dLinha = 3;
    p.nBase = 2;
    p.nAltura = 501;
    EXPECT_THROW(p.SArran1R03(), CalcError);

    p.nAltura = 500;
    EXPECT_NO_THROW(p.SArran1R03());
    EXPECT_EQ(p.NBarrasTotal, 1000);
}

TEST(DesignSection, ReducedQuantitiesThroughTheDriver)
{
    // 20 x 50, d' = 3, Nd = 400 kN, Md = 10000 kN.cm, fck = 20 MPa, γc = 1.4.
    SilentDialogs d;
    Program p(d);
    p.Form1.Text3.Text = "3";
    p.Form1.Text21.Text = "1.4";
    p.Programa0();
    const double sigCd = 0.85 * 200 / 1.4;
    EXPECT_NEAR_REL(p.SigCd, sigCd, 1e-15);
    EXPECT_EQ(p.Ac, 1000);
    EXPECT_EQ(p.GamaN, 1);
    EXPECT_NEAR_REL(p.Ni, 40000 / (1000 * sigCd), 1e-15);
    EXPECT_NEAR_REL(p.Mi, 1000000 / (50 * (1000 * sigCd)), 1e-15);
    EXPECT_GT(p.AsNec, 0);
    EXPECT_EQ(p.AsNec, p.Ac * p.Rho);
    EXPECT_EQ(p.AsNecBarra, p.AsNec / p.NBarrasTotal);
    EXPECT_EQ(p.AsBarraD, p.AsNecBarra);
    for (int i = 0; i < p.nAltura; ++i)
        EXPECT_EQ(p.AsCam(i), p.AsNecBarra * p.NBarCam(i));
}

} // namespace
} // namespace pilarix
