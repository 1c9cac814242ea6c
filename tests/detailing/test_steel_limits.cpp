// Wall columns and γn, minimum and maximum steel, the re-choice of the bar for the
// minimum, and the silent twins.

#include "detailing/bancada.h"

#include "support/tolerance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

using namespace pilarix;
using pilarix::test::Bancada;
using pilarix::test::Textos;

TEST(DetailWallColumn, SmallerSideGivesGammaNAndFiveTimesItMakesAWall)
{
    const auto parede = [](const std::string& maior, const std::string& cincoVezes) {
        return "Maior dimensão da seção transversal = " + maior + "cm, excedeu 5 vezes a menor dimensão = "
               + cincoVezes + ". O pilar deve ser tratado como pilar parede.";
    };
    const std::tuple<double, double, double, std::string> linhas[] = { // b, h, γn, wall message
        {20, 100, 1.0, ""}, {20, 101, 1.0, parede("101", "100")}, {101, 20, 1.0, parede("101", "100")},
        {19, 19, 1.0, ""},  {18.99, 40, 1.05, ""}, {40, 18, 1.05, ""}, {17.99, 30, 1.1, ""}, {17, 30, 1.1, ""},
        {16, 30, 1.15, ""}, {15, 30, 1.2, ""},     {14.5, 30, 1.25, ""}, {13, 30, 1.3, ""},  {12.9, 30, 1.35, ""},
        {10, 30, 1.35, ""}, {12, 61, 1.35, parede("61", "60")}, {12.5, 62.75, 1.35, parede("62.75", "62.5")},
    };
    for (const auto& [base, altura, gamaN, mensagem] : linhas) {
        for (const bool busca : {false, true}) {
            Bancada b;
            b.p.Form1.Check3.Value = busca;
            b.p.Base = base;
            b.p.Altura = altura;
            b.p.CeoficienteAdic25();
            const auto nome = testing::Message() << base << " x " << altura << (busca ? " (search)" : "");
            EXPECT_EQ(std::tuple(b.p.MenorDim, b.p.GamaN, b.p.FlagErro),
                      std::tuple(std::min(base, altura), gamaN, mensagem.empty() ? "n" : "sPparede"))
                << nome;
            // In the search the wall is silent but the triple is filled all the same.
            const std::string item = "Item 18.4.1 do Projeto de revisão da NB1 / 2001";
            EXPECT_EQ(b.mostrados(), busca || mensagem.empty() ? Textos{} : Textos{test::erro(mensagem, item)}) << nome;
            if (!mensagem.empty()) {
                EXPECT_EQ(std::pair(b.p.MensagemErro, b.p.ItemNorma), std::pair(mensagem, item)) << nome;
            }
        }
    }
}

TEST(DetailSteelLimits, MinimumReChoosesTheBarAndMaximumIsTold)
{
    const std::string semBitola = "Taxa de armadura mínima exige barras aço com bitola maior do que o existente";
    const std::string taxaMaxima = "A taxa de armadura excede o máximo permitido = 8,0%Ac em reigião de emendas. No "
                                   "caso temos 40.01cm2 que é maior que 40.00cm2 correspondente a 4%Ac fora da "
                                   "região de emendas";
    const std::string itemMaxima = "Item 17.3.4.3.2 do Projeto de revisão da NB1 / 2001";
    struct Linha {
        const char* nome;
        double nd, ac, asRealAntes; // 8 bars of 10 mm and AsNec 3 before
        int indiceMax;
        const char* flagAntes;
        double asMin, asMax, asReal, diamLong, asNec;
        const char* flag;
        std::string mensagemErro; // the state's text after the window's stage
        std::string item;         // the clause shown, "anterior" when none
    };
    const Linha linhas[] = {
        {"0.4 % of Ac governs, bar suffices", 40000, 1000, 6.4, 11, "n", 4, 40, 6.4, 1, 3, "n", "", "anterior"},
        {"axial term raises the bar", 200000, 1000, 6.4, 11, "n", 6.9, 40, 10, 1.25, 6.9, "n", "voltar", "anterior"},
        {"re-choice clears a failure", 200000, 1000, 6.4, 11, "s", 6.9, 40, 10, 1.25, 6.9, "n", "voltar", "anterior"},
        {"beyond the largest allowed bar", 40000, 2000, 6.4, 4, "n", 8, 80, 6.4, 1, 8, "s", semBitola, "anterior"},
        {"exactly 4 % of Ac passes", 40000, 1000, 40, 11, "n", 4, 40, 40, 1, 3, "n", "", "anterior"},
        {"above 4 % of Ac", 40000, 1000, 40.01, 11, "n", 4, 40, 40.01, 1, 3, "s", taxaMaxima, itemMaxima},
    };
    for (const auto& l : linhas) {
        for (const bool silencioso : {false, true}) {
            const std::string nome = std::string(l.nome) + (silencioso ? " (silent)" : "");
            Bancada b;
            b.p.Nd = l.nd;
            b.p.fyd = 5000 / 1.15;
            b.p.Ac = l.ac;
            b.p.NBarrasTotal = 8;
            b.p.IndiceBitolaMax = l.indiceMax;
            b.p.AsReal = l.asRealAntes;
            b.p.DiamLong = 1;
            b.p.AsNec = 3;
            b.p.FlagErro = l.flagAntes;
            b.p.ItemNorma = "anterior";
            if (silencioso)
                b.p.Form10AsMinMax24();
            else
                b.p.AsMinMax24();
            EXPECT_NEAR_REL(b.p.AsMin, l.asMin, 1e-12);
            EXPECT_NEAR_REL(b.p.AsMinBarra, l.asMin / 8, 1e-12);
            EXPECT_NEAR_REL(b.p.AsNec, l.asNec, 1e-12);
            EXPECT_EQ(std::tuple(b.p.AsMax, b.p.AsReal, b.p.DiamLong, b.p.FlagErro),
                      std::tuple(l.asMax, l.asReal, l.diamLong, l.flag))
                << nome;
            // The silent check writes only the re-choice marker and shows nothing.
            const bool voltar = l.mensagemErro == "voltar";
            const bool mostra = !silencioso && !voltar && !l.mensagemErro.empty();
            EXPECT_EQ(b.p.MensagemErro, silencioso && !voltar ? "" : l.mensagemErro) << nome;
            EXPECT_EQ(b.mostrado("mensagem"), mostra ? Textos{l.mensagemErro} : Textos{}) << nome;
            EXPECT_EQ(b.p.ItemNorma, silencioso ? "anterior" : l.item) << nome;
        }
    }
}
