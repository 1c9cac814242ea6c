// The result boxes and their reset, and whole calculations of the default column
// through the driver and the command line: the repeated pass of a cover
// correction, the ignored cover, Check1 and a wall.

#include "cli/cli.h"
#include "cli/recording_dialogs.h"
#include "driver/program.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>
#include <string>
#include <vector>

using namespace pilarix;

namespace {

struct Bancada {
    RecordingDialogs dialogos;
    Program p{dialogos};
    Bancada() { p.Bitolas22(); }
};

nlohmann::json cli(std::vector<std::string> args)
{
    args.push_back("--json");
    std::ostringstream out, err;
    const int status = runCli(args, out, err);
    EXPECT_EQ(status, 0) << err.str();
    return nlohmann::json::parse(out.str());
}

std::string efetivoMenor(const std::string& efetivo, const std::string& nominal)
{
    return "Cobrimento efetivo = " + efetivo + " cm menor que o combrimento nominal = " + nominal + " cm.";
}

} // namespace

TEST(DetailResultBoxes, MasksAndTheExcessOfSteel)
{
    struct Linha {
        const char* nome;
        double asMin, asNec, asReal, asMinBarra, asBarraD, asBarra, excesso, peso, cobNom, cobEf, betaX, altura;
        std::int16_t nZona;
        std::vector<std::string> caixas; // Text9..Text14, Text15, Text19, Text25, Text26, Text28, Text29, Text8
    };
    const Linha linhas[] = {
        {"a whole calculation", 4, 6.5699, 10, 0.5, 0.82124, 1.25, 34.3007, 24, 3, 3, 0.4593, 50, 2,
         {"4.00", "6.57", "10.00", "0.50", "0.82", "1.25", "34.30%", "24.00", "3.00", "3.00", "0.459", "23.0", "2"}},
        {"no steel needed, large and small figures", 4, 0, 1234.5, 0.5, 0, 0.8, 100, 1234.5, 2.675, -1, 0.0456, 50,
         1,
         {"4.00", "0.00", "1234.50", "0.50", "0.00", "0.80", "100.00%", "1234.50", "2.68", "-1.00", "0.046", "2.3",
          "1"}},
        {"zone 5", 0.004, 0.005, 0.006, 0.0004, 0.0005, 0.8, 16.6667, 0.125, 2.5, 2.5, 1.25, 40, 5,
         {"0.00", "0.01", "0.01", "0.00", "0.00", "0.80", "16.67%", "0.13", "2.50", "2.50", "1.250", "50.0", "5"}},
    };
    for (const auto& l : linhas) {
        Bancada b;
        auto& p = b.p;
        p.AsMin = l.asMin;
        p.AsNec = l.asNec;
        p.AsReal = l.asReal;
        p.AsMinBarra = l.asMinBarra;
        p.AsBarraD = l.asBarraD;
        p.AsBarra = l.asBarra;
        p.Excesso = l.excesso;
        p.PesoLong = l.peso;
        p.CobNominal = l.cobNom;
        p.CobEfetivo = l.cobEf;
        p.BetaX = l.betaX;
        p.Altura = l.altura;
        p.NZona = l.nZona;
        p.TextoEstribo = "φ6.3 c/12";
        p.Imprime37();
        const auto& f = p.Form1;
        const std::vector<std::string> caixas = {f.Text9.Text,  f.Text10.Text, f.Text11.Text, f.Text12.Text,
                                                 f.Text13.Text, f.Text14.Text, f.Text15.Text, f.Text19.Text,
                                                 f.Text25.Text, f.Text26.Text, f.Text28.Text, f.Text29.Text,
                                                 f.Text8.Text};
        EXPECT_EQ(caixas, l.caixas) << l.nome;
        EXPECT_EQ(f.Text27.Text, "φ6.3 c/12") << l.nome;
    }
}

TEST(DetailResultBoxes, TheChosenBarIsPickedOutByItsArea)
{
    struct Linha {
        double asBarra;
        int destaque; // box of Text7, -1 for none
    };
    const Linha linhas[] = {{0.8, 0}, {1.25, 1}, {2, 2}, {3.15, 3}, {4, 4}, {5, 5}, {8, 6}, {12.5, 7}, {0, -1},
                            {0.5, -1}};
    for (const auto& l : linhas) {
        Bancada b;
        b.p.AsBarra = l.asBarra;
        b.p.Imprime37();
        for (int i = 0; i < 8; ++i) {
            const auto& t = b.p.Form1.Text7[static_cast<std::size_t>(i)];
            if (i == l.destaque) {
                EXPECT_EQ(t.BackColor, kDarkBlue) << l.asBarra;
                EXPECT_EQ(t.ForeColor, kWhite) << l.asBarra;
            } else {
                EXPECT_EQ(t.BackColor, kWhite) << l.asBarra << " box " << i;
                EXPECT_EQ(t.ForeColor, kInactiveCaptionText) << l.asBarra << " box " << i;
            }
        }
    }
}

TEST(DetailResultBoxes, ResetEmptiesEveryResultAndKeepsTheInput)
{
    Bancada b;
    auto& f = b.p.Form1;
    std::vector<TextBox*> resultados = {&f.Text8,  &f.Text9,  &f.Text10, &f.Text11, &f.Text12,
                                        &f.Text13, &f.Text14, &f.Text15, &f.Text19, &f.Text25,
                                        &f.Text26, &f.Text27, &f.Text28, &f.Text29, &f.Text30};
    for (auto* t : resultados)
        t->Text = "x";
    f.Text30.BackColor = kRed;
    f.Text7[3].BackColor = kDarkBlue;
    f.Text7[3].ForeColor = kWhite;
    f.CotasVisiveis = true;
    b.p.ErroEntrada = "s";
    f.Text3.Text = "4.0";
    f.Text1.Text = "20";

    b.p.Zera31();
    for (auto* t : resultados)
        EXPECT_EQ(t->Text, "");
    EXPECT_EQ(f.Text30.BackColor, kWhite);
    for (const auto& t : f.Text7) {
        EXPECT_EQ(t.BackColor, kWhite);
        EXPECT_EQ(t.ForeColor, kInactiveCaptionText);
    }
    EXPECT_FALSE(f.CotasVisiveis);
    EXPECT_EQ(b.p.ErroEntrada, "n");
    EXPECT_EQ(f.Text3.Text, "4.0");
    EXPECT_EQ(f.Text1.Text, "20");
    EXPECT_EQ(f.Text7[3].Text, "20");
}

// The default column: 20 x 50 cm, 2 x 4 bars, 400 kN and 10000 kN.cm, fck 20 MPa,
// CA-50A, class II with Δc = 1 cm (nominal cover 3 cm), a 5 mm pre-defined stirrup,
// and no d' typed: the cover question sets d' from the cover.
TEST(DetailWholeCalculation, CoverCorrectionRunsTheRepeatedPasses)
{
    const auto doc = cli({});
    const auto& m = doc["mensagens"];
    ASSERT_EQ(m.size(), 2u) << m.dump(1);
    // first pass: d' = 0 with 10 mm bars; second: d' = 0.5 + 0.5 + 3 = 4, which needs 12.5 mm
    EXPECT_EQ(m[0]["mensagem"], efetivoMenor("-1", "3"));
    EXPECT_EQ(m[1]["mensagem"], efetivoMenor("2.875", "3"));
    for (const auto& q : m) {
        EXPECT_EQ(q["janela"], "Cobrimento");
        EXPECT_EQ(q["item"], "Item 7.4.7 ");
        EXPECT_EQ(q["botao1"], "&1 - Utilizar cobrimento mínimo");
        EXPECT_EQ(q["resposta"], 1);
    }
    const auto& c = doc["caixas"];
    EXPECT_EQ(doc["Erros"], "Ok");
    EXPECT_EQ(c["Text3"], "4.12500"); // 0.5 + 0.625 + 3
    EXPECT_EQ(c["Text9"], "4.00");    // 0.4 % of 1000 cm²
    EXPECT_EQ(c["Text11"], "10.00");  // 8 bars of 12.5 mm
    EXPECT_EQ(c["Text12"], "0.50");
    EXPECT_EQ(c["Text14"], "1.25");
    EXPECT_EQ(c["Text19"], "24.00"); // 8 x 1.0 kg/m x 3 m
    EXPECT_EQ(c["Text25"], "3.00");
    EXPECT_EQ(c["Text26"], "3.00");
    EXPECT_EQ(c["Text27"], "φ5 c/15"); // 12 φl = 15 cm
    EXPECT_EQ(c["Text7(1).destaque"], true);
    const auto& e = doc["estado"];
    EXPECT_EQ(e["dLinha"], 4.125);
    EXPECT_EQ(e["Recalcula"], "n");
    EXPECT_EQ(e["FlagErro"], "n");
    EXPECT_EQ(e["EspEixoH"], 11.75);
    EXPECT_EQ(e["ComprGancho"], 10);
    // axis spacing 11.75 and 13.92 cm, beyond 20 φt = 10 cm: every interior bar is tied
    EXPECT_EQ(e["SupH"], nlohmann::json::array({"", ""}));
    EXPECT_EQ(e["SupV"], nlohmann::json::array({"", "s", "s", ""}));
    EXPECT_EQ(e["NSupV"], 2);
}

TEST(DetailWholeCalculation, IgnoredCoverEndsInErrorWithTheArrangementKept)
{
    const auto doc = cli({"--cobrimento", "2"});
    const auto& m = doc["mensagens"];
    ASSERT_EQ(m.size(), 2u) << m.dump(1);
    EXPECT_EQ(m[0]["mensagem"], efetivoMenor("-1", "3"));
    EXPECT_EQ(m[1]["mensagem"], "Cobrimento mínimo das barras longitudinais = -0.5 cm menor que o mínimo = 1 cm "
                                "(diâmetro da barra logitudinal)");
    EXPECT_EQ(m[1]["item"], "Item 7.4.7.5");
    EXPECT_EQ(m[1]["resposta"], 2);
    EXPECT_EQ(doc["Erros"], "erro");
    const auto& c = doc["caixas"];
    EXPECT_EQ(c["Text3"], "");
    EXPECT_EQ(c["Text11"], "6.40");
    EXPECT_EQ(c["Text26"], "-1.00");
    EXPECT_EQ(c["Text27"], "φ5 c/12");
    EXPECT_EQ(doc["estado"]["dLinha"], 0);
    EXPECT_EQ(doc["estado"]["FlagErro"], "s");
}

TEST(DetailWholeCalculation, Check1CorrectsWithoutAsking)
{
    const auto doc = cli({"--set", "Check1=1"});
    EXPECT_TRUE(doc["mensagens"].empty()) << doc["mensagens"].dump(1);
    EXPECT_EQ(doc["Erros"], "Ok");
    EXPECT_EQ(doc["caixas"]["Text3"], "4.12500");
    EXPECT_EQ(doc["caixas"]["Text26"], "3.00");
}

TEST(DetailWholeCalculation, AWallStopsBeforeTheDesign)
{
    const auto doc = cli({"--set", "Text2=101"});
    ASSERT_EQ(doc["mensagens"].size(), 1u);
    EXPECT_EQ(doc["mensagens"][0]["mensagem"], "Maior dimensão da seção transversal = 101cm, excedeu 5 vezes a menor "
                                               "dimensão = 100. O pilar deve ser tratado como pilar parede.");
    EXPECT_EQ(doc["Erros"], "erro");
    EXPECT_EQ(doc["caixas"]["Text11"], "");
    EXPECT_EQ(doc["estado"]["FlagErro"], "sPparede");
}

TEST(DetailWholeCalculation, NoAllowedBarLargeEnoughStopsTheCalculation)
{
    // 1800 kN on the default column needs more than 10 mm bars, the largest allowed here.
    const auto doc = cli({"--set", "Text16=1800", "--set", "Form8.Combo3=10 mm (3/8'')"});
    ASSERT_EQ(doc["mensagens"].size(), 1u) << doc["mensagens"].dump(1);
    EXPECT_EQ(doc["mensagens"][0]["mensagem"],
              "Diâmetro das barras longitudinais devem ser superiores à maior bitola definida pelo usuário.");
    EXPECT_EQ(doc["mensagens"][0]["item"], "");
    EXPECT_EQ(doc["Erros"], "erro");
    EXPECT_EQ(doc["caixas"]["Text11"], "");
    EXPECT_EQ(doc["estado"]["AsReal"], 0);
}
