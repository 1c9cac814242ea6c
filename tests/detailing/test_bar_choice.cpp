// The bar catalogue and the choice of a real bar: the smallest allowed bar that
// covers the area per bar, both failures with their texts, and the silent check.

#include "cli/recording_dialogs.h"
#include "driver/program.h"

#include <gtest/gtest.h>

#include <string>

using namespace pilarix;

namespace {

struct Bancada {
    RecordingDialogs dialogos;
    Program p{dialogos};
    Bancada()
    {
        p.Bitolas22();
        p.FlagErro = "n";
        p.NBarrasTotal = 8;
        p.IndiceBitolaMax = 11;
        p.MenorDim = 40;
    }
};

const std::string kItem18421 = "Item 18.4.2.1 do Projeto de revisão da NB1 / 2001";
const std::string kBitolaInsuficiente =
    "Diâmetro das barras longitudinais devem ser superiores à maior bitola definida pelo usuário.";

} // namespace

TEST(DetailBarCatalogue, HoldsTheTabledRoundedFiguresNotComputedOnes)
{
    struct Linha {
        long i;
        double diam, area, peso;
    };
    const Linha tabela[] = {
        {1, 0.5, 0.2, 0.16},   {2, 0.63, 0.315, 0.25}, {3, 0.8, 0.5, 0.4}, {4, 1, 0.8, 0.63},
        {5, 1.25, 1.25, 1.0},  {6, 1.6, 2, 1.6},       {7, 2, 3.15, 2.5},  {8, 2.25, 4, 3.15},
        {9, 2.5, 5, 4.0},      {10, 3.2, 8, 6.3},      {11, 4, 12.5, 10.0},
    };
    Bancada b;
    for (const auto& l : tabela) {
        EXPECT_EQ(b.p.DiamBitola(l.i), l.diam) << "bar " << l.i;
        EXPECT_EQ(b.p.AreaBitola(l.i), l.area) << "bar " << l.i;
        EXPECT_EQ(b.p.PesoBitola(l.i), l.peso) << "bar " << l.i;
    }
    EXPECT_THROW(b.p.AreaBitola(12), CalcError);
    EXPECT_THROW(b.p.AreaBitola(0), CalcError);
}

TEST(DetailBarChoice, TakesTheSmallestAllowedBarAndReportsEachFailure)
{
    struct Linha {
        const char* nome;
        double asNecBarra;
        int indiceMax;
        double menorDim;
        long indice;
        double asBarra, asReal, diamLong, peso;
        const char* flag;
        std::string mensagem; // empty: nothing shown
        std::string item;
    };
    const Linha linhas[] = {
        {"exact area of the 10 mm bar is enough", 0.8, 11, 40, 4, 0.8, 6.4, 1, 0.63, "n", "", ""},
        {"just above it takes 12.5 mm", 0.8001, 11, 40, 5, 1.25, 10, 1.25, 1.0, "n", "", ""},
        {"no steel needed still takes 10 mm", 0, 11, 40, 4, 0.8, 6.4, 1, 0.63, "n", "", ""},
        {"stirrup sizes are never longitudinal", 0.1, 11, 40, 4, 0.8, 6.4, 1, 0.63, "n", "", ""},
        {"largest allowed bar exactly enough", 2, 6, 40, 6, 2, 16, 1.6, 1.6, "n", "", ""},
        {"largest allowed bar too small", 2.01, 6, 40, 0, 0, 0, 0, 0, "s", kBitolaInsuficiente, ""},
        {"limit below the catalogue start leaves 10 mm", 0.3, 3, 40, 4, 0.8, 6.4, 1, 0.63, "n", "", ""},
        {"25 mm in a 20 cm column is the limit itself", 5, 11, 20, 9, 5, 40, 2.5, 4.0, "n", "", ""},
        {"32 mm in a 20 cm column is thicker than 1/8", 8, 11, 20, 10, 8, 64, 3.2, 6.3, "s",
         "Diâmetro da barra longitudinal excede o máximo permitido = 1/8 da menor dimensão. No caso 3.2cm > 2.5cm",
         kItem18421},
        {"1/8 of an odd side in plain text", 2, 11, 12.5, 6, 2, 16, 1.6, 1.6, "s",
         "Diâmetro da barra longitudinal excede o máximo permitido = 1/8 da menor dimensão. No caso 1.6cm > "
         "1.5625cm",
         kItem18421},
    };
    for (const auto& l : linhas) {
        Bancada b;
        b.p.AsNecBarra = l.asNecBarra;
        b.p.IndiceBitolaMax = l.indiceMax;
        b.p.MenorDim = l.menorDim;
        b.p.ItemNorma = "anterior";
        b.p.AsReal23();
        if (l.indice != 0) {
            EXPECT_EQ(b.p.Indice, l.indice) << l.nome;
            EXPECT_EQ(b.p.DiamLong, l.diamLong) << l.nome;
            EXPECT_EQ(b.p.PesoLinearLong, l.peso) << l.nome;
        }
        EXPECT_EQ(b.p.AsBarra, l.asBarra) << l.nome;
        EXPECT_EQ(b.p.AsReal, l.asReal) << l.nome;
        EXPECT_EQ(b.p.FlagErro, l.flag) << l.nome;
        if (l.mensagem.empty()) {
            EXPECT_TRUE(b.dialogos.messages.empty()) << l.nome;
            EXPECT_EQ(b.p.ItemNorma, "anterior") << l.nome;
            continue;
        }
        ASSERT_EQ(b.dialogos.messages.size(), 1u) << l.nome;
        EXPECT_EQ(b.dialogos.messages[0]["janela"], "Mensagem de erro") << l.nome;
        EXPECT_EQ(b.dialogos.messages[0]["mensagem"], l.mensagem) << l.nome;
        EXPECT_EQ(b.dialogos.messages[0]["item"], l.item) << l.nome;
        EXPECT_EQ(b.p.MensagemErro, l.mensagem) << l.nome;
        EXPECT_EQ(b.p.ItemNorma, l.item) << l.nome;

        // The silent check reaches the same verdict and bar, and tells nobody.
        Bancada s;
        s.p.AsNecBarra = l.asNecBarra;
        s.p.IndiceBitolaMax = l.indiceMax;
        s.p.MenorDim = l.menorDim;
        s.p.MensagemErro = "intocada";
        s.p.Form10AsReal23();
        EXPECT_EQ(s.p.FlagErro, "s") << l.nome;
        EXPECT_EQ(s.p.AsReal, l.asReal) << l.nome;
        EXPECT_EQ(s.p.AsBarra, l.asBarra) << l.nome;
        EXPECT_EQ(s.p.MensagemErro, "intocada") << l.nome;
        EXPECT_TRUE(s.dialogos.messages.empty()) << l.nome;
    }
}

TEST(DetailBarChoice, SilentCheckPassesWhatTheWindowPasses)
{
    Bancada b;
    b.p.AsNecBarra = 1.3;
    b.p.Form10AsReal23();
    EXPECT_EQ(b.p.FlagErro, "n");
    EXPECT_EQ(b.p.Indice, 6);
    EXPECT_EQ(b.p.AsReal, 16);
}
