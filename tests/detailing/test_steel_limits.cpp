// Wall columns and γn, minimum and maximum steel, the re-choice of the bar for the
// minimum, and the silent twin of the limits.

#include "cli/recording_dialogs.h"
#include "driver/program.h"

#include "support/tolerance.h"

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
    }
};

const std::string kItemParede = "Item 18.4.1 do Projeto de revisão da NB1 / 2001";
const std::string kItemTaxaMaxima = "Item 17.3.4.3.2 do Projeto de revisão da NB1 / 2001";

std::string mensagemParede(const std::string& maior, const std::string& cincoVezes)
{
    return "Maior dimensão da seção transversal = " + maior + "cm, excedeu 5 vezes a menor dimensão = " + cincoVezes
           + ". O pilar deve ser tratado como pilar parede.";
}

std::string mensagemTaxaMaxima(const std::string& asReal, const std::string& asMax)
{
    return "A taxa de armadura excede o máximo permitido = 8,0%Ac em reigião de emendas. No caso temos " + asReal
           + "cm2 que é maior que " + asMax + "cm2 correspondente a 4%Ac fora da região de emendas";
}

} // namespace

TEST(DetailWallColumn, SmallerSideGivesGammaNAndFiveTimesItMakesAWall)
{
    struct Linha {
        const char* nome;
        double b, h;
        double menorDim, gamaN;
        std::string mensagem; // empty: not a wall
    };
    const Linha linhas[] = {
        {"five times exactly is a column", 20, 100, 20, 1.0, ""},
        {"deeper than five times", 20, 101, 20, 1.0, mensagemParede("101", "100")},
        {"wider than five times", 101, 20, 20, 1.0, mensagemParede("101", "100")},
        {"square", 19, 19, 19, 1.0, ""},
        {"just below 19", 18.99, 40, 18.99, 1.05, ""},
        {"18 is still in the 1.05 step", 40, 18, 18, 1.05, ""},
        {"17.99", 17.99, 30, 17.99, 1.1, ""},
        {"17", 17, 30, 17, 1.1, ""},
        {"16", 16, 30, 16, 1.15, ""},
        {"15", 15, 30, 15, 1.2, ""},
        {"14.5", 14.5, 30, 14.5, 1.25, ""},
        {"13", 13, 30, 13, 1.3, ""},
        {"12.9", 12.9, 30, 12.9, 1.35, ""},
        {"10 keeps the last step", 10, 30, 10, 1.35, ""},
        {"wall still gets its coefficient", 12, 61, 12, 1.35, mensagemParede("61", "60")},
        {"odd sides in plain text", 12.5, 62.75, 12.5, 1.35, mensagemParede("62.75", "62.5")},
    };
    for (const auto& l : linhas) {
        Bancada b;
        b.p.Base = l.b;
        b.p.Altura = l.h;
        b.p.CeoficienteAdic25();
        EXPECT_EQ(b.p.MenorDim, l.menorDim) << l.nome;
        EXPECT_EQ(b.p.GamaN, l.gamaN) << l.nome;
        if (l.mensagem.empty()) {
            EXPECT_EQ(b.p.FlagErro, "n") << l.nome;
            EXPECT_TRUE(b.dialogos.messages.empty()) << l.nome;
            continue;
        }
        EXPECT_EQ(b.p.FlagErro, "sPparede") << l.nome;
        ASSERT_EQ(b.dialogos.messages.size(), 1u) << l.nome;
        EXPECT_EQ(b.dialogos.messages[0]["mensagem"], l.mensagem) << l.nome;
        EXPECT_EQ(b.dialogos.messages[0]["item"], kItemParede) << l.nome;

        // In the search the wall is silent but the triple is filled all the same.
        Bancada s;
        s.p.Form1.Check3.Value = 1;
        s.p.Base = l.b;
        s.p.Altura = l.h;
        s.p.CeoficienteAdic25();
        EXPECT_EQ(s.p.FlagErro, "sPparede") << l.nome;
        EXPECT_EQ(s.p.MensagemErro, l.mensagem) << l.nome;
        EXPECT_EQ(s.p.ItemNorma, kItemParede) << l.nome;
        EXPECT_TRUE(s.dialogos.messages.empty()) << l.nome;
    }
}

TEST(DetailSteelLimits, MinimumReChoosesTheBarAndMaximumIsTold)
{
    const double fyd50 = 5000 / 1.15;
    struct Linha {
        const char* nome;
        double nd, fyd, ac;
        double asRealAntes; // with 8 bars of 10 mm in the state before
        int indiceMax;
        const char* flagAntes;
        // expected
        double asMin, asMinBarra, asMax;
        double asReal, diamLong, asNec;
        const char* flag;
        std::string mensagemErro; // the state's text after the stage
        std::string mostrada;     // the message shown, empty for none
        std::string item;
    };
    const Linha linhas[] = {
        {"0.4 % of Ac governs and the bar suffices", 40000, fyd50, 1000, 6.4, 11, "n", 4, 0.5, 40, 6.4, 1, 3, "n",
         "", "", ""},
        {"axial term governs and raises the bar", 200000, fyd50, 1000, 6.4, 11, "n", 6.9, 0.8625, 40, 10, 1.25, 6.9,
         "n", "voltar", "", ""},
        {"re-choice clears an earlier failure", 200000, fyd50, 1000, 6.4, 11, "s", 6.9, 0.8625, 40, 10, 1.25, 6.9,
         "n", "voltar", "", ""},
        {"minimum beyond the largest allowed bar", 40000, fyd50, 2000, 6.4, 4, "n", 8, 1, 80, 6.4, 1, 8, "s",
         "Taxa de armadura mínima exige barras aço com bitola maior do que o existente",
         "Taxa de armadura mínima exige barras aço com bitola maior do que o existente", "anterior"},
        {"exactly 4 % of Ac passes", 40000, fyd50, 1000, 40, 11, "n", 4, 0.5, 40, 40, 1, 3, "n", "", "", ""},
        {"above 4 % of Ac", 40000, fyd50, 1000, 40.01, 11, "n", 4, 0.5, 40, 40.01, 1, 3, "s",
         mensagemTaxaMaxima("40.01", "40.00"), mensagemTaxaMaxima("40.01", "40.00"), kItemTaxaMaxima},
    };
    for (const auto& l : linhas) {
        for (const bool silencioso : {false, true}) {
            Bancada b;
            b.p.Nd = l.nd;
            b.p.fyd = l.fyd;
            b.p.Ac = l.ac;
            b.p.NBarrasTotal = 8;
            b.p.IndiceBitolaMax = l.indiceMax;
            b.p.Indice = 4;
            b.p.AsBarra = 0.8;
            b.p.AsReal = l.asRealAntes;
            b.p.DiamLong = 1;
            b.p.PesoLinearLong = 0.63;
            b.p.AsNec = 3;
            b.p.FlagErro = l.flagAntes;
            b.p.MensagemErro = "";
            b.p.ItemNorma = "anterior";
            const std::string nome = std::string(l.nome) + (silencioso ? " (silent)" : "");
            if (silencioso)
                b.p.Form10AsMinMax24();
            else
                b.p.AsMinMax24();

            EXPECT_NEAR_REL(b.p.AsMin, l.asMin, 1e-12);
            EXPECT_NEAR_REL(b.p.AsMinBarra, l.asMinBarra, 1e-12);
            EXPECT_EQ(b.p.AsMax, l.asMax) << nome;
            EXPECT_EQ(b.p.AsReal, l.asReal) << nome;
            EXPECT_EQ(b.p.DiamLong, l.diamLong) << nome;
            EXPECT_NEAR_REL(b.p.AsNec, l.asNec, 1e-12);
            EXPECT_EQ(b.p.FlagErro, l.flag) << nome;
            if (silencioso) {
                EXPECT_TRUE(b.dialogos.messages.empty()) << nome;
                // Only the re-choice marker is written by the silent check.
                EXPECT_EQ(b.p.MensagemErro, l.mensagemErro == "voltar" ? "voltar" : "") << nome;
                EXPECT_EQ(b.p.ItemNorma, "anterior") << nome;
                continue;
            }
            EXPECT_EQ(b.p.MensagemErro, l.mensagemErro) << nome;
            if (l.mostrada.empty()) {
                EXPECT_TRUE(b.dialogos.messages.empty()) << nome;
                continue;
            }
            ASSERT_EQ(b.dialogos.messages.size(), 1u) << nome;
            EXPECT_EQ(b.dialogos.messages[0]["mensagem"], l.mostrada) << nome;
            EXPECT_EQ(b.dialogos.messages[0]["item"], l.item) << nome;
        }
    }
}

TEST(DetailSteelLimits, MinimumReChoiceSetsEveryBarField)
{
    Bancada b;
    b.p.Nd = 0;
    b.p.fyd = 4000;
    b.p.Ac = 4000; // AsMin = 16 cm², 2 cm² a bar over 8 bars: the 16 mm bar
    b.p.NBarrasTotal = 8;
    b.p.IndiceBitolaMax = 11;
    b.p.AsReal = 6.4;
    b.p.AsMinMax24();
    EXPECT_EQ(b.p.Indice, 6);
    EXPECT_EQ(b.p.AsBarra, 2);
    EXPECT_EQ(b.p.AsReal, 16);
    EXPECT_EQ(b.p.DiamLong, 1.6);
    EXPECT_EQ(b.p.PesoLinearLong, 1.6);
    EXPECT_EQ(b.p.AsNecBarra, 2);
    EXPECT_EQ(b.p.MensagemErro, "voltar");
}
