// Free and axis spacing of the longitudinal bars, each check with its own message,
// the silent twin, and the weight of the longitudinal steel.

#include "cli/recording_dialogs.h"
#include "driver/program.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace pilarix;

namespace {

const std::string kItem = "Item 18.4.2.2 do Projeto de revisão da NB1 / 2001";
const std::string kBarra = " 4 vezes o diâmetro da barra longitudinal";
const std::string kAgregado = " 2,4 vezes o diâmetro máximo do agragado, fora das emendas";
const std::string kMenorDim = " 2 vezes a menor dimensão do trecho considerado";
const std::string kMaximo = "máximo permitido";

std::string livre(const char* direcao, const std::string& esp, const std::string& limite, const std::string& min)
{
    return std::string("Espaçamento livre entre barras ") + direcao + " = " + esp + "cm menor que " + limite + " = "
           + min + "cm";
}

std::string eixos(const char* direcao, const std::string& esp, const std::string& limite, const std::string& max)
{
    return std::string("Espaçamento entre eixos das barras ") + direcao + " = " + esp + "cm maior que " + limite + " = "
           + max + "cm";
}

} // namespace

TEST(DetailSpacing, FourChecksEachWithItsOwnMessage)
{
    struct Linha {
        const char* nome;
        double b, h, dLinha, nBase;
        std::int16_t nAltura;
        double diamLong, agregado, menorDim;
        double livreH, livreV, eixoH, eixoV, livreMin, eixoMax;
        std::string textoLimite; // the one left after the last check
        std::vector<std::string> mensagens;
    };
    const Linha linhas[] = {
        {"the default column passes", 20, 50, 4, 2, 4, 1, 0, 20, 11, 13, 12, 14, 4, 40, kMaximo, {}},
        {"the bar rule governs the free spacing", 20, 50, 4, 2, 4, 1.25, 1.9, 20, 10.75, 12.75, 12, 14, 5, 40,
         kMaximo, {}},
        {"aggregate governs the free spacing", 20, 50, 4, 2, 4, 1, 2.5, 20, 11, 13, 12, 14, 6, 40, kMaximo, {}},
        {"equal rules name the bar", 20, 50, 4, 2, 4, 1.2, 2, 20, 10.8, 12.8, 12, 14, 4.8, 40, kMaximo, {}},
        {"19 cm side limits the axis spacing to 38", 19, 50, 4, 2, 4, 1, 0, 19, 10, 13, 11, 14, 4, 38, kMenorDim, {}},
        {"crowded width face", 20, 50, 4, 4, 4, 1.25, 0, 20, 2.75, 12.75, 4, 14, 5, 40, kMaximo,
         {livre("horizontais", "2.75", kBarra, "5")}},
        {"free spacing rounded to two decimals", 20, 50, 4, 8, 4, 1, 0, 20, 12.0 / 7 - 1, 13, 12.0 / 7, 14, 4, 40,
         kMaximo, {livre("horizontais", "0.71", kBarra, "4")}},
        {"deep face with two bars", 19, 100, 4, 2, 2, 1, 0, 19, 10, 91, 11, 92, 4, 38, kMenorDim,
         {eixos("verticais", "92", kMenorDim, "38")}},
        {"every check fails and none stops the others", 100, 100, 4, 2, 2, 1, 40, 100, 91, 91, 92, 92, 96, 40,
         kMaximo,
         {livre("horizontais", "91", kAgregado, "96"), livre("verticais", "91", kAgregado, "96"),
          eixos("horizontais", "92", kMaximo, "40"), eixos("verticais", "92", kMaximo, "40")}},
    };
    for (const auto& l : linhas) {
        for (const bool silencioso : {false, true}) {
            RecordingDialogs dialogos;
            Program p(dialogos);
            p.Base = l.b;
            p.Altura = l.h;
            p.dLinha = l.dLinha;
            p.nBase = l.nBase;
            p.nAltura = l.nAltura;
            p.DiamLong = l.diamLong;
            p.DiamAgregado = l.agregado;
            p.MenorDim = l.menorDim;
            p.FlagErro = "n";
            p.MensagemErro = "antes";
            const std::string nome = std::string(l.nome) + (silencioso ? " (silent)" : "");
            if (silencioso)
                p.Form10Espaçamento26();
            else
                p.Espaçamento26();

            EXPECT_DOUBLE_EQ(p.EspLivreH, l.livreH) << nome;
            EXPECT_DOUBLE_EQ(p.EspLivreV, l.livreV) << nome;
            EXPECT_DOUBLE_EQ(p.EspEixoH, l.eixoH) << nome;
            EXPECT_DOUBLE_EQ(p.EspEixoV, l.eixoV) << nome;
            EXPECT_DOUBLE_EQ(p.EspLivreMin, l.livreMin) << nome;
            EXPECT_EQ(p.EspEixoMax, l.eixoMax) << nome;
            EXPECT_EQ(p.TextoLimite, l.textoLimite) << nome;
            EXPECT_EQ(p.FlagErro, l.mensagens.empty() ? "n" : "s") << nome;
            if (silencioso) {
                EXPECT_TRUE(dialogos.messages.empty()) << nome;
                EXPECT_EQ(p.MensagemErro, "antes") << nome;
                continue;
            }
            std::vector<std::string> mostradas;
            for (const auto& m : dialogos.messages) {
                EXPECT_EQ(m["janela"], "Mensagem de erro") << nome;
                EXPECT_EQ(m["item"], kItem) << nome;
                mostradas.push_back(m["mensagem"]);
            }
            EXPECT_EQ(mostradas, l.mensagens) << nome;
            EXPECT_EQ(p.MensagemErro, l.mensagens.empty() ? "antes" : l.mensagens.back()) << nome;
        }
    }
}

TEST(DetailSpacing, FreeSpacingLimitNamesTheBarRuleOnTheBoundary)
{
    // 4 φl against 2.4 times the aggregate, both 4.8 cm: the bar rule is named.
    RecordingDialogs dialogos;
    Program p(dialogos);
    p.Base = 20;
    p.Altura = 20;
    p.dLinha = 4;
    p.nBase = 4;
    p.nAltura = 4;
    p.DiamLong = 1.2;
    p.DiamAgregado = 2;
    p.MenorDim = 20;
    p.Espaçamento26();
    ASSERT_EQ(dialogos.messages.size(), 2u);
    EXPECT_EQ(dialogos.messages[0]["mensagem"], livre("horizontais", "2.8", kBarra, "4.8"));
    EXPECT_EQ(dialogos.messages[1]["mensagem"], livre("verticais", "2.8", kBarra, "4.8"));
}

TEST(DetailWeight, LongitudinalSteelOverTheColumnLength)
{
    struct Linha {
        std::int16_t barras;
        double pesoLinear, comprimento, peso;
    };
    const Linha linhas[] = {
        {8, 1.0, 300, 24},
        {10, 2.5, 450, 112.5},
        {4, 0.63, 0, 0},
        {12, 0.63, 280, 21.168},
    };
    for (const auto& l : linhas) {
        RecordingDialogs dialogos;
        Program p(dialogos);
        p.NBarrasTotal = l.barras;
        p.PesoLinearLong = l.pesoLinear;
        p.Comprimento = l.comprimento;
        p.Peso29();
        EXPECT_DOUBLE_EQ(p.PesoLong, l.peso) << l.barras << " bars";
    }
}
