// The bar catalogue and the choice of a real bar: the smallest allowed bar that
// covers the area per bar, both failures with their texts, and the silent check.

#include "detailing/bancada.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace pilarix;
using pilarix::test::Bancada;
using pilarix::test::Textos;

TEST(DetailBarCatalogue, HoldsTheTabledRoundedFiguresNotComputedOnes)
{
    const double tabela[11][3] = {{0.5, 0.2, 0.16}, {0.63, 0.315, 0.25}, {0.8, 0.5, 0.4}, {1, 0.8, 0.63},
                                  {1.25, 1.25, 1.0}, {1.6, 2, 1.6},      {2, 3.15, 2.5},  {2.25, 4, 3.15},
                                  {2.5, 5, 4.0},     {3.2, 8, 6.3},      {4, 12.5, 10.0}};
    Bancada b;
    for (long i = 1; i <= 11; ++i)
        EXPECT_EQ(std::tuple(b.p.DiamBitola(i), b.p.AreaBitola(i), b.p.PesoBitola(i)),
                  std::tuple(tabela[i - 1][0], tabela[i - 1][1], tabela[i - 1][2]));
}

TEST(DetailBarChoice, TakesTheSmallestAllowedBarAndReportsEachFailure)
{
    const std::string excede =
        "Diâmetro da barra longitudinal excede o máximo permitido = 1/8 da menor dimensão. No caso ";
    const std::string item = "Item 18.4.2.1 do Projeto de revisão da NB1 / 2001";
    const std::string semBitola =
        "Diâmetro das barras longitudinais devem ser superiores à maior bitola definida pelo usuário.";
    // 8 bars; the area per bar, the largest allowed bar, the smaller side, and the bar
    // chosen (0: none), the message and its clause (none: the bar passes).
    const std::tuple<double, int, double, long, std::string, std::string> linhas[] = {
        {0.8, 11, 40, 4, "", ""},   // the exact area of 10 mm is enough
        {0.8001, 11, 40, 5, "", ""}, {0.1, 11, 40, 4, "", ""}, // stirrup sizes are never longitudinal
        {2, 6, 40, 6, "", ""},      // the largest allowed bar exactly enough
        {2.01, 6, 40, 0, semBitola, ""},
        {0.3, 3, 40, 4, "", ""},    // a limit below the catalogue start leaves 10 mm
        {5, 11, 20, 9, "", ""},     // 25 mm in a 20 cm column is 1/8 itself
        {8, 11, 20, 10, excede + "3.2cm > 2.5cm", item},
        {2, 11, 12.5, 6, excede + "1.6cm > 1.5625cm", item},
    };
    for (const auto& [asNecBarra, indiceMax, menorDim, indice, mensagem, itemNorma] : linhas) {
        for (const bool silencioso : {false, true}) {
            Bancada b;
            b.p.NBarrasTotal = 8;
            b.p.AsNecBarra = asNecBarra;
            b.p.IndiceBitolaMax = indiceMax;
            b.p.MenorDim = menorDim;
            b.p.MensagemErro = b.p.ItemNorma = "anterior";
            b.p.AsBarra = b.p.AsReal = -1; // what an earlier arrangement left
            if (silencioso)
                b.p.Form10AsReal23();
            else
                b.p.AsReal23();
            const auto nome = testing::Message() << asNecBarra << " cm² up to bar " << indiceMax << " in "
                                                 << menorDim << (silencioso ? " (silent)" : "");
            const double asBarra = indice != 0 ? b.p.AreaBitola(indice) : 0;
            EXPECT_EQ(std::tuple(b.p.AsBarra, b.p.AsReal, b.p.FlagErro),
                      std::tuple(asBarra, 8 * asBarra, mensagem.empty() ? "n" : "s"))
                << nome;
            if (indice != 0) {
                EXPECT_EQ(std::tuple(b.p.Indice, b.p.DiamLong, b.p.PesoLinearLong),
                          std::tuple(indice, b.p.DiamBitola(indice), b.p.PesoBitola(indice)))
                    << nome;
            }
            // The silent check reaches the same verdict and bar, and tells nobody.
            const bool mostra = !silencioso && !mensagem.empty();
            EXPECT_EQ(b.mostrados(), mostra ? Textos{test::erro(mensagem, itemNorma)} : Textos{}) << nome;
            EXPECT_EQ(b.p.MensagemErro + "|" + b.p.ItemNorma, mostra ? mensagem + "|" + itemNorma : "anterior|anterior")
                << nome;
        }
    }
}
