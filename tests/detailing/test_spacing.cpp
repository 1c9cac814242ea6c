// Free and axis spacing of the longitudinal bars, each check with its own message,
// and the silent twin. (The weight of the steel is checked on the whole calculation.)

#include "detailing/bancada.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace pilarix;
using pilarix::test::Bancada;
using pilarix::test::Textos;

TEST(DetailSpacing, FourChecksEachWithItsOwnMessage)
{
    const std::string barra = " 4 vezes o diâmetro da barra longitudinal";
    const std::string agregado = " 2,4 vezes o diâmetro máximo do agragado, fora das emendas";
    const std::string menorDim = " 2 vezes a menor dimensão do trecho considerado";
    const std::string maximo = "máximo permitido";
    const auto falha = [](const char* texto, const char* direcao, const char* esp, const std::string& limite,
                          const char* valor) {
        return test::erro(std::string(texto) + direcao + " = " + esp + "cm " + limite + " = " + valor + "cm",
                          "Item 18.4.2.2 do Projeto de revisão da NB1 / 2001");
    };
    const auto livre = [&](const char* direcao, const char* esp, const std::string& limite, const char* min) {
        return falha("Espaçamento livre entre barras ", direcao, esp, "menor que " + limite, min);
    };
    const auto eixos = [&](const char* direcao, const char* esp, const std::string& limite, const char* max) {
        return falha("Espaçamento entre eixos das barras ", direcao, esp, "maior que " + limite, max);
    };
    // b = smaller side, h, bars on each face, φl, aggregate; the least free spacing, the largest
    // axis spacing, the limit text the last check leaves, and the messages, which show the
    // spacings themselves (d' = 4 throughout).
    const std::tuple<double, double, double, std::int16_t, double, double, double, double, std::string, Textos>
        linhas[] = {
            {20, 50, 2, 4, 1, 0, 4, 40, maximo, {}},        // the default column
            {20, 50, 2, 4, 1.25, 1.9, 5, 40, maximo, {}},   // the bar rule governs
            {20, 50, 2, 4, 1, 2.5, 6, 40, maximo, {}},      // the aggregate governs
            {19, 50, 2, 4, 1, 0, 4, 38, menorDim, {}},      // twice the smaller side
            {20, 50, 4, 4, 1.25, 0, 5, 40, maximo, {livre("horizontais", "2.75", barra, "5")}},
            {20, 50, 8, 4, 1, 0, 4, 40, maximo, {livre("horizontais", "0.71", barra, "4")}}, // 12/7 - 1 to 2 places
            {20, 20, 4, 4, 1.2, 2, 4.8, 40, maximo, // equal rules name the bar
             {livre("horizontais", "2.8", barra, "4.8"), livre("verticais", "2.8", barra, "4.8")}},
            {19, 100, 2, 2, 1, 0, 4, 38, menorDim, {eixos("verticais", "92", menorDim, "38")}},
            {100, 100, 2, 2, 1, 40, 96, 40, maximo, // none stops the others
             {livre("horizontais", "91", agregado, "96"), livre("verticais", "91", agregado, "96"),
              eixos("horizontais", "92", maximo, "40"), eixos("verticais", "92", maximo, "40")}},
        };
    for (const auto& [base, altura, nBase, nAltura, diamLong, diamAgregado, livreMin, eixoMax, limite, mensagens] :
         linhas) {
        for (const bool silencioso : {false, true}) {
            Bancada b;
            auto& p = b.p;
            p.Base = p.MenorDim = base;
            p.Altura = altura;
            p.dLinha = 4;
            p.nBase = nBase;
            p.nAltura = nAltura;
            p.DiamLong = diamLong;
            p.DiamAgregado = diamAgregado;
            p.MensagemErro = "antes";
            if (silencioso)
                p.Form10Espaçamento26();
            else
                p.Espaçamento26();
            const auto nome = testing::Message() << base << " x " << altura << (silencioso ? " (silent)" : "");
            EXPECT_DOUBLE_EQ(p.EspLivreMin, livreMin) << nome;
            // The window tells every failure and the state keeps the last; the search tells none.
            EXPECT_EQ(std::tuple(p.EspEixoMax, p.TextoLimite, p.FlagErro, b.mostrados()),
                      std::tuple(eixoMax, limite, mensagens.empty() ? "n" : "s", silencioso ? Textos{} : mensagens))
                << nome;
            const Textos mostradas = b.mostrado("mensagem");
            EXPECT_EQ(p.MensagemErro, mostradas.empty() ? "antes" : mostradas.back()) << nome;
        }
    }
}
